"""Prints objects of the C++ layer as the records, lists and spans that they refer to."""

from __future__ import annotations

import re
from collections.abc import Iterator

import gdb

from .codec_records import CodecRecordPrinter
from .single_values import BytesPrinter, pointed_text, read_or_say_why, shown_elements

Child = tuple[str, "gdb.Value | gdb.LazyString | str"]

NAMESPACE = "mava_tum::cpp::"
# An owning class holds its record, the others point to it.
RECORD_CLASSES = re.compile(NAMESPACE + r"(record_view|record_editor|owning_record)<")
LISTS = re.compile(NAMESPACE + r"list_view<.*>")
SPANS = re.compile(NAMESPACE + r"(argument_)?span<.*>")


class Absent:
    """A view of an absent record."""

    @staticmethod
    def to_string() -> str:
        return "absent"


class Unreadable:
    """An object that refers to no memory."""

    def __init__(self, reason: str) -> None:
        self.reason = reason

    def to_string(self) -> str:
        return self.reason


class ListPrinter:
    """Prints the elements of an array of records or texts, up to gdb's limit."""

    def __init__(self, value: gdb.Value) -> None:
        self.elements = value["elements_"]
        self.size = int(value["size_"])

    def to_string(self) -> str:
        return f"{self.size} elements" if self.size != 1 else "1 element"

    def children(self) -> Iterator[Child]:
        for index in range(min(self.size, shown_elements())):
            element = read_or_say_why(self.elements[index])
            if isinstance(element, str):
                yield f"[{index}]", element
                return
            is_text = element.type.strip_typedefs().code == gdb.TYPE_CODE_PTR
            yield f"[{index}]", pointed_text(element) if is_text else element


def base_of(value_type: gdb.Type) -> str:
    """The class that holds or finds the record of a class; empty if there is none."""
    for field in value_type.fields():
        found = RECORD_CLASSES.match(field.type.name or "") if field.is_base_class else None
        if found:
            return found[1]
    return ""


def record_printer(base: str, value: gdb.Value) -> object:
    if base == "record_view" and not bool(value["present_"]):
        return Absent()
    held = value["record_"]
    record = read_or_say_why(held if base == "owning_record" else held.dereference())
    if isinstance(record, str):
        return Unreadable(record)
    return CodecRecordPrinter(record.type.strip_typedefs().tag, record)


def cpp_printer(name: str, value: gdb.Value) -> object | None:
    """None for classes without a printer."""
    if LISTS.fullmatch(name):
        return ListPrinter(value)
    if SPANS.fullmatch(name):
        is_bytes = value["data_"].dereference().type.sizeof == 1
        return BytesPrinter(value, "data_", "size_") if is_bytes else None
    base = base_of(value.type.strip_typedefs()) if name.startswith(NAMESPACE) else ""
    return record_printer(base, value) if base else None
