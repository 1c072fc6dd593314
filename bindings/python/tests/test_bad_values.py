"""Is every wrong value rejected, with the path of the field and the accepted values?"""

from __future__ import annotations

import os
import subprocess
import sys
import tracemalloc
from collections.abc import Callable
from typing import Any

import pytest

import mava_tum
from mava_tum import DecodeError, FieldTypeError, FieldValueError, UnknownNameError


def refused(call: Callable[..., Any], *arguments: Any, **options: Any) -> str:
    """The kind and the text of the error that the call raises."""
    with pytest.raises(mava_tum.Error) as caught:
        call(*arguments, **options)
    return f"{type(caught.value).__name__}: {caught.value}"


@pytest.mark.parametrize(("name", "text"), [
    ("sesion_context", "there is no message 'sesion_context'; nearest: session_context, session_delete, session_data"),
    ("", "there is no message ''"),
    (7, "there is no message 7"),
    ([], "there is no message []"),
])
def test_a_wrong_message_name_is_answered_with_the_nearest(name: Any, text: str) -> None:
    assert refused(mava_tum.decode, name, b"") == f"UnknownNameError: {text}"
    assert refused(mava_tum.encode, name, {}) == f"UnknownNameError: {text}"
    assert refused(mava_tum.fields, name) == f"UnknownNameError: {text}"


def test_a_wrong_adapter_name_is_answered_with_the_nearest() -> None:
    text = "UnknownNameError: there is no adapter 'rec_start_rep'; nearest: rec_start_res, rec_start_req"
    for call in (lambda: mava_tum.app_decode("rec_start_rep", b""), lambda: mava_tum.app_encode("rec_start_rep", {}),
                 lambda: mava_tum.app_members("rec_start_rep")):
        assert refused(call).startswith(text)


def test_the_nearest_names_are_there_for_programs_too() -> None:
    with pytest.raises(UnknownNameError) as caught:
        mava_tum.encode("vlan_info", {"feild_1": 1})
    assert caught.value.nearest == ("field_1", "field_2")
    assert isinstance(caught.value, LookupError)


@pytest.mark.parametrize(("message", "fields", "text"), [
    ("vlan_info", {"field_1": -1}, "FieldValueError: vlan_info.field_1: -1 is outside of 0 to 4294967295"),
    ("vlan_info", {"field_1": 1 << 32}, "FieldValueError: vlan_info.field_1: 4294967296 is outside of 0 to 4294967295"),
    ("session_delete", {"field_4": 1 << 64},
     "FieldValueError: session_delete.field_4: 18446744073709551616 is outside of 0 to 18446744073709551615"),
    ("vlan_info", {"field_1": 1.5}, "FieldTypeError: vlan_info.field_1: takes a number, not float"),
    ("vlan_info", {"field_1": "1"}, "FieldTypeError: vlan_info.field_1: takes a number, not str"),
    ("vlan_info", {"field_1": True}, "FieldTypeError: vlan_info.field_1: takes a number, not bool"),
    ("vlan_info", {"field_1": None}, "FieldTypeError: vlan_info.field_1: takes a number, not NoneType"),
    ("vlan_info", [], "FieldTypeError: vlan_info: takes a dict, not list"),
    ("vlan_info", {1: 1}, "UnknownNameError: vlan_info has no field 1"),
    ("subscriber_v4", {"ipv4_address": "192.0.2"},
     "FieldValueError: subscriber_v4.ipv4_address: '192.0.2' is no IPv4 address"),
    ("subscriber_v4", {"ipv4_address": 1 << 32},
     "FieldValueError: subscriber_v4.ipv4_address: 4294967296 is outside of 0 to 4294967295"),
    ("session_context", {"qos": [{}, {"field_13": 1}]},
     "UnknownNameError: session_context.qos[1] has no field 'field_13'; nearest: field_3, field_1, field_12"),
    ("session_context", {"qos": [{}, {}, {"field_3": 7}]},
     "FieldTypeError: session_context.qos[2].field_3: takes str, not int"),
    ("session_context", {"qos": {}}, "FieldTypeError: session_context.qos: takes a list, not dict"),
    ("session_context", {"qos_count": 1},
     "UnknownNameError: session_context has no field 'qos_count'; nearest: qos"),
    ("session_context", {"session_data": {"ppp": 1}},
     "FieldTypeError: session_context.session_data.ppp: takes a dict, not int"),
    ("session_context", {"field_6": 7}, "FieldTypeError: session_context.field_6: takes bytes, not int"),
    ("session_context", {"field_6": "text"},
     "FieldValueError: session_context.field_6: 'text' is neither hex digits nor an IPv6 address"),
    ("session_context", {"field_6": "2001:db8"},
     "FieldValueError: session_context.field_6: '2001:db8' is no IPv6 address"),
    ("session_context", {"field_6": {"hex": "0"}},
     "FieldValueError: session_context.field_6.hex: '0' is neither hex digits nor an IPv6 address"),
    ("session_context", {"field_6": {"text": 1}}, "FieldTypeError: session_context.field_6: takes bytes, not dict"),
    ("sess_svc_start", {"field_5": ["a", "b\0c"]},
     "FieldValueError: sess_svc_start.field_5[1]: a text ends at its first NUL, and this one has a NUL inside"),
    ("sess_svc_start", {"field_5": "ab"}, "FieldTypeError: sess_svc_start.field_5: takes a list, not str"),
    ("subscriber_httpr", {"field_2": "\ud800"},
     "FieldValueError: subscriber_httpr.field_2: 'utf-8' codec can't encode character '\\ud800' in position 0: "
     "surrogates not allowed"),
])
def test_a_value_that_a_message_cannot_hold_is_refused_with_its_path(message: str, fields: Any, text: str) -> None:
    assert refused(mava_tum.encode, message, fields) == text


@pytest.mark.parametrize(("adapter", "fields", "text"), [
    ("session_context", {"session_name": "x" * 65},
     "FieldValueError: session_context.session_name: 65 bytes where 64 fit"),
    ("session_context", {"session_name": "ä" * 33},
     "FieldValueError: session_context.session_name: 66 bytes where 64 fit"),
    ("session_context", {"ipv6_part_2": bytes(17)},
     "FieldValueError: session_context.ipv6_part_2: 17 bytes where 16 fit"),
    ("session_context", {"qos": [{}] * 9}, "FieldValueError: session_context.qos: 9 elements where 8 fit"),
    ("session_context", {"qos": [{"value_6": 65536}]},
     "FieldValueError: session_context.qos[0].value_6: 65536 is outside of 0 to 65535"),
    ("session_context", {"qos_count": 256}, "FieldValueError: session_context.qos_count: 256 is outside of 0 to 255"),
    ("session_context", {"reserved_6": b""}, "UnknownNameError: session_context has no field 'reserved_6'"),
    ("subscriber_stats", {"block_7": {"counter": [0] * 17 + [1 << 32]}},
     "FieldValueError: subscriber_stats.block_7.counter[17]: 4294967296 is outside of 0 to 4294967295"),
    ("subscriber_stats", {"block_7": {"counter": [0] * 19}},
     "FieldValueError: subscriber_stats.block_7.counter: 19 elements where 18 fit"),
    ("rec_sess_replay_resp", {"field_3": [{"field_5": ["x" * 65]}]},
     "FieldValueError: rec_sess_replay_resp.field_3[0].field_5[0]: 65 bytes where 64 fit"),
])
def test_a_value_that_a_record_cannot_hold_is_refused_with_its_path(adapter: str, fields: Any, text: str) -> None:
    assert refused(mava_tum.app_encode, adapter, fields) == text


@pytest.mark.parametrize(("message", "wire", "result", "name"), [
    ("subscriber_v4", "08", -1, "MAVA_TUM_TRUNCATED"),
    ("subscriber_httpr", "12 01 41 12 01 42", -1, "MAVA_TUM_TRUNCATED"),
    ("subscriber_v4", "1B", -2, "MAVA_TUM_UNSUPPORTED_WIRE_TYPE"),
    ("subscriber_v4", "10 05", -3, "MAVA_TUM_WRONG_WIRE_TYPE"),
])
def test_bytes_that_are_no_message_are_refused_with_the_result(message: str, wire: str, result: int, name: str) -> None:
    with pytest.raises(DecodeError) as caught:
        mava_tum.decode(message, bytes.fromhex(wire))
    assert (caught.value.result, caught.value.result_name) == (result, name)
    assert str(caught.value).startswith(f"{message}: {name} ({result}): ")
    assert len(str(caught.value)) > 80 - len(name)


def test_what_was_decoded_before_the_fault_is_in_the_error() -> None:
    with pytest.raises(DecodeError) as caught:
        mava_tum.decode("session_context", bytes.fromhex("08 07  5A 03 1A 01 41  42 05 0D"))
    assert caught.value.partial == {"field_1": 7, "qos": [{"field_3": "A"}]}


EMPTY_SESSION = bytes.fromhex("22 00")  # in a rec_sess_replay_req, where it takes 656 bytes
ABOVE_THE_LIMIT = ("DecodeError: {}: MAVA_TUM_NO_MEMORY (-4): decoding takes more memory than memory_limit = {} bytes; "
                   "pass a larger limit, or None for no limit, if you trust the sender")


def test_a_message_above_the_memory_limit_is_refused_and_says_so() -> None:
    wire = EMPTY_SESSION * 1000
    assert len(mava_tum.decode("rec_sess_replay_req", wire)["field_4"]) == 1000
    assert refused(mava_tum.decode, "rec_sess_replay_req", wire, memory_limit=100_000) == ABOVE_THE_LIMIT.format(
        "rec_sess_replay_req", 100000)


def test_what_was_decoded_before_the_memory_limit_is_in_the_error() -> None:
    with pytest.raises(DecodeError) as caught:
        mava_tum.decode("rec_sess_replay_req", bytes.fromhex("08 07") + EMPTY_SESSION * 1000, memory_limit=100_000)
    assert caught.value.partial == {"field_1": 7}


def test_there_is_a_memory_limit_unless_the_caller_takes_it_away() -> None:
    wire = EMPTY_SESSION * 110_000
    assert refused(mava_tum.decode, "rec_sess_replay_req", wire) == ABOVE_THE_LIMIT.format(
        "rec_sess_replay_req", 64 << 20)
    assert len(mava_tum.decode("rec_sess_replay_req", wire, memory_limit=None)["field_4"]) == 110_000


@pytest.mark.parametrize(("message", "field", "element"), [
    ("sess_svc_start", "field_5", "2A 00"),  # many short texts, each in a block of its own
    ("rec_sess_resp", "field_2", "12 02 08 01"),  # 12 bytes for the codec, a dict of one number in the result
    ("sub_route", "ipv6_routes", "2A 00"),
])
def test_the_memory_limit_bounds_what_python_takes_too(message: str, field: str, element: str) -> None:
    wire = bytes.fromhex(element) * 20_000
    assert len(mava_tum.decode(message, wire, memory_limit=8_000_000)[field]) == 20_000
    tracemalloc.start()
    try:
        assert refused(mava_tum.decode, message, wire, memory_limit=1_000_000) == ABOVE_THE_LIMIT.format(
            message, 1_000_000)
        _, peak = tracemalloc.get_traced_memory()
    finally:
        tracemalloc.stop()
    assert peak < 1_300_000


@pytest.mark.parametrize("data", ["text", 7, None, [1, 2]])
def test_input_that_is_not_bytes_is_refused(data: Any) -> None:
    expected = f"FieldTypeError: data: takes bytes, not {type(data).__name__}"
    assert refused(mava_tum.decode, "vlan_info", data) == expected
    assert refused(mava_tum.app_decode, "session_context", data) == expected


def test_errors_are_the_built_in_ones_too() -> None:
    for kind, base in ((FieldTypeError, TypeError), (FieldValueError, ValueError), (DecodeError, ValueError),
                       (UnknownNameError, LookupError), (mava_tum.LibraryError, ImportError)):
        assert issubclass(kind, base) and issubclass(kind, mava_tum.Error)


def test_a_library_that_is_not_there_is_named() -> None:
    run = subprocess.run([sys.executable, "-c", "import mava_tum"], capture_output=True, text=True, check=False,
                         env={**os.environ, "LIBMAVA_TUM": "/nowhere/libmava_tum.so.1"})
    assert run.returncode == 1
    assert "LibraryError: /nowhere/libmava_tum.so.1 cannot be loaded" in run.stderr
