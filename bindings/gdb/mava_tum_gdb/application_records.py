"""Prints an application record, which has no presence: the members that are not zero or empty."""

from __future__ import annotations

from collections.abc import Iterator
from typing import Any

import gdb

from .record_tables import APPLICATION_RECORDS, short_name
from .single_values import array_bytes, array_text, hex_text, ipv4_text, ipv6_text, plain_number, shown_elements

Row = dict[str, Any]
Child = tuple[str, "gdb.Value | str"]


def record_children(tag: str, record: gdb.Value) -> Iterator[Child]:
    for row in APPLICATION_RECORDS[tag]:
        yield from CHILDREN[row["kind"]](row, record)


def number_children(row: Row, record: gdb.Value) -> Iterator[Child]:
    value = record[row["name"]]
    if int(value):
        yield row["name"], ipv4_text(value, "big") if "address" in row else plain_number(value)


def number_array_children(row: Row, record: gdb.Value) -> Iterator[Child]:
    for index in range(row["slots"]):
        value = record[row["name"]][index]
        if int(value):
            yield f"{row['name']}[{index}]", value


def bytes_children(row: Row, record: gdb.Value) -> Iterator[Child]:
    content = array_bytes(record[row["name"]])
    if any(content):
        yield row["name"], ipv6_text(content) if "address" in row else hex_text(content, len(content))


def text_child(name: str, value: gdb.Value) -> Child:
    text, ends = array_text(value)
    return name if ends else f"{name} (no NUL ends it)", text


def text_children(row: Row, record: gdb.Value) -> Iterator[Child]:
    value = record[row["name"]]
    if int(value[0]):
        yield text_child(row["name"], value)


def nested_children(row: Row, record: gdb.Value) -> Iterator[Child]:
    value = record[row["name"]]
    if any(True for _ in record_children(row["of"], value)):
        yield row["name"], value


def used_slots(row: Row, record: gdb.Value) -> range:
    """The slots below the count, up to gdb's limit."""
    return range(min(int(record[row["count"]]), row["slots"], shown_elements()))


def record_array_children(row: Row, record: gdb.Value) -> Iterator[Child]:
    for index in used_slots(row, record):
        yield f"{row['name']}[{index}]", record[row["name"]][index]


def text_array_children(row: Row, record: gdb.Value) -> Iterator[Child]:
    for index in used_slots(row, record):
        yield text_child(f"{row['name']}[{index}]", record[row["name"]][index])


CHILDREN = {
    "number": number_children,
    "number_array": number_array_children,
    "bytes": bytes_children,
    "text": text_children,
    "text_array": text_array_children,
    "record": nested_children,
    "record_array": record_array_children,
}


class ApplicationRecordPrinter:
    """The elements of an array follow their count if it is not zero."""

    def __init__(self, tag: str, record: gdb.Value) -> None:
        self.tag = tag
        self.record = record

    def to_string(self) -> str:
        name = short_name(self.tag)
        return name if any(True for _ in self.children()) else f"{name}: all zero"

    def children(self) -> Iterator[Child]:
        return record_children(self.tag, self.record)
