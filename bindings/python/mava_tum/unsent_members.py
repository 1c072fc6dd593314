"""The members of a record that an adapter silently does not send."""

from __future__ import annotations

from collections.abc import Mapping
from typing import Any

from .application_reader import app_decode
from .application_writer import app_encode
from .schema import CONSTANTS

MASK = "feature_mask"
FEATURES = {name: bit for name, bit in CONSTANTS.items() if name.startswith("TUM_NAL_FEATURE_")}


def has_value(value: Any) -> bool:
    """Without zeros and empty texts, which arrive also if they are not sent."""
    if isinstance(value, Mapping):
        return any(map(has_value, value.values()))
    if isinstance(value, (list, tuple)):
        return any(map(has_value, value))
    if isinstance(value, (bytes, bytearray, memoryview)):
        return any(bytes(value))
    return value not in (0, "", "0.0.0.0")


def arrived_members(name: str, fields: Mapping[str, Any]) -> set[str]:
    return {member for member, value in app_decode(name, app_encode(name, fields)).items() if has_value(value)}


def app_unsent(name: str, fields: Mapping[str, Any]) -> dict[str, str | None]:
    """The members whose value `app_encode` does not send, each with the bit of `feature_mask` that it needs:
    "TUM_NAL_FEATURE_QOS", or None if it is not a single bit. Empty if all members are sent. Does not report a list that
    arrives in part.

    Encodes and decodes the record, and once more for each bit if a member is not sent. Raises the exceptions of
    `app_encode`."""
    arrived = arrived_members(name, fields)
    unsent: dict[str, str | None] = {
        member: None for member, value in fields.items() if has_value(value) and member not in arrived}
    if unsent and MASK in app_decode(name, b""):
        for feature, bit in FEATURES.items():
            for member in arrived_members(name, {**fields, MASK: fields.get(MASK, 0) | bit}) & unsent.keys():
                unsent[member] = unsent[member] or feature
    return unsent
