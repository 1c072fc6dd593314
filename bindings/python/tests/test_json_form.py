"""Is the module's JSON that of the command mava-tum, and does it decode to the same values?"""

from __future__ import annotations

import ipaddress
import json
import os
import subprocess
from typing import Any

import pytest
from hypothesis import strategies as st

import mava_tum
from mava_tum.schema import ADAPTERS
from strategies import application_records, codec_records, for_all

PROGRAM = os.environ.get("MAVA_TUM_PROGRAM", "")
needs_program = pytest.mark.skipif(not PROGRAM, reason="mava-tum is not built")


@pytest.mark.parametrize("message", mava_tum.messages())
@for_all(data=st.data())
def test_json_of_a_message_is_encoded_as_the_message_was(message: str, data: Any) -> None:
    fields = data.draw(codec_records(message))
    shown = json.loads(json.dumps(mava_tum.to_json(message, fields)))
    assert mava_tum.encode(message, shown) == mava_tum.encode(message, fields)


@pytest.mark.parametrize("adapter", mava_tum.adapters())
@for_all(data=st.data())
def test_json_of_a_record_is_encoded_as_the_record_was(adapter: str, data: Any) -> None:
    sent = data.draw(application_records(ADAPTERS[adapter].encode))
    record = mava_tum.app_decode(adapter, mava_tum.app_encode(adapter, sent))
    shown = json.loads(json.dumps(mava_tum.app_to_json(adapter, record)))
    if ADAPTERS[adapter].encode == ADAPTERS[adapter].decode:
        assert mava_tum.app_encode(adapter, shown) == mava_tum.app_encode(adapter, record)


def run(*arguments: str, data: bytes) -> Any:
    # It has its own sanitizer, not the one that this interpreter has preloaded.
    command = ["env", "-u", "LD_PRELOAD", PROGRAM, *arguments]
    return json.loads(subprocess.run(command, input=data, capture_output=True, check=True, timeout=60).stdout)


SESSION = {
    "field_6": b"\x00\xff", "subscriber_v4": {"ipv4_address": "192.0.2.17"},
    "subscriber_v6": {"field_2": "2001:db8::1", "field_3": ipaddress.IPv6Address("::ffff:192.0.2.1"), "field_4": b"ab"},
    "session_data": {"field_5": {"hex": "ff41"}, "field_7": "\u00e4", "field_2": 2**60},
    "qos": [{"field_3": "gold"}, {}],
    "route_ipv4": [{"field_3": ipaddress.IPv4Address("198.51.100.0"), "field_5": 1}],
}


@needs_program
def test_the_command_prints_the_same_json_of_a_message() -> None:
    wire = mava_tum.encode("session_context", SESSION)
    ours = mava_tum.to_json("session_context", mava_tum.decode("session_context", wire))
    assert run("decode", "--json", "-f", "raw", "session_context", data=wire)["record"] == ours


@needs_program
def test_the_command_prints_the_same_json_of_a_record() -> None:
    wire = mava_tum.encode("session_context", {**SESSION, "feature_mask": 0xFFFFFFF})
    ours = mava_tum.app_to_json("session_context", mava_tum.app_decode("session_context", wire))
    assert run("app", "session_context", "decode", "-f", "raw", data=wire) == ours


@pytest.mark.parametrize(("value", "content"), [
    ("0a0B", b"\n\x0b"), ("", b""), ("::1", bytes(15) + b"\1"), (ipaddress.IPv6Address("::2"), bytes(15) + b"\2"),
    ({"hex": "61"}, b"a"), ({"text": "ab"}, b"ab"), (bytearray(b"c"), b"c")])
def test_every_form_of_bytes_is_taken(value: Any, content: bytes) -> None:
    wire = mava_tum.encode("session_context", {"field_6": value})
    assert mava_tum.decode("session_context", wire) == {"field_6": content}


def test_every_form_of_an_ipv4_address_is_taken() -> None:
    wires = {mava_tum.encode("subscriber_v4", {"ipv4_address": value})
             for value in ("192.0.2.17", ipaddress.IPv4Address("192.0.2.17"), 0x110200C0)}
    assert wires == {bytes.fromhex("15 c0 00 02 11")}


def test_wire_bytes_are_not_taken_as_text() -> None:
    with pytest.raises(mava_tum.FieldTypeError):
        mava_tum.decode("vlan_info", "0801")  # type: ignore[call-overload]
