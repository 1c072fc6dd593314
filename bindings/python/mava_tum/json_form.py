"""Dictionaries in the JSON form of the command mava-tum."""

from __future__ import annotations

import socket
from collections.abc import Mapping
from typing import Any

from .schema import APPLICATION_RECORDS, MESSAGES, Field, Member, find_adapter, find_message
from .values import APPLICATION_ORDER, CODEC_ORDER, ByteOrder, to_dotted

IPV6_BYTES = 16


def to_json(name: str, fields: Mapping[str, Any]) -> dict[str, Any]:
    """Converts the result of `decode` to values that `json.dumps` accepts: bytes in hex, addresses as texts. `encode`
    accepts it."""
    return _record(find_message(name).fields, fields, CODEC_ORDER)


def app_to_json(name: str, record: Mapping[str, Any]) -> dict[str, Any]:
    """The same for the result of `app_decode`. `app_encode` accepts it."""
    return _record(APPLICATION_RECORDS[find_adapter(name).decode], record, APPLICATION_ORDER)


def _record(rows: Mapping[str, Field] | Mapping[str, Member], record: Mapping[str, Any],
            order: ByteOrder) -> dict[str, Any]:
    counts = {row.count for row in rows.values() if isinstance(row, Member)}  # lists bring them
    return {name: _value(rows[name], value, order) for name, value in record.items() if name not in counts}


def _value(row: Field | Member, value: Any, order: ByteOrder) -> Any:
    if row.of:
        rows = MESSAGES[row.of].fields if row.of in MESSAGES else APPLICATION_RECORDS[row.of]
        is_array = isinstance(value, (list, tuple))
        return [_record(rows, each, order) for each in value] if is_array else _record(rows, value, order)
    if isinstance(value, (list, tuple)):
        return [_value(row, each, order) for each in value]
    if isinstance(value, (bytes, bytearray, memoryview)):
        return _bytes_text(bytes(value), row.address == "ipv6")
    if isinstance(value, str):
        return _text(value)
    return to_dotted(value, order) if row.address == "ipv4" and isinstance(value, int) else value


def _bytes_text(value: bytes, is_address: bool) -> str:
    # The C library writes the IPv4 part of some addresses with dots, as the command does.
    return socket.inet_ntop(socket.AF_INET6, value) if is_address and len(value) == IPV6_BYTES else value.hex()


def _text(value: str) -> str | dict[str, str]:
    """The text; as bytes in hex if it is not UTF-8, which JSON cannot represent."""
    content = value.encode("utf-8", "surrogateescape")
    try:
        content.decode("utf-8")
    except UnicodeDecodeError:
        return {"hex": content.hex()}
    return value
