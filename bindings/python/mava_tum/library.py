"""The shared library, loaded once.

The module `_declarations` has the declarations of the headers; nothing is compiled here. Loads the first of: the file
that the environment variable LIBMAVA_TUM names; the one in the folder of this package, as in a wheel; the one installed
in the same tree as this package; the one that the system's loader finds by its SONAME. The inspector's library, which
finds the place of a fault, is optional and searched in the same way (LIBMAVA_TUM_INSPECT)."""

from __future__ import annotations

import functools
import os
from pathlib import Path
from typing import Any

from ._declarations import ffi
from ._location import INSPECT_SONAME, LIBRARIES_FROM_PACKAGE, SONAME
from .errors import LibraryError

__all__ = ["ffi", "inspect_library", "library", "load"]


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
