"""The calls into the library."""

from __future__ import annotations

from collections.abc import Callable, Mapping
from typing import Any

from .library import ffi, library
from .schema import Message


def call_codec(message: Message, function: str, arguments: Mapping[str, Any]) -> Any:
    """Calls one of the four functions of a message. Their parameters differ between messages: arguments are passed by
    name, and those without a parameter are left out."""
    parameters = message.functions[function]
    return getattr(library, f"{message.c_type}_{function}")(*[arguments[each] for each in parameters])


def encoded(encode: Callable[[Any, int], Any]) -> bytes:
    """The output of an encode function: a size request first, then the encode."""
    size = encode(ffi.NULL, 0)
    buffer = ffi.new("uint8_t[]", size)
    encode(buffer, size)
    return bytes(ffi.buffer(buffer, size))
