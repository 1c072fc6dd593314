"""Wire bytes to a dict, through the codec."""

from __future__ import annotations

from typing import Any

from .errors import DecodeError
from .library import call_codec, ffi, inspect_library, library
from .memory import DEFAULT_LIMIT, Blocks, LimitReached
from .schema import MESSAGES, RESULTS, Field, Message, find_message
from .values import CODEC_ORDER, to_dotted, to_text, wire_bytes


def decode(name: str, data: bytes | bytearray | memoryview, *, dotted: bool = False,
           memory_limit: int | None = DEFAULT_LIMIT) -> dict[str, Any]:
    """Decodes one message. Absent fields are not in the result.

    `dotted` returns IPv4 addresses as texts. `memory_limit` is the limit in bytes for the memory of the codec and the
    result together: 64 MiB if not given, None for no limit. Raises DecodeError."""
    message = find_message(name)
    record = ffi.new(f"{message.c_type} *")
    # A copy, unless it is bytes: the input must not change during the decode.
    content = wire_bytes("data", data)
    with Blocks(memory_limit) as blocks, ffi.from_buffer("uint8_t[]", content) as buffer:
        # With the alias bit: bytes fields need no block, and the input stays until they have been read.
        arguments = {"record": record, "data": buffer, "length": len(buffer), "flags": library.MAVA_TUM_ALIAS,
                     **blocks.arguments()}
        result = call_codec(message, "decode_ext", arguments)
        try:
            fields = read_record(message, record, dotted, blocks)
        except LimitReached:
            fields, result = {}, library.MAVA_TUM_NO_MEMORY
        finally:
            call_codec(message, "free_ext", arguments)
        if result != library.MAVA_TUM_OK:
            raise _decode_error(message, result, fields, blocks, content)
    return fields


def _place_of_fault(message: Message, result: int, content: bytes) -> tuple[str | None, int | None]:
    """The field and the byte of the fault, from the inspector's library."""
    inspect = inspect_library()
    if inspect is None:
        return None, None
    verdict = ffi.new("mava_tum_inspect_verdict *")
    inspect.mava_tum_inspect_judge(message.name.encode(), ffi.from_buffer("uint8_t[]", content), len(content), verdict)
    if verdict.result != result:  # the message is well formed: an allocation failed
        return None, None
    return ffi.string(verdict.path).decode(), verdict.offset


def _decode_error(message: Message, result: int, partial: dict[str, Any], blocks: Blocks,
                  content: bytes) -> DecodeError:
    name, text = RESULTS[result]
    if blocks.refused:
        text = "decoding takes more memory than " + (
            "this machine has" if blocks.limit is None else f"memory_limit = {blocks.limit} bytes; pass a larger "
            "limit, or None for no limit, if you trust the sender")
    return DecodeError(message.name, result, name, text, partial, *_place_of_fault(message, result, content))


def read_record(message: Message, record: Any, dotted: bool, blocks: Blocks) -> dict[str, Any]:
    """The fields whose presence bits are set."""
    mask = record.presence_mask
    fields = {field.name: READERS[field.kind](field, record, dotted, blocks)
              for field in message.fields.values() if mask >> field.bit & 1}
    blocks.count_record(fields)
    return fields


def read_number(field: Field, record: Any, dotted: bool, blocks: Blocks) -> int | str:
    number: int = getattr(record, field.name)
    return to_dotted(number, CODEC_ORDER) if dotted and field.address else number


def read_bytes(field: Field, record: Any, dotted: bool, blocks: Blocks) -> bytes:
    value = getattr(record, field.name)
    return bytes(ffi.buffer(value.data, value.length))


def read_text(field: Field, record: Any, dotted: bool, blocks: Blocks) -> str:
    return to_text(ffi.string(getattr(record, field.name)))


def read_nested(field: Field, record: Any, dotted: bool, blocks: Blocks) -> dict[str, Any]:
    return read_record(MESSAGES[field.of], getattr(record, field.name), dotted, blocks)


def read_record_array(field: Field, record: Any, dotted: bool, blocks: Blocks) -> list[dict[str, Any]]:
    elements, count = getattr(record, field.name), getattr(record, field.count)
    element = MESSAGES[field.of]
    return [read_record(element, elements[index], dotted, blocks) for index in range(count)]


def read_text_array(field: Field, record: Any, dotted: bool, blocks: Blocks) -> list[str]:
    elements, count = getattr(record, field.name), getattr(record, field.count)
    return [to_text(ffi.string(elements[index])) for index in range(count)]


READERS = {
    "varint": read_number,
    "fixed32": read_number,
    "bytes": read_bytes,
    "text": read_text,
    "record": read_nested,
    "record_array": read_record_array,
    "text_array": read_text_array,
}
