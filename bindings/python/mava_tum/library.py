"""The shared library, loaded once, and the calls into it.

The module `_declarations` has the declarations of the headers; nothing is compiled here. Loads the first of: the file
that the environment variable LIBMAVA_TUM names; the one in the folder of this package, as in a wheel; the one installed
in the same tree as this package; the one that the system's loader finds by its SONAME. The inspector's library, which
finds the place of a fault, is optional and searched in the same way (LIBMAVA_TUM_INSPECT)."""

from __future__ import annotations

import functools
import os
from collections.abc import Callable, Mapping
from pathlib import Path
from typing import Any

from ._declarations import ffi
from ._location import INSPECT_SONAME, LIBRARIES_FROM_PACKAGE, SONAME
from .errors import LibraryError
from .schema import Message

__all__ = ["call_codec", "encoded", "ffi", "inspect_library", "library", "load"]


def _file_to_load(variable: str, soname: str) -> str:
    chosen = os.environ.get(variable)
    if chosen:
        return chosen
    package = Path(__file__).parent
    for path in (package / soname, package / LIBRARIES_FROM_PACKAGE / soname):
        if path.exists():
            return str(path.resolve())
    return soname


def load() -> Any:
    """The library's functions and constants as attributes."""
    name = _file_to_load("LIBMAVA_TUM", SONAME)
    try:
        return ffi.dlopen(name)
    except OSError as error:
        raise LibraryError(f"{name} cannot be loaded ({error}); install libmava-tum1, or let LIBMAVA_TUM name "
                           "the file") from error


@functools.lru_cache(maxsize=None)
def inspect_library() -> Any | None:
    """The functions of the inspector's library; None if it is not installed."""
    try:
        return ffi.dlopen(_file_to_load("LIBMAVA_TUM_INSPECT", INSPECT_SONAME))
    except OSError:
        return None


library = load()


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
