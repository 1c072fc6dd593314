"""The tables for the Python module and the printers of gdb."""

from __future__ import annotations

from typing import Any

from header_reader import Constant, plain_text
from library_tables import ApplicationMember, Field, Library, Message

FIELD_KINDS = {"64-bit varint": "varint", "array of records": "record_array", "array of texts": "text_array"}
MEMBER_KINDS = {"numbers": "number_array", "records": "record_array", "texts": "text_array"}


def without_empty(row: dict[str, Any]) -> dict[str, Any]:
    return {key: value for key, value in row.items() if value not in ("", None)}


def field_row(message: Message, field: Field) -> dict[str, Any]:
    return without_empty({
        "name": field.name, "number": field.number, "kind": FIELD_KINDS.get(field.kind, field.kind),
        "bit": field.number - 1, "bits": field.bits or None, "of": field.of,
        "address": message.address_of(field), "count": field.count})


def message_row(message: Message) -> dict[str, Any]:
    """The names of the parameters, too: they differ between messages, and arguments are passed by name."""
    return {"c_type": message.c_type,
            "fields": [field_row(message, each) for each in message.fields],
            "functions": {end: [name for _, name in function.named_parameters()]
                          for end, function in message.functions.items()}}


def member_row(member: ApplicationMember) -> dict[str, Any]:
    """Sizes are in bytes, slots in elements."""
    has_size = member.kind in ("text", "bytes", "texts")
    *slots, size = member.declared.sizes if has_size else (*member.declared.sizes, None)
    is_number = member.kind in ("number", "numbers")
    return without_empty({
        "name": member.name, "kind": MEMBER_KINDS.get(member.kind, member.kind),
        "bits": int(member.declared.c_type.removeprefix("uint").removesuffix("_t")) if is_number else None,
        "of": member.declared.c_type if member.kind in ("record", "records") else "",
        "slots": slots[0] if slots else None, "size": size, "address": member.address, "count": member.count})


def result_text(constant: Constant) -> str:
    """Without success."""
    return plain_text(constant.comment).rstrip(".") if constant.value else ""


def json_tables(library: Library) -> dict[str, Any]:
    constants = {name: constant for header in library.headers for enum in header.enums
                 for name, constant in enum.constants.items()}
    return {
        "messages": {name: message_row(each) for name, each in library.messages.items()},
        "application_records": {c_type: {"members": [member_row(each) for each in members if not each.is_reserved]}
                                for c_type, members in library.records.items()},
        "adapters": {each.name: {"encode": each.sent, "decode": each.received} for each in library.adapters.values()},
        "results": {name: {"value": each.value, "text": result_text(each)}
                    for name, each in constants.items() if name.startswith("MAVA_TUM_") and each.value <= 0},
        "constants": {name: each.value for name, each in constants.items()},
    }
