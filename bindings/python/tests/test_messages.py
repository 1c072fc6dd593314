"""Does the official protobuf runtime read the messages with the same values?"""

from __future__ import annotations

from typing import Any

import pytest
from hypothesis import strategies as st

import mava_tum
from runtime_peer import PEERS, from_wire, to_peer
from strategies import codec_records, for_all


def test_the_runtime_knows_the_same_messages_and_fields() -> None:
    ours = {name: [(field.number, field.name) for field in mava_tum.fields(name)] for name in mava_tum.messages()}
    theirs = {name: [(field.number, field.name) for field in peer.DESCRIPTOR.fields] for name, peer in PEERS.items()}
    assert ours == theirs


@pytest.mark.parametrize("message", mava_tum.messages())
@for_all(data=st.data())
def test_what_is_encoded_here_is_what_the_runtime_encodes(message: str, data: Any) -> None:
    fields = data.draw(codec_records(message))
    wire = mava_tum.encode(message, fields)
    assert from_wire(message, wire) == to_peer(message, fields)
    assert wire == to_peer(message, fields).SerializeToString(deterministic=True)


@pytest.mark.parametrize("message", mava_tum.messages())
@for_all(data=st.data())
def test_what_the_runtime_encodes_comes_back_as_it_was(message: str, data: Any) -> None:
    fields = data.draw(codec_records(message))
    assert mava_tum.decode(message, to_peer(message, fields).SerializeToString()) == fields


@pytest.mark.parametrize("message", mava_tum.messages())
@for_all(wire=st.binary(max_size=40))
def test_any_bytes_are_decoded_or_refused_with_a_result(message: str, wire: bytes) -> None:
    try:
        fields = mava_tum.decode(message, wire, memory_limit=1 << 20)
    except mava_tum.DecodeError as error:
        assert -4 <= error.result <= -1
        assert str(error).startswith(f"{message}: MAVA_TUM_")
    else:
        assert mava_tum.decode(message, mava_tum.encode(message, fields)) == fields


@pytest.mark.parametrize("message", mava_tum.messages())
def test_nothing_is_a_message_without_fields(message: str) -> None:
    assert mava_tum.decode(message, b"") == {}
    assert mava_tum.encode(message, {}) == b""


def test_present_fields_that_are_empty_stay_present() -> None:
    fields = {"field_1": 0, "field_6": b"", "subscriber_v4": {}, "qos": [{"field_3": ""}, {}]}
    wire = mava_tum.encode("session_context", fields)
    assert wire == bytes.fromhex("08 00  32 00  42 00  5A 02 1A 00  5A 00")
    assert mava_tum.decode("session_context", wire) == fields


def test_an_empty_list_has_no_form_on_the_wire() -> None:
    assert mava_tum.encode("session_context", {"qos": [], "field_7": 1}) == bytes.fromhex("38 01")


def test_a_text_that_is_not_utf8_comes_back_as_the_same_bytes() -> None:
    wire = bytes.fromhex("12 03 41 FF 42")
    fields = mava_tum.decode("subscriber_httpr", wire)
    assert fields == {"field_2": "A\udcffB"}
    assert mava_tum.encode("subscriber_httpr", fields) == wire


def test_an_address_is_a_number_or_a_text_and_the_same_bytes() -> None:
    wire = bytes.fromhex("15 C0 00 02 11")
    assert mava_tum.decode("subscriber_v4", wire) == {"ipv4_address": 0x110200C0}
    assert mava_tum.decode("subscriber_v4", wire, dotted=True) == {"ipv4_address": "192.0.2.17"}
    for address in (0x110200C0, "192.0.2.17"):
        assert mava_tum.encode("subscriber_v4", {"ipv4_address": address}) == wire


def test_input_may_be_any_bytes() -> None:
    wire = bytes.fromhex("08 07")
    for data in (wire, bytearray(wire), memoryview(wire)):
        assert mava_tum.decode("vlan_info", data) == {"field_1": 7}
