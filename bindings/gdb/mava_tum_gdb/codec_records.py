"""Prints a codec record: the fields whose presence bits are set."""

from __future__ import annotations

from collections.abc import Iterator
from typing import Any

import gdb

from .record_tables import CODEC_RECORDS, short_name
from .single_values import ipv4_text, pointed_text, read_or_say_why, shown_elements

Row = dict[str, Any]
Child = tuple[str, "gdb.Value | gdb.LazyString | str"]


def is_present(row: Row, record: gdb.Value) -> bool:
    return bool(int(record["presence_mask"]) >> row["bit"] & 1)


def has_content(record: gdb.Value) -> bool:
    """Whether an encode writes the record although its bit is clear (L10)."""
    rows = CODEC_RECORDS[record.type.strip_typedefs().tag]
    return any(is_present(row, record) or (row["kind"] == "record" and has_content(record[row["name"]]))
               for row in rows)


def spare_bits(rows: list[Row], record: gdb.Value) -> int:
    return int(record["presence_mask"]) >> len(rows) << len(rows)


def number_children(row: Row, record: gdb.Value) -> Iterator[Child]:
    value = record[row["name"]]
    yield row["name"], ipv4_text(value, "little") if "address" in row else value


def bytes_children(row: Row, record: gdb.Value) -> Iterator[Child]:
    yield row["name"], record[row["name"]]


def text_children(row: Row, record: gdb.Value) -> Iterator[Child]:
    yield row["name"], pointed_text(record[row["name"]])


def array_children(row: Row, record: gdb.Value) -> Iterator[Child]:
    """The count, then the elements, up to gdb's limit."""
    name, elements, count = row["name"], record[row["name"]], record[row["count"]]
    yield row["count"], count
    if not int(elements):
        yield name, "null"
        return
    is_text = row["kind"] == "text_array"
    for index in range(min(int(count), shown_elements())):
        element = read_or_say_why(elements[index])
        if isinstance(element, str):
            yield f"{name}[{index}]", element
            return
        yield f"{name}[{index}]", pointed_text(element) if is_text else element


CHILDREN = {
    "varint": number_children,
    "fixed32": number_children,
    "bytes": bytes_children,
    "text": text_children,
    "record": bytes_children,
    "record_array": array_children,
    "text_array": array_children,
}


class CodecRecordPrinter:
    """Without absent fields; unusual properties of a record are shown like fields."""

    def __init__(self, tag: str, record: gdb.Value) -> None:
        self.tag = tag
        self.rows = CODEC_RECORDS[tag]
        self.record = record

    def to_string(self) -> str:
        present = sum(is_present(row, self.record) for row in self.rows)
        return f"{short_name(self.tag)}: {present} of {len(self.rows)} fields"

    def children(self) -> Iterator[Child]:
        for row in self.rows:
            if is_present(row, self.record):
                yield from CHILDREN[row["kind"]](row, self.record)
            elif row["kind"] == "record" and has_content(self.record[row["name"]]):
                yield f"{row['name']} (its bit is clear, but it has content and is sent)", self.record[row["name"]]
        spare = spare_bits(self.rows, self.record)
        if spare:
            yield "spare bits of presence_mask", hex(spare)
