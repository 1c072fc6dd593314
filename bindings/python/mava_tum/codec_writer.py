"""A dict to wire bytes, through the codec."""

from __future__ import annotations

from collections.abc import Mapping
from typing import Any

from .library import encoded, ffi, library
from .schema import MESSAGES, Field, find_message, unknown_name
from .shapes import as_list, as_record
from .values import CODEC_ORDER, from_bytes, from_text, to_number_or_address

Blocks = list[Any]  # what a record points to; it lives as long as this list


def encode(name: str, fields: Mapping[str, Any]) -> bytes:
    """Encodes one message. A key makes its field present, also with 0, "" or {}; an empty list has no form on the wire
    and is left out. IPv4 addresses may be numbers or texts.

    Raises UnknownNameError, FieldTypeError or FieldValueError, with the path of the field."""
    find_message(name)
    blocks: Blocks = []
    pointer, function, more = _FUNCTIONS[name]
    record = ffi.new(pointer)
    fill_record(name, record, fields, name, blocks)
    return encoded(lambda buffer, length: function(record, buffer, length, *more))


def fill_record(message: str, record: Any, fields: Any, path: str, blocks: Blocks) -> None:
    rows = _ROWS[message]
    if type(fields) is not dict:
        as_record(path, fields, rows)  # another mapping passes
    mask = 0
    for name, value in fields.items():
        row = rows.get(name)
        if row is None:
            raise unknown_name(f"{path} has no field", name, rows)
        bit, limit, field, write = row
        mask |= bit
        # The most frequent values are recognised by their type; the functions of `values` accept or refuse all others.
        if type(value) is int and 0 <= value < limit:
            setattr(record, name, value)
        else:
            write(field, record, value, path, blocks)
    record.presence_mask = mask


def _write_number(field: Field, record: Any, value: Any, path: str, blocks: Blocks) -> None:
    setattr(record, field.name,
            to_number_or_address(f"{path}.{field.name}", value, field.bits, field.address, CODEC_ORDER))


def _write_bytes(field: Field, record: Any, value: Any, path: str, blocks: Blocks) -> None:
    content = value if type(value) is bytes else from_bytes(f"{path}.{field.name}", value)
    block = ffi.from_buffer(_OCTETS, content)
    blocks.append(block)
    target = getattr(record, field.name)
    target.data, target.length = block, len(content)


def _text_block(content: bytes, blocks: Blocks) -> Any:
    block = ffi.from_buffer(_CHARACTERS, content + b"\0")
    blocks.append(block)
    return block


def _write_text(field: Field, record: Any, value: Any, path: str, blocks: Blocks) -> None:
    is_plain = type(value) is str and value.isascii() and "\0" not in value
    content = value.encode() if is_plain else from_text(f"{path}.{field.name}", value)
    setattr(record, field.name, _text_block(content, blocks))


def _write_nested(field: Field, record: Any, value: Any, path: str, blocks: Blocks) -> None:
    fill_record(field.of, getattr(record, field.name), value, f"{path}.{field.name}", blocks)


def _write_record_array(field: Field, record: Any, value: Any, path: str, blocks: Blocks) -> None:
    path = f"{path}.{field.name}"
    values = as_list(path, value)
    elements = ffi.new(_ARRAYS[field.of], len(values))
    blocks.append(elements)
    for index, each in enumerate(values):
        fill_record(field.of, elements[index], each, f"{path}[{index}]", blocks)
    setattr(record, field.name, elements)
    setattr(record, field.count, len(values))


def _write_text_array(field: Field, record: Any, value: Any, path: str, blocks: Blocks) -> None:
    path = f"{path}.{field.name}"
    texts = [_text_block(from_text(f"{path}[{index}]", each), blocks) for index, each in enumerate(as_list(path, value))]
    elements = ffi.new("char *[]", texts)
    blocks.append(elements)
    setattr(record, field.name, elements)
    setattr(record, field.count, len(texts))


_WRITERS = {
    "varint": _write_number,
    "fixed32": _write_number,
    "bytes": _write_bytes,
    "text": _write_text,
    "record": _write_nested,
    "record_array": _write_record_array,
    "text_array": _write_text_array,
}
_CHARACTERS = ffi.typeof("char[]")
_OCTETS = ffi.typeof("uint8_t[]")
_ARRAYS = {name: ffi.typeof(f"{message.c_type}[]") for name, message in MESSAGES.items()}
# With the limit of a number's values; of others, 0.
_ROWS = {name: {field.name: (1 << field.bit, 1 << field.bits if field.bits else 0, field, _WRITERS[field.kind])
                for field in message.fields.values()}
         for name, message in MESSAGES.items()}
# With the arguments behind the buffer: segments and their number, and for some messages the flags.
_FUNCTIONS = {name: (ffi.typeof(f"{message.c_type} *"), getattr(library, f"{message.c_type}_encode_ext"),
                     (ffi.NULL, ffi.NULL, 0)[:len(message.functions["encode_ext"]) - 3])
              for name, message in MESSAGES.items()}
