"""Wire bytes to a dict, through an adapter: the record as an application sees it."""

from __future__ import annotations

from typing import Any

from .library import ffi, library
from .schema import APPLICATION_RECORDS, Member, find_adapter
from .values import APPLICATION_ORDER, to_dotted, to_number, to_text, wire_bytes

LENGTH_BITS = 32  # of the adapters' length parameter


def app_decode(name: str, data: bytes | bytearray | memoryview, *, dotted: bool = False) -> dict[str, Any]:
    """Decodes one message into the application's record, which has no presence: every member is in the result, zero or
    empty if its field is absent. A list has as many elements as its count member. `dotted` returns IPv4 addresses as
    texts.

    An adapter reports nothing: of a malformed message, the part before the fault arrives. If you need the result, use
    `decode`."""
    adapter = find_adapter(name)
    content = wire_bytes("data", data)
    record = ffi.new(f"{adapter.decode} *")
    length = to_number("length of data", len(content), LENGTH_BITS)
    getattr(library, f"tum_nal_data_gpb_decode_tum_{name}")(ffi.from_buffer("uint8_t[]", content), length, record)
    return read_record(adapter.decode, record, dotted)


def read_record(c_type: str, record: Any, dotted: bool) -> dict[str, Any]:
    return {member.name: READERS[member.kind](member, record, dotted)
            for member in APPLICATION_RECORDS[c_type].values()}


def read_number(member: Member, record: Any, dotted: bool) -> int | str:
    number: int = getattr(record, member.name)
    return to_dotted(number, APPLICATION_ORDER) if dotted and member.address else number


def read_number_array(member: Member, record: Any, dotted: bool) -> list[int]:
    return list(getattr(record, member.name))


def read_bytes(member: Member, record: Any, dotted: bool) -> bytes:
    return bytes(ffi.buffer(getattr(record, member.name)))


def read_text(member: Member, record: Any, dotted: bool) -> str:
    return to_text(ffi.string(getattr(record, member.name)))


def read_nested(member: Member, record: Any, dotted: bool) -> dict[str, Any]:
    return read_record(member.of, getattr(record, member.name), dotted)


def used_slots(member: Member, record: Any) -> range:
    return range(min(getattr(record, member.count), member.slots))


def read_record_array(member: Member, record: Any, dotted: bool) -> list[dict[str, Any]]:
    elements = getattr(record, member.name)
    return [read_record(member.of, elements[index], dotted) for index in used_slots(member, record)]


def read_text_array(member: Member, record: Any, dotted: bool) -> list[str]:
    elements = getattr(record, member.name)
    return [to_text(ffi.string(elements[index])) for index in used_slots(member, record)]


READERS = {
    "number": read_number,
    "number_array": read_number_array,
    "bytes": read_bytes,
    "text": read_text,
    "text_array": read_text_array,
    "record": read_nested,
    "record_array": read_record_array,
}
