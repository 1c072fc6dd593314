"""The 40 messages as a table: what the comment beside each member says, checked against its C type."""

from __future__ import annotations

import re
from typing import Any

from read_headers import HeaderError, Headers, Member

FIELD = re.compile(r"(\d+): ([a-z0-9 -]+), bit (\d+)(?:; (.*))?")
FUNCTIONS = ("decode_ext", "encode_ext", "duplicate", "free_ext")
BITS = {"uint8_t": 8, "uint16_t": 16, "uint32_t": 32, "uint64_t": 64}

# What the headers call a kind -> its name here, the C type ("" stands for any record), its pointers.
KINDS = {
    "varint": ("varint", "uint32_t", 0),
    "64-bit varint": ("varint", "uint64_t", 0),
    "fixed32": ("fixed32", "uint32_t", 0),
    "bytes": ("bytes", "mava_tum_bytes", 0),
    "text": ("text", "char", 1),
    "record": ("record", "", 0),
    "array of records": ("record_array", "", 1),
    "array of texts": ("text_array", "char", 2),
}


def message_name(c_type: str) -> str:
    return c_type.removeprefix("mava_tum_")


def check_type(member: Member, c_type: str, pointers: int) -> None:
    right_type = member.c_type == c_type if c_type else member.c_type.startswith("mava_tum_")
    if not right_type or member.pointers != pointers or member.sizes:
        raise HeaderError(f"{member.name} is not declared as its kind says: {member.comment}")


def describe_field(member: Member, expected_number: int) -> dict[str, Any]:
    said = FIELD.fullmatch(member.comment)
    if not said or said[2] not in KINDS:
        raise HeaderError(f"the comment of {member.name} is not 'number: kind, bit n': {member.comment}")
    number, bit = int(said[1]), int(said[3])
    if number != expected_number or bit != number - 1:
        raise HeaderError(f"{member.name} has number {number} and bit {bit}, in the place of field {expected_number}")
    kind, c_type, pointers = KINDS[said[2]]
    check_type(member, c_type, pointers)
    row: dict[str, Any] = {"name": member.name, "number": number, "kind": kind, "bit": bit}
    if kind in ("varint", "fixed32"):
        row["bits"] = BITS[member.c_type]
    if kind in ("record", "record_array"):
        row["of"] = message_name(member.c_type)
    if "IPv4" in (said[4] or ""):
        row["address"] = "ipv4"
    return row


def add_count(row: dict[str, Any], following: Member) -> None:
    stem = row["name"].removesuffix("s")
    if following.c_type != "uint32_t" or following.name not in (row["name"] + "_count", stem + "_count"):
        raise HeaderError(f"{row['name']} is not followed by its count")
    row["count"] = following.name


def describe_fields(members: list[Member]) -> list[dict[str, Any]]:
    *values, mask = members
    if mask.name != "presence_mask" or mask.c_type not in BITS:
        raise HeaderError(f"{mask.name} stands where presence_mask should")
    rows: list[dict[str, Any]] = []
    rest = iter(values)
    for member in rest:
        row = describe_field(member, len(rows) + 1)
        if row["kind"].endswith("_array"):
            add_count(row, next(rest, mask))
        rows.append(row)
    if len(rows) > BITS[mask.c_type]:
        raise HeaderError(f"{len(rows)} fields do not fit the {BITS[mask.c_type]} bits of presence_mask")
    return rows


def describe_functions(message: str, headers: Headers) -> dict[str, list[str]]:
    """The names of the parameters: they differ between messages, and are passed by what they are called."""
    return {function: [name for _, name in headers.functions[f"mava_tum_{message}_{function}"]]
            for function in FUNCTIONS}


def describe_message(c_type: str, headers: Headers) -> dict[str, Any]:
    try:
        return {"c_type": c_type,
                "fields": describe_fields(headers.records[c_type]),
                "functions": describe_functions(message_name(c_type), headers)}
    except (HeaderError, KeyError) as error:
        raise HeaderError(f"{c_type}: {error}") from error


def codec_tables(headers: Headers) -> dict[str, Any]:
    """Message name -> its record, fields in the order of their numbers, and functions."""
    records = [name for name, members in headers.records.items() if members[-1].name == "presence_mask"]
    return {message_name(each): describe_message(each, headers) for each in records}


def result_table(headers: Headers) -> dict[str, dict[str, Any]]:
    """Result codes: name -> value and what it means."""
    return {name: {"value": constant.value, "text": constant.comment.rstrip(".")}
            for name, constant in headers.constants.items() if name.startswith("MAVA_TUM_") and constant.value <= 0}


def constant_table(headers: Headers) -> dict[str, int]:
    """Every named number: result codes, slots, the bits of masks."""
    return {name: constant.value for name, constant in headers.constants.items()}
