"""Wire bytes to a dict, through the codec."""

from __future__ import annotations

import functools
from typing import Any

from .errors import DecodeError
from .library import ffi, inspect_library, library
from .memory import ALLOC_FN, DEFAULT_LIMIT, Blocks, LimitReached
from .schema import MESSAGES, RESULTS, Message, find_message
from .values import CODEC_ORDER, to_dotted, to_text, wire_bytes


def decode(name: str, data: bytes | bytearray | memoryview, *, dotted: bool = False,
           memory_limit: int | None = DEFAULT_LIMIT) -> dict[str, Any]:
    """Decodes one message. Absent fields are not in the result.

    `dotted` returns IPv4 addresses as texts. `memory_limit` is the limit in bytes for the memory of the codec and the
    result together: 64 MiB if not given, None for no limit. Raises DecodeError."""
    message = find_message(name)
    # A copy, unless it is bytes: the input must not change during the decode.
    content = wire_bytes("data", data)
    with Blocks(memory_limit) as blocks:
        record, result = decode_record(message, content, blocks)
        try:
            fields = readers()[f"read_{name}"](record, dotted, blocks)
        except LimitReached:
            fields, result = {}, library.MAVA_TUM_NO_MEMORY
        if result != library.MAVA_TUM_OK:
            raise _decode_error(message, result, fields, blocks, content)
    return fields


def decode_record(message: Message, content: bytes, blocks: Blocks) -> tuple[Any, int]:
    """The record, which refers to `content` and `blocks`, and the result."""
    record = ffi.new(_POINTERS[message.name])
    # With the alias bit: bytes fields need no block. The record needs no call of the free function.
    arguments = (ffi.from_buffer(content), len(content), ALLOC_FN, blocks.handle, library.MAVA_TUM_ALIAS)
    function, parameter_count = _FUNCTIONS[message.name]
    return record, function(record, *arguments[:parameter_count])


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


# ---- a function for each message: record, dotted, blocks -> the fields whose presence bits are set ----

# Of each kind of field, the value in Python. A function that asks a table for each field takes twice as long.
_VALUES = {
    "varint": "record.{name}",
    "fixed32": "record.{name}",
    "ipv4": "to_dotted(record.{name}, CODEC_ORDER) if dotted else record.{name}",
    "bytes": "to_bytes(record.{name})",
    "text": "string(record.{name}).decode('utf-8', 'surrogateescape')",
    "record": "read_{of}(record.{name}, dotted, blocks)",
    "record_array": "[read_{of}(each, dotted, blocks) for each in record.{name}[0:record.{count}]]",
    "text_array": "[to_text(string(each)) for each in record.{name}[0:record.{count}]]",
}


def _write_reader(message: Message) -> str:
    lines = [f"def read_{message.name}(record, dotted, blocks):", "mask = record.presence_mask", "fields = {}"]
    for field in message.fields.values():
        kind = field.address if field.address in _VALUES else field.kind
        lines.append(f"if mask & {1 << field.bit}: fields['{field.name}'] = {_VALUES[kind].format(**vars(field))}")
    return "\n    ".join([*lines, "blocks.count_record(len(fields))", "return fields\n"])


def _to_bytes(value: Any) -> bytes:
    content: bytes = ffi.buffer(value.data, value.length)[:]
    return content


@functools.lru_cache(maxsize=None)
def readers() -> dict[str, Any]:
    """By the names "read_<message>"."""
    functions = {"CODEC_ORDER": CODEC_ORDER, "string": ffi.string, "to_bytes": _to_bytes, "to_dotted": to_dotted,
                 "to_text": to_text}
    exec("\n".join(map(_write_reader, MESSAGES.values())), functions)
    return functions


_POINTERS = {name: ffi.typeof(f"{message.c_type} *") for name, message in MESSAGES.items()}
# With the number of arguments behind the record: the parameters of all begin in the same way.
_FUNCTIONS = {name: (getattr(library, f"{message.c_type}_decode_ext"), len(message.functions["decode_ext"]) - 1)
              for name, message in MESSAGES.items()}
