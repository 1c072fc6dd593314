"""Are application records unchanged after the way to C and back, and to the wire and back?"""

from __future__ import annotations

import gc
from typing import Any

import pytest
from hypothesis import strategies as st

import mava_tum
from mava_tum import application_reader, application_writer
from mava_tum.library import ffi
from mava_tum.schema import ADAPTERS, APPLICATION_RECORDS
from runtime_peer import from_wire, to_peer
from strategies import application_records, for_all

# The message of an adapter, if its name is another one.
MESSAGE_OF = {"rec_start_res": "rec_resp", "rec_complete_res": "rec_resp", "rec_sess_res": "rec_sess_resp"}

# All others send every member if all are present, and receive it in the same place.
ONE_SIDED = ("session_context", "session_delete", "sess_oper_resp", "subscriber_stats", "sub_route", "rec_start_req",
             "rec_sess_req", "rec_sess_replay_req", "rec_sess_replay_resp")


@pytest.mark.parametrize("c_type", APPLICATION_RECORDS)
@for_all(data=st.data())
def test_every_member_is_read_as_it_was_written(c_type: str, data: Any) -> None:
    fields = data.draw(application_records(c_type))
    record = ffi.new(f"{c_type} *")
    application_writer.fill_record(c_type, record, fields, c_type)
    assert application_reader.read_record(c_type, record, dotted=False) == fields
    dotted = application_reader.read_record(c_type, record, dotted=True)
    again = ffi.new(f"{c_type} *")
    application_writer.fill_record(c_type, again, dotted, c_type)
    assert bytes(ffi.buffer(again)) == bytes(ffi.buffer(record))


@pytest.mark.parametrize("adapter", mava_tum.adapters())
@for_all(data=st.data())
def test_what_an_adapter_sends_is_a_message_to_the_codec_and_to_the_runtime(adapter: str, data: Any) -> None:
    wire = mava_tum.app_encode(adapter, data.draw(application_records(ADAPTERS[adapter].encode)))
    message = MESSAGE_OF.get(adapter, adapter)
    fields = mava_tum.decode(message, wire)
    assert from_wire(message, wire) == to_peer(message, fields)
    assert mava_tum.encode(message, fields) == wire


@pytest.mark.parametrize("adapter", [name for name in mava_tum.adapters() if name not in ONE_SIDED])
@for_all(data=st.data())
def test_what_a_symmetric_adapter_sends_arrives(adapter: str, data: Any) -> None:
    fields = data.draw(application_records(ADAPTERS[adapter].encode))
    assert mava_tum.app_decode(adapter, mava_tum.app_encode(adapter, fields)) == fields


@pytest.mark.parametrize("adapter", mava_tum.adapters())
@pytest.mark.parametrize("dotted", [False, True])
@for_all(data=st.data())
def test_a_view_shows_what_a_decode_returns(adapter: str, dotted: bool, data: Any) -> None:
    wire = mava_tum.app_encode(adapter, data.draw(application_records(ADAPTERS[adapter].encode)))
    fields = mava_tum.app_decode(adapter, wire, dotted=dotted)
    view = mava_tum.app_view(adapter, wire, dotted=dotted)
    assert (view, list(view), len(view)) == (fields, list(fields), len(fields))
    assert mava_tum.app_encode(adapter, view) == mava_tum.app_encode(adapter, fields)


def test_a_part_of_a_view_outlives_the_view_and_the_input() -> None:
    sent = {"feature_mask": 1 << 0, "qos": [{"text_3": "gold"}, {"text_3": "silver"}]}
    wire = bytearray(mava_tum.app_encode("session_context", sent))
    qos = mava_tum.app_view("session_context", wire)["qos"]
    wire[:] = bytes(len(wire))
    gc.collect()
    assert [each["text_3"] for each in qos] == ["gold", "silver"]


def test_a_view_has_the_members_of_its_record_only() -> None:
    view = mava_tum.app_view("session_context", b"")
    assert "mtu_1_value" in view and "qos_coun" not in view
    with pytest.raises(KeyError):
        view["qos_coun"]
    with pytest.raises(TypeError):
        view["mtu_1_value"] = 1  # type: ignore[index]


@pytest.mark.parametrize("adapter", mava_tum.adapters())
@for_all(wire=st.binary(max_size=40))
def test_any_bytes_give_a_record_that_can_be_sent(adapter: str, wire: bytes) -> None:
    fields = mava_tum.app_decode(adapter, wire)
    assert isinstance(mava_tum.app_encode(adapter, fields), bytes)


@pytest.mark.parametrize("adapter", mava_tum.adapters())
def test_nothing_arrives_as_a_record_of_zeros_with_every_member(adapter: str) -> None:
    fields = mava_tum.app_decode(adapter, b"")
    assert list(fields) == [member.name for member in mava_tum.app_members(adapter)]
    record = ffi.new(f"{ADAPTERS[adapter].decode} *")
    application_writer.fill_record(ADAPTERS[adapter].decode, record, fields, adapter)
    assert not any(bytes(ffi.buffer(record)))


def test_members_that_are_not_sent_are_told_with_the_feature_that_sends_them() -> None:
    record: dict[str, Any] = {
        "feature_mask": mava_tum.constants["TUM_NAL_FEATURE_ACL"], "qos": [{"value_1": 1}], "acl_text_2": "in",
        "ipv6_part_2": bytes(range(16)), "icmp_1_value": 7, "icmp_2_value": 0, "session_name": "", "accounting_value_2": 9}
    # The accounting values also need a bit of accounting_flags.
    assert mava_tum.app_unsent("session_context", record) == {
        "qos": "TUM_NAL_FEATURE_QOS", "ipv6_part_2": "TUM_NAL_FEATURE_IPV6_PART_2",
        "icmp_1_value": "TUM_NAL_FEATURE_ICMP_1", "accounting_value_2": None}
    for feature in ("QOS", "IPV6_PART_2", "ICMP_1", "ACCOUNTING"):
        record["feature_mask"] |= mava_tum.constants[f"TUM_NAL_FEATURE_{feature}"]
    record["accounting_flags"] = mava_tum.constants["TUM_NAL_ACCOUNTING_VALUE_2"]
    assert mava_tum.app_unsent("session_context", record) == {}


@pytest.mark.parametrize("adapter", [name for name in mava_tum.adapters() if name not in ONE_SIDED])
@for_all(data=st.data())
def test_a_symmetric_adapter_sends_every_member(adapter: str, data: Any) -> None:
    assert mava_tum.app_unsent(adapter, data.draw(application_records(ADAPTERS[adapter].encode))) == {}


def test_a_session_with_addresses_texts_and_a_list_arrives() -> None:
    sent = {"feature_mask": 1 << 0 | 1 << 9 | 1 << 10, "ipv4_address": "192.0.2.17", "ipv6_part_2": bytes(range(16)),
            "session_name": "user@example.com", "qos": [{"value_1": 1, "text_3": "gold"}, {"value_1": 2}]}
    received = mava_tum.app_decode("session_context", mava_tum.app_encode("session_context", sent), dotted=True)
    for name in ("feature_mask", "ipv4_address", "ipv6_part_2", "session_name"):
        assert received[name] == sent[name]
    assert received["qos_count"] == 2
    assert [(each["value_1"], each["text_3"]) for each in received["qos"]] == [(1, "gold"), (2, "")]


@pytest.mark.parametrize(("sent", "arriving"), [(8, 8), (12, 8), (260, 4)])
def test_of_a_long_list_arrive_as_many_elements_as_the_count_says(sent: int, arriving: int) -> None:
    wire = mava_tum.encode("session_context", {"qos": [{"field_1": each} for each in range(sent)]})
    received = mava_tum.app_decode("session_context", wire)
    assert received["qos_count"] == arriving
    assert [each["value_1"] for each in received["qos"]] == list(range(arriving))


@pytest.mark.parametrize("names", [("field_3", "field_3_count"), ("field_3_count", "field_3")])
def test_a_count_of_the_callers_own_is_kept_in_any_order(names: tuple[str, str]) -> None:
    values = {"field_3": [{"field_1": 1}, {"field_1": 2}], "field_3_count": 1}
    sent = {name: values[name] for name in names}
    fields = mava_tum.decode("srg_group_rec_replay_req", mava_tum.app_encode("srg_group_rec_replay_req", sent))
    assert fields == {"field_3": [{"field_1": 1}]}


def test_no_more_elements_are_read_than_there_are_slots() -> None:
    record = ffi.new("tum_nal_data_session_context *", {"qos_count": 255})
    assert len(application_reader.read_record("tum_nal_data_session_context", record, dotted=False)["qos"]) == 8
