"""Can the errors be pickled and copied?"""

from __future__ import annotations

import copy
import multiprocessing
import pickle
from collections.abc import Callable
from concurrent.futures import ProcessPoolExecutor
from typing import Any

import pytest

import mava_tum

WAIT_SECONDS = 60
MALFORMED = bytes.fromhex("08 07  5A 03 1A 01 41  42 05 0D")


def raised(call: Callable[..., Any], *arguments: Any) -> BaseException:
    with pytest.raises(mava_tum.Error) as caught:
        call(*arguments)
    return caught.value


def noted(error: BaseException) -> BaseException:
    error.note = "what a caller has added"  # type: ignore[attr-defined]
    return error


ERRORS = (
    mava_tum.Error("a text"),
    mava_tum.Error("a text", 7),
    mava_tum.Error(),
    mava_tum.LibraryError("libmava_tum.so.1 cannot be loaded"),
    raised(mava_tum.encode, "vlan_inf", {}),
    raised(mava_tum.encode, "", {}),
    raised(mava_tum.encode, "vlan_info", {"field_1": "text"}),
    raised(mava_tum.encode, "vlan_info", {"field_1": -1}),
    raised(mava_tum.decode, "session_context", MALFORMED),
    mava_tum.DecodeError("vlan_info", -1, "MAVA_TUM_TRUNCATED", "a text", {"field_1": 1}, "field_2", 3),
    raised(lambda: mava_tum.decode("rec_sess_replay_req", bytes.fromhex("22 00"), memory_limit=1)),
    noted(raised(mava_tum.decode, "session_context", MALFORMED)),
)


def assert_same(error: BaseException, other: BaseException) -> None:
    assert type(other) is type(error)
    assert (str(other), repr(other), other.args) == (str(error), repr(error), error.args)
    assert vars(other) == vars(error)
    assert getattr(other, "msg", None) == getattr(error, "msg", None)  # of an ImportError


def test_every_kind_of_error_is_among_the_errors_of_these_tests() -> None:
    kinds = {value for value in vars(mava_tum).values() if isinstance(value, type) and issubclass(value, Exception)}
    assert {type(error) for error in ERRORS} == kinds
    assert kinds == {mava_tum.Error, *descendants(mava_tum.Error)}


def descendants(kind: type) -> set[type]:
    return {each for child in kind.__subclasses__() for each in {child, *descendants(child)}}


@pytest.mark.parametrize("error", ERRORS, ids=repr)
@pytest.mark.parametrize("protocol", range(pickle.HIGHEST_PROTOCOL + 1))
def test_an_error_that_was_pickled_is_the_same_error(error: BaseException, protocol: int) -> None:
    assert_same(error, pickle.loads(pickle.dumps(error, protocol)))


@pytest.mark.parametrize("error", ERRORS, ids=repr)
@pytest.mark.parametrize("copied", [copy.copy, copy.deepcopy])
def test_the_copy_of_an_error_is_the_same_error(error: BaseException, copied: Callable[[Any], Any]) -> None:
    assert_same(error, copied(error))


def decode_malformed(message: str) -> dict[str, Any]:
    return mava_tum.decode(message, MALFORMED)


def test_a_pool_of_processes_hands_on_an_error() -> None:
    with multiprocessing.Pool(1) as pool:
        for call in (lambda: pool.apply_async(decode_malformed, ("session_context",)).get(WAIT_SECONDS),
                     lambda: pool.map_async(decode_malformed, ["session_context"] * 3).get(WAIT_SECONDS)):
            error = raised(call)
            assert isinstance(error, mava_tum.DecodeError)
            assert (error.result, error.partial) == (-1, {"field_1": 7, "qos": [{"field_3": "A"}]})
        assert isinstance(raised(lambda: pool.apply_async(decode_malformed, ("no",)).get(WAIT_SECONDS)),
                          mava_tum.UnknownNameError)


def test_an_executor_with_processes_hands_on_an_error() -> None:
    with ProcessPoolExecutor(1) as pool:
        for _ in range(2):
            error = raised(pool.submit(decode_malformed, "session_context").result, WAIT_SECONDS)
            assert isinstance(error, mava_tum.DecodeError)
