"""Single values between Python and C: numbers, addresses, texts, bytes. An error names the path of the field."""

from __future__ import annotations

import ipaddress
import operator
from collections.abc import Mapping
from typing import Any, Literal

from .errors import FieldTypeError, FieldValueError

ByteOrder = Literal["little", "big"]

# The codec stores an address so that its bytes on the wire are in network order; the application stores it as a number.
CODEC_ORDER: ByteOrder = "little"
APPLICATION_ORDER: ByteOrder = "big"

IPV4_BYTES = 4


def to_dotted(number: int, order: ByteOrder) -> str:
    return str(ipaddress.IPv4Address(number.to_bytes(IPV4_BYTES, order)))


def from_dotted(path: str, text: str, order: ByteOrder) -> int:
    try:
        return int.from_bytes(ipaddress.IPv4Address(text).packed, order)
    except ValueError:
        raise FieldValueError(f"{path}: {text!r} is no IPv4 address") from None


def to_number(path: str, value: Any, bits: int) -> int:
    """An unsigned integer of `bits` bits. Rejects bool, which is an int in Python."""
    if isinstance(value, bool):
        raise FieldTypeError(f"{path}: takes a number, not bool")
    try:
        number = operator.index(value)
    except TypeError:
        raise FieldTypeError(f"{path}: takes a number, not {type(value).__name__}") from None
    if not 0 <= number < 1 << bits:
        raise FieldValueError(f"{path}: {number} is outside of 0 to {(1 << bits) - 1}")
    return number


def to_number_or_address(path: str, value: Any, bits: int, address: str, order: ByteOrder) -> int:
    if address == "ipv4" and isinstance(value, (str, ipaddress.IPv4Address)):
        return from_dotted(path, str(value), order)
    return to_number(path, value, bits)


def to_text(raw: bytes) -> str:
    """A text. Bytes that are not UTF-8 stay unchanged when it is encoded again."""
    return raw.decode("utf-8", "surrogateescape")


def tagged_bytes(path: str, value: Any) -> bytes | None:
    """The bytes of {"hex": "..."} or {"text": "..."}, the JSON forms for bytes that are text and texts that are not
    UTF-8."""
    if not isinstance(value, Mapping) or len(value) != 1:
        return None
    (tag, content), = value.items()
    if tag not in ("hex", "text") or not isinstance(content, str):
        return None
    return from_hex(f"{path}.hex", content) if tag == "hex" else content.encode("utf-8", "surrogateescape")


def from_hex(path: str, digits: str) -> bytes:
    try:
        return bytes.fromhex(digits)
    except ValueError:
        raise FieldValueError(f"{path}: {digits!r} is neither hex digits nor an IPv6 address") from None


def from_hex_or_address(path: str, text: str) -> bytes:
    if ":" not in text:
        return from_hex(path, text)
    try:
        return ipaddress.IPv6Address(text).packed
    except ValueError:
        raise FieldValueError(f"{path}: {text!r} is no IPv6 address") from None


def from_text(path: str, value: Any) -> bytes:
    tagged = tagged_bytes(path, value)
    if tagged is not None:
        value = to_text(tagged)
    if not isinstance(value, str):
        raise FieldTypeError(f"{path}: takes str, not {type(value).__name__}")
    if "\0" in value:
        raise FieldValueError(f"{path}: a text ends at its first NUL, and this one has a NUL inside")
    try:
        return value.encode("utf-8", "surrogateescape")
    except UnicodeEncodeError as error:
        raise FieldValueError(f"{path}: {error}") from None


def from_bytes(path: str, value: Any) -> bytes:
    """The content of a bytes field: bytes, an IPv6 address, or their JSON forms."""
    if isinstance(value, ipaddress.IPv6Address):
        return value.packed
    if isinstance(value, str):
        return from_hex_or_address(path, value)
    tagged = tagged_bytes(path, value)
    return wire_bytes(path, value) if tagged is None else tagged


def wire_bytes(path: str, value: Any) -> bytes:
    if not isinstance(value, (bytes, bytearray, memoryview)):
        raise FieldTypeError(f"{path}: takes bytes, not {type(value).__name__}")
    return bytes(value)
