"""Does an error say where the message is malformed?"""

from __future__ import annotations

import os
import subprocess
import sys

import pytest

import mava_tum

CASES = [
    ("session_context", "08 07 42 05 0D", -1, "subscriber_v4", 3),
    ("session_context", "5A 03 1A 01 41 08 07 5A 00", -1, "qos", 7),
    ("vlan_info", "0D 01 02 03 04", -3, "field_1", 0),
    ("vlan_info", "08 01 1B", -2, "#3", 2),
]


@pytest.mark.skipif("LIBMAVA_TUM_INSPECT" not in os.environ, reason="the inspector's library is not built")
@pytest.mark.parametrize(("message", "wire", "result", "path", "offset"), CASES)
def test_the_field_and_the_byte_of_a_fault_are_told(message: str, wire: str, result: int, path: str,
                                                    offset: int) -> None:
    with pytest.raises(mava_tum.DecodeError) as caught:
        mava_tum.decode(message, bytes.fromhex(wire))
    assert (caught.value.result, caught.value.path, caught.value.offset) == (result, path, offset)
    assert str(caught.value).endswith(f"(at byte {offset}{', in ' + path if path else ''})")


def test_a_message_that_takes_too_much_memory_has_no_such_place() -> None:
    with pytest.raises(mava_tum.DecodeError) as caught:
        mava_tum.decode("rec_sess_replay_req", bytes.fromhex("22 00"), memory_limit=1)
    assert (caught.value.path, caught.value.offset) == (None, None)


def test_without_the_inspectors_library_the_place_is_unknown() -> None:
    program = ("import mava_tum\n"
               "try: mava_tum.decode('vlan_info', b'\\x08')\n"
               "except mava_tum.DecodeError as error: print(error.result, error.path, error.offset)")
    done = subprocess.run([sys.executable, "-c", program], capture_output=True, text=True, check=True, timeout=60,
                          env={**os.environ, "LIBMAVA_TUM_INSPECT": "/no/such/library.so"})
    assert done.stdout == "-1 None None\n"
