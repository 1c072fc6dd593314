"""The messages, application records and adapters by name, from the table that the build made from the headers."""

from __future__ import annotations

import difflib
import json
from collections.abc import Collection
from dataclasses import dataclass
from pathlib import Path
from types import MappingProxyType
from typing import Any, NamedTuple

from .errors import UnknownNameError


LIKENESS = 0.5  # from 0 for names without a common letter to 1 for the same name


@dataclass(frozen=True)
class Field:
    """A field of a message. `bits` is the width of a number, `of` the message of a record or of an array's elements,
    `count` the C member that counts an array, `address` is "ipv4" for numbers that are addresses, "ipv6" for
    bytes."""

    name: str
    number: int
    kind: str
    bit: int
    bits: int = 0
    of: str = ""
    count: str = ""
    address: str = ""


class Message(NamedTuple):
    """A message: its fields by name in the order of their numbers, and the parameters of its four functions."""

    name: str
    c_type: str
    fields: dict[str, Field]
    functions: dict[str, list[str]]


@dataclass(frozen=True)
class Member:
    """A member of an application record. `size` is in bytes (of a text: with its NUL), `slots` in elements."""

    name: str
    kind: str
    bits: int = 0
    size: int = 0
    slots: int = 0
    of: str = ""
    count: str = ""
    address: str = ""


class Adapter(NamedTuple):
    """The C types of the records of an adapter's two directions."""

    encode: str
    decode: str


class Result(NamedTuple):
    """The name of a result code, and its description in the headers."""

    name: str
    text: str


def _load() -> dict[str, Any]:
    tables: dict[str, Any] = json.loads(
        Path(__file__).with_name("header_tables.json").read_text(encoding="utf-8"))
    return tables


_tables = _load()

MESSAGES = {
    name: Message(name, row["c_type"], {each["name"]: Field(**each) for each in row["fields"]}, row["functions"])
    for name, row in _tables["messages"].items()
}
APPLICATION_RECORDS = {
    c_type: {each["name"]: Member(**each) for each in row["members"]}
    for c_type, row in _tables["application_records"].items()
}
ADAPTERS = {name: Adapter(**row) for name, row in _tables["adapters"].items()}
CONSTANTS = MappingProxyType(_tables["constants"])
RESULTS = {row["value"]: Result(name, row["text"]) for name, row in _tables["results"].items()}


def unknown_name(text: str, name: object, known: Collection[str]) -> UnknownNameError:
    """The error for an unknown name."""
    near = difflib.get_close_matches(name, known, cutoff=LIKENESS) if isinstance(name, str) else []
    return UnknownNameError(f"{text} {name!r}", tuple(near))


def find_message(name: str) -> Message:
    try:
        return MESSAGES[name]
    except (KeyError, TypeError):
        raise unknown_name("there is no message", name, MESSAGES) from None


def find_adapter(name: str) -> Adapter:
    try:
        return ADAPTERS[name]
    except (KeyError, TypeError):
        raise unknown_name("there is no adapter", name, ADAPTERS) from None
