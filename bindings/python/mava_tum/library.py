"""The shared library, loaded once, and the calls into it.

The module `_declarations` has the declarations of the headers; nothing is compiled here. Loads the first of: the file
that the environment variable LIBMAVA_TUM names; the one in the folder of this package, as in a wheel; the one installed
in the same tree as this package; the one that the system's loader finds by its SONAME. The inspector's library, which
finds the place of a fault, is optional and searched in the same way (LIBMAVA_TUM_INSPECT)."""

from __future__ import annotations

import functools
import os
from collections.abc import Callable
from pathlib import Path
from typing import Any

from ._declarations import ffi
from ._location import INSPECT_SONAME, LIBRARIES_FROM_PACKAGE, SONAME
from .errors import LibraryError

__all__ = ["encoded", "ffi", "inspect_library", "library", "load"]


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

FIRST_BUFFER_BYTES = 64 << 10
_BUFFER = ffi.typeof("uint8_t[]")
_new_buffer = ffi.new_allocator(should_clear_after_alloc=False)


def encoded(encode: Callable[[Any, int], int]) -> bytes:
    """The output of an encode function. Nearly all messages fit the first buffer."""
    capacity = FIRST_BUFFER_BYTES
    while True:
        buffer = _new_buffer(_BUFFER, capacity)
        size = encode(buffer, capacity)
        if size <= capacity:
            output: bytes = ffi.buffer(buffer, size)[:]
            return output
        capacity = size
