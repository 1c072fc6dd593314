"""Checks that a value is a dictionary or a list."""

from __future__ import annotations

from collections.abc import Collection, Mapping, Sequence
from typing import Any

from .errors import FieldTypeError
from .schema import unknown_name


def as_record(path: str, value: Any, known: Collection[str]) -> Mapping[str, Any]:
    """The value, which must be a mapping with known keys only."""
    if not isinstance(value, Mapping):
        raise FieldTypeError(f"{path}: takes a dict, not {type(value).__name__}")
    for name in value:
        if name not in known:
            raise unknown_name(f"{path} has no field", name, known)
    return value


def as_list(path: str, value: Any) -> Sequence[Any]:
    """The value, which must be a list or tuple: a text is a sequence, too, but not accepted."""
    if not isinstance(value, (list, tuple)):
        raise FieldTypeError(f"{path}: takes a list, not {type(value).__name__}")
    return value
