"""Wire bytes to a dict, through an adapter: the record as an application sees it."""

from __future__ import annotations

from collections.abc import Iterator, Mapping
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
    c_type, record = _decode(name, data)
    return read_record(c_type, record, dotted)


def app_view(name: str, data: bytes | bytearray | memoryview, *, dotted: bool = False) -> RecordView:
    """The same, for those who read a few members: each is converted when it is read."""
    c_type, record = _decode(name, data)
    return RecordView(c_type, record, dotted, record)


class RecordView(Mapping[str, Any]):
    """A decoded record as a mapping that cannot be changed. Nested records are such mappings, too."""

    __slots__ = ("_members", "_record", "_dotted", "_owner")

    def __init__(self, c_type: str, record: Any, dotted: bool, owner: Any) -> None:
        self._members = APPLICATION_RECORDS[c_type]
        self._record = record
        self._dotted = dotted
        self._owner = owner  # whose memory `record` is in

    def __getitem__(self, name: str) -> Any:
        member = self._members[name]
        if member.kind == "record":
            return RecordView(member.of, getattr(self._record, name), self._dotted, self._owner)
        if member.kind == "record_array":
            elements = getattr(self._record, name)
            return [RecordView(member.of, elements[index], self._dotted, self._owner)
                    for index in used_slots(member, self._record)]
        return READERS[member.kind](member, self._record, self._dotted)

    def __iter__(self) -> Iterator[str]:
        return iter(self._members)

    def __len__(self) -> int:
        return len(self._members)

    def __repr__(self) -> str:
        return f"RecordView({dict(self)})"


def _decode(name: str, data: bytes | bytearray | memoryview) -> tuple[str, Any]:
    """The C type of the record, and the record."""
    c_type = find_adapter(name).decode
    content = wire_bytes("data", data)
    record = ffi.new(f"{c_type} *")
    length = to_number("length of data", len(content), LENGTH_BITS)
    getattr(library, f"tum_nal_data_gpb_decode_tum_{name}")(ffi.from_buffer("uint8_t[]", content), length, record)
    return c_type, record


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
