"""The exceptions of this package. Each is an `Error`; the second base is the corresponding built-in exception."""

from __future__ import annotations

import copyreg
from typing import Any


class Error(Exception):
    """The base of all errors of this package. They can be pickled and copied."""

    def __reduce__(self) -> tuple[Any, ...]:
        # For pickling and copying, Exception calls the class with `args`, which has the text only; constructors with
        # more parameters would fail.
        return copyreg.__newobj__, (type(self), *self.args), self.__dict__


class LibraryError(Error, ImportError):
    """The shared library cannot be loaded."""

    __reduce__ = ImportError.__reduce__  # an ImportError has its text also outside of `__dict__`


class UnknownNameError(Error, LookupError):
    """There is no message, adapter or field of this name. `nearest` has similar names."""

    def __init__(self, text: str, nearest: tuple[str, ...]) -> None:
        super().__init__(text + (f"; nearest: {', '.join(nearest)}" if nearest else ""))
        self.nearest = nearest


class FieldTypeError(Error, TypeError):
    """A value has the wrong type for its field. The text begins with the path of the field."""


class FieldValueError(Error, ValueError):
    """A value is outside the range of its field. The text begins with the path of the field."""


class DecodeError(Error, ValueError):
    """The bytes do not decode.

    `result` is the library's result code, `result_name` its name, `partial` the fields that were decoded before the
    fault. `path` is the field with the fault ("qos[2].field_3", "#3" of an unknown field) and `offset` the byte where
    the fault begins; both are None without the inspector's library, or if an allocation failed."""

    def __init__(self, message: str, result: int, result_name: str, text: str, partial: dict[str, Any],
                 path: str | None = None, offset: int | None = None) -> None:
        place = "" if offset is None else f" (at byte {offset}{', in ' + path if path else ''})"
        super().__init__(f"{message}: {result_name} ({result}): {text}{place}")
        self.path = path
        self.offset = offset
        self.message = message
        self.result = result
        self.result_name = result_name
        self.partial = partial
