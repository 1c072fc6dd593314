"""A dict to wire bytes, through the codec."""

from __future__ import annotations

from collections.abc import Mapping
from typing import Any

from .library import call_codec, encoded, ffi
from .schema import MESSAGES, Field, Message, find_message
from .shapes import as_list, as_record
from .values import CODEC_ORDER, from_bytes, from_text, to_number_or_address

Blocks = list[Any]  # what a record points to; it lives as long as this list


def encode(name: str, fields: Mapping[str, Any]) -> bytes:
    """Encodes one message. A key makes its field present, also with 0, "" or {}; an empty list has no form on the wire
    and is left out. IPv4 addresses may be numbers or texts.

    Raises UnknownNameError, FieldTypeError or FieldValueError, with the path of the field."""
    message = find_message(name)
    blocks: Blocks = []
    record = ffi.new(f"{message.c_type} *")
    fill_record(message, record, fields, message.name, blocks)
    arguments = {"record": record, "segments": ffi.NULL, "segment_count": ffi.NULL, "flags": 0}
    return encoded(lambda buffer, length: call_codec(
        message, "encode_ext", {**arguments, "buffer": buffer, "length": length}))


def fill_record(message: Message, record: Any, fields: Any, path: str, blocks: Blocks) -> None:
    for name, value in as_record(path, fields, message.fields).items():
        field = message.fields[name]
        WRITERS[field.kind](field, record, value, f"{path}.{name}", blocks)
        record.presence_mask |= 1 << field.bit


def write_number(field: Field, record: Any, value: Any, path: str, blocks: Blocks) -> None:
    setattr(record, field.name, to_number_or_address(path, value, field.bits, field.address, CODEC_ORDER))


def write_bytes(field: Field, record: Any, value: Any, path: str, blocks: Blocks) -> None:
    content = from_bytes(path, value)
    block = ffi.new("uint8_t[]", content)
    blocks.append(block)
    target = getattr(record, field.name)
    target.data, target.length = block, len(content)


def write_text(field: Field, record: Any, value: Any, path: str, blocks: Blocks) -> None:
    block = ffi.new("char[]", from_text(path, value))
    blocks.append(block)
    setattr(record, field.name, block)


def write_nested(field: Field, record: Any, value: Any, path: str, blocks: Blocks) -> None:
    fill_record(MESSAGES[field.of], getattr(record, field.name), value, path, blocks)


def write_record_array(field: Field, record: Any, value: Any, path: str, blocks: Blocks) -> None:
    values = as_list(path, value)
    element = MESSAGES[field.of]
    elements = ffi.new(f"{element.c_type}[]", len(values))
    blocks.append(elements)
    for index, each in enumerate(values):
        fill_record(element, elements[index], each, f"{path}[{index}]", blocks)
    setattr(record, field.name, elements)
    setattr(record, field.count, len(values))


def write_text_array(field: Field, record: Any, value: Any, path: str, blocks: Blocks) -> None:
    texts = [ffi.new("char[]", from_text(f"{path}[{index}]", each)) for index, each in enumerate(as_list(path, value))]
    elements = ffi.new("char *[]", texts)
    blocks += [*texts, elements]
    setattr(record, field.name, elements)
    setattr(record, field.count, len(texts))


WRITERS = {
    "varint": write_number,
    "fixed32": write_number,
    "bytes": write_bytes,
    "text": write_text,
    "record": write_nested,
    "record_array": write_record_array,
    "text_array": write_text_array,
}
