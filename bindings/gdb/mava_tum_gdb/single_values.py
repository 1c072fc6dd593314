"""Numbers, addresses, texts and bytes in readable form. If memory cannot be read, the message takes the place of the
value."""

from __future__ import annotations

import ipaddress

import gdb

IPV4_BYTES = 4
IPV6_BYTES = 16


def shown_elements() -> int:
    """The user's limit of elements."""
    limit: int | None = gdb.parameter("print elements")
    return limit if limit else 1 << 32


def plain_number(value: gdb.Value) -> gdb.Value:
    """An 8-bit number as a number, not as a character."""
    return value.cast(gdb.lookup_type("unsigned int")) if value.type.sizeof == 1 else value


def ipv4_text(number: gdb.Value, byte_order: str) -> str:
    """The codec stores an address as on the wire ("little"), the application as a number ("big")."""
    return str(ipaddress.IPv4Address(int(number).to_bytes(IPV4_BYTES, byte_order)))


def ipv6_text(content: bytes) -> str:
    return str(ipaddress.IPv6Address(content))


def hex_text(content: bytes, length: int) -> str:
    """`content` is `length` bytes, or the first of them."""
    text = f"{length} bytes" if length != 1 else "1 byte"
    if length:
        text += ": " + content.hex(" ") + ("..." if len(content) < length else "")
    return text


def array_bytes(value: gdb.Value) -> bytes:
    """The elements of an array of characters or bytes."""
    first, last = value.type.range()
    return bytes(int(value[index]) & 0xFF for index in range(first, last + 1))


def array_text(value: gdb.Value) -> tuple[str | gdb.Value, bool]:
    """The text in an array, as a value that gdb quotes, and whether it ends with a NUL."""
    content = array_bytes(value)
    text = content.split(b"\0")[0]
    if not text:
        return '""', True
    return gdb.Value(text, value.type.target().array(0, len(text) - 1)), len(text) < len(content)


def pointed_text(pointer: gdb.Value) -> str | gdb.LazyString:
    """The text at a pointer, without the pointer's value."""
    return "null" if not int(pointer) else pointer.lazy_string()


def read_or_say_why(value: gdb.Value) -> gdb.Value | str:
    """The value, or the error message if its memory cannot be read."""
    try:
        value.fetch_lazy()
    except gdb.error as error:
        return f"<{error}>"
    return value


class BytesPrinter:
    """Prints bytes, given by a pointer and a length such as those of mava_tum_bytes: in hex, and 16 bytes also as an IPv6
    address."""

    def __init__(self, value: gdb.Value, data: str = "data", length: str = "length") -> None:
        self.data = value[data]
        self.length = value[length]

    def to_string(self) -> str:
        length = int(self.length)
        try:
            content = self.beginning(min(length, shown_elements()))
        except gdb.error as error:
            return f"{length} bytes: <{error}>"
        address = f" ({ipv6_text(content)})" if len(content) == length == IPV6_BYTES else ""
        return hex_text(content, length) + address

    def beginning(self, length: int) -> bytes:
        if not length:
            return b""
        return bytes(gdb.selected_inferior().read_memory(int(self.data), length))
