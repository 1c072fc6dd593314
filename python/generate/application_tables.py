"""The application records and the adapters as tables: every member with what it takes to fill it from Python."""

from __future__ import annotations

import re
from typing import Any

from codec_tables import BITS
from read_headers import HeaderError, Headers, Member

RECORD_PREFIX = "tum_nal_data_"
ADAPTER = re.compile(r"tum_nal_data_gpb_(encode|decode)_tum_(\w+)")
IPV6_BYTES = 16


def kind_of(member: Member) -> tuple[str, dict[str, Any]]:
    """The kind of a member, and what it needs besides: sizes in bytes, slots in elements."""
    if member.pointers:
        raise HeaderError(f"{member.name} is a pointer")
    shape = (member.c_type, len(member.sizes))
    if shape == ("char", 1):
        return "text", {"size": member.sizes[0]}
    if shape == ("char", 2):
        return "text_array", {"slots": member.sizes[0], "size": member.sizes[1]}
    if shape == ("uint8_t", 1):
        return "bytes", {"size": member.sizes[0]}
    if member.c_type in BITS and len(member.sizes) < 2:
        slots = {"slots": member.sizes[0]} if member.sizes else {}
        return ("number_array" if slots else "number"), {"bits": BITS[member.c_type], **slots}
    if member.c_type.startswith(RECORD_PREFIX) and len(member.sizes) < 2:
        slots = {"slots": member.sizes[0]} if member.sizes else {}
        return ("record_array" if slots else "record"), {"of": member.c_type, **slots}
    raise HeaderError(f"{member.name} has a type that no kind stands for")


def address_of(kind: str, member: Member) -> dict[str, str]:
    """IPv4 addresses are the numbers whose byte order is given; sixteen bytes are an IPv6 address."""
    if kind == "number" and "host byte order" in member.comment:
        return {"address": "ipv4"}
    if kind == "bytes" and member.sizes == (IPV6_BYTES,):
        return {"address": "ipv6"}
    return {}


def count_of(row: dict[str, Any], members: list[Member]) -> dict[str, str]:
    """The member that counts the elements of an array."""
    if row["kind"] not in ("record_array", "text_array"):
        return {}
    wanted = (row["name"] + "_count", row["name"].removesuffix("s") + "_count")
    for member in members:
        if member.name in wanted and member.c_type in BITS and not member.sizes:
            return {"count": member.name}
    raise HeaderError(f"nothing counts the elements of {row['name']}")


def describe_member(member: Member, members: list[Member]) -> dict[str, Any]:
    kind, needs = kind_of(member)
    row = {"name": member.name, "kind": kind, **needs, **address_of(kind, member)}
    return {**row, **count_of(row, members)}


def application_tables(headers: Headers) -> dict[str, Any]:
    """C type -> the members in their order. Reserved members are left out: nobody reads or sets them."""
    tables = {}
    for c_type, members in headers.records.items():
        if not c_type.startswith(RECORD_PREFIX):
            continue
        try:
            tables[c_type] = {"members": [describe_member(each, members) for each in members
                                          if not each.name.startswith("reserved_")]}
        except HeaderError as error:
            raise HeaderError(f"{c_type}: {error}") from error
    return tables


def adapter_tables(headers: Headers) -> dict[str, dict[str, str]]:
    """Adapter name -> the record that each direction takes: a replay request has two."""
    adapters: dict[str, dict[str, str]] = {}
    for function, parameters in headers.functions.items():
        said = ADAPTER.fullmatch(function)
        if said:
            c_type = next(c_type for c_type, name in parameters if name == "record")
            adapters.setdefault(said[2], {})[said[1]] = c_type.removeprefix("const ").rstrip("*")
    one_way = [name for name, directions in adapters.items() if len(directions) != 2]
    if one_way:
        raise HeaderError(f"adapters with one direction only: {', '.join(one_way)}")
    return adapters
