"""A dict to wire bytes, through an adapter: the record as an application fills it."""

from __future__ import annotations

from collections.abc import Mapping, Sequence
from typing import Any

from .errors import FieldValueError
from .library import encoded, ffi, library
from .schema import APPLICATION_RECORDS, Member, find_adapter
from .shapes import as_list, as_record
from .values import APPLICATION_ORDER, from_bytes, from_text, to_number, to_number_or_address


def app_encode(name: str, fields: Mapping[str, Any]) -> bytes:
    """Encodes the application's record: missing members are zero. A list sets its count member, unless that is present,
    too. The adapter decides which members are sent; IPv4 addresses may be texts.

    Raises UnknownNameError, FieldTypeError or FieldValueError, with the path of the member."""
    adapter = find_adapter(name)
    record = ffi.new(f"{adapter.encode} *")
    fill_record(adapter.encode, record, fields, name)
    encode = getattr(library, f"tum_nal_data_gpb_encode_tum_{name}")
    return encoded(lambda buffer, capacity: encode(record, buffer, capacity))


def fill_record(c_type: str, record: Any, fields: Any, path: str) -> None:
    members = APPLICATION_RECORDS[c_type]
    given = as_record(path, fields, members)
    for name, value in given.items():
        member = members[name]
        WRITERS[member.kind](member, record, value, f"{path}.{name}")
        if member.count and member.count not in given:
            setattr(record, member.count, len(value))


def check_room(path: str, what: str, needed: int, room: int) -> None:
    if needed > room:
        raise FieldValueError(f"{path}: {needed} {what} where {room} fit")


def list_within(member: Member, value: Any, path: str) -> Sequence[Any]:
    values = as_list(path, value)
    check_room(path, "elements", len(values), member.slots)
    return values


def text_within(member: Member, value: Any, path: str) -> bytes:
    content = from_text(path, value)
    check_room(path, "bytes", len(content), member.size - 1)  # one is for the NUL
    return content


def write_number(member: Member, record: Any, value: Any, path: str) -> None:
    setattr(record, member.name, to_number_or_address(path, value, member.bits, member.address, APPLICATION_ORDER))


def write_number_array(member: Member, record: Any, value: Any, path: str) -> None:
    elements = getattr(record, member.name)
    for index, each in enumerate(list_within(member, value, path)):
        elements[index] = to_number(f"{path}[{index}]", each, member.bits)


def write_bytes(member: Member, record: Any, value: Any, path: str) -> None:
    content = from_bytes(path, value)
    check_room(path, "bytes", len(content), member.size)
    ffi.memmove(getattr(record, member.name), content, len(content))


def write_text(member: Member, record: Any, value: Any, path: str) -> None:
    content = text_within(member, value, path)
    ffi.memmove(getattr(record, member.name), content, len(content))


def write_text_array(member: Member, record: Any, value: Any, path: str) -> None:
    elements = getattr(record, member.name)
    for index, each in enumerate(list_within(member, value, path)):
        content = text_within(member, each, f"{path}[{index}]")
        ffi.memmove(elements[index], content, len(content))


def write_nested(member: Member, record: Any, value: Any, path: str) -> None:
    fill_record(member.of, getattr(record, member.name), value, path)


def write_record_array(member: Member, record: Any, value: Any, path: str) -> None:
    elements = getattr(record, member.name)
    for index, each in enumerate(list_within(member, value, path)):
        fill_record(member.of, elements[index], each, f"{path}[{index}]")


WRITERS = {
    "number": write_number,
    "number_array": write_number_array,
    "bytes": write_bytes,
    "text": write_text,
    "text_array": write_text_array,
    "record": write_nested,
    "record_array": write_record_array,
}
