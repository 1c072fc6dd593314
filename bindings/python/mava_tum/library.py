"""The shared library, loaded once.

The module `_declarations` holds what the headers declare; nothing is compiled here. Which file is loaded: the one that
the environment variable LIBMAVA_TUM names; the one installed in the same tree as this package; the one that the
system's loader finds by its SONAME."""

from __future__ import annotations

import os
from pathlib import Path
from typing import Any

from ._declarations import ffi
from ._location import LIBRARY_FROM_PACKAGE, SONAME
from .errors import LibraryError

__all__ = ["ffi", "library", "load"]


def _file_to_load() -> str:
    chosen = os.environ.get("LIBMAVA_TUM")
    if chosen:
        return chosen
    same_tree = Path(__file__).parent / LIBRARY_FROM_PACKAGE
    return str(same_tree.resolve()) if same_tree.exists() else SONAME


def load() -> Any:
    """The library's functions and constants as attributes."""
    name = _file_to_load()
    try:
        return ffi.dlopen(name)
    except OSError as error:
        raise LibraryError(f"{name} cannot be loaded ({error}); install libmava-tum1, or let LIBMAVA_TUM name "
                           "the file") from error


library = load()
