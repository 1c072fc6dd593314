"""The members of each record: the table that the build made from the public headers."""

from __future__ import annotations

import json
from pathlib import Path

_tables = json.loads(Path(__file__).with_name("header_tables.json").read_text(encoding="utf-8"))

# C type -> rows, each with "name" and "kind" and what the kind needs.
CODEC_RECORDS = {message["c_type"]: message["fields"] for message in _tables["messages"].values()}
APPLICATION_RECORDS = {c_type: record["members"] for c_type, record in _tables["application_records"].items()}


def short_name(tag: str) -> str:
    """The name of a record without the library's prefix."""
    return tag.removeprefix("tum_nal_data_").removeprefix("mava_tum_")
