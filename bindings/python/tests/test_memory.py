"""Is every block released, also after errors?"""

from __future__ import annotations

import gc
import tracemalloc
import weakref
from concurrent.futures import ThreadPoolExecutor
from typing import Any

import pytest
from hypothesis import strategies as st

import mava_tum
from mava_tum import codec_reader
from mava_tum.library import ffi
from mava_tum.memory import BLOCK_BYTES, CHUNK_BYTES, NO_BLOCK, WORD_BYTES, Blocks
from strategies import codec_records, for_all

SESSION = {"field_6": b"\1\2", "session_data": {"field_5": "user", "l2tp": {"field_19": "name"}},
           "qos": [{"field_3": "gold", "field_12": "x"}, {}], "route_ipv6": [{"field_3": bytes(16), "field_9": "r"}]}


class CountingBlocks(Blocks):
    """Counts allocations, and fails on request."""

    every: list[CountingBlocks] = []
    fail_at: int | None = None

    def __init__(self, limit: int | None = None) -> None:
        super().__init__(limit)
        self.calls = 0
        CountingBlocks.every.append(self)

    def obtain(self, size: int) -> int:
        self.calls += 1
        return NO_BLOCK if self.calls - 1 == CountingBlocks.fail_at else super().obtain(size)


@pytest.fixture(autouse=True)
def counted(monkeypatch: pytest.MonkeyPatch) -> type[CountingBlocks]:
    monkeypatch.setattr(codec_reader, "Blocks", CountingBlocks)
    monkeypatch.setattr(CountingBlocks, "every", [])
    monkeypatch.setattr(CountingBlocks, "fail_at", None)
    return CountingBlocks


def only_one(counted: type[CountingBlocks]) -> CountingBlocks:
    (blocks,) = counted.every
    return blocks


def test_a_decode_releases_what_it_obtained(counted: type[CountingBlocks]) -> None:
    assert mava_tum.decode("session_context", mava_tum.encode("session_context", SESSION)) == SESSION
    blocks = only_one(counted)
    assert (blocks.calls, blocks.chunks) == (7, [])  # two arrays, five texts; bytes are not copied
    gone = weakref.ref(blocks)
    counted.every.clear()
    del blocks
    assert gone() is None, "something still holds the blocks of a decode that is over"


@pytest.mark.parametrize("message", mava_tum.messages())
@for_all(data=st.data())
def test_every_message_releases_what_it_obtained(message: str, data: Any) -> None:
    wire = mava_tum.encode(message, data.draw(codec_records(message)))
    CountingBlocks.every.clear()
    mava_tum.decode(message, wire)
    assert not only_one(CountingBlocks).chunks


def test_a_failing_allocation_leaves_nothing_behind(counted: type[CountingBlocks]) -> None:
    wire = mava_tum.encode("session_context", SESSION)
    for counted.fail_at in range(7):
        counted.every.clear()
        with pytest.raises(mava_tum.DecodeError, match=r"MAVA_TUM_NO_MEMORY \(-4\)"):
            mava_tum.decode("session_context", wire)
        blocks = only_one(counted)
        assert (blocks.calls, blocks.chunks) == (counted.fail_at + 1, [])


def test_a_broken_message_releases_what_it_obtained_before(counted: type[CountingBlocks]) -> None:
    wire = mava_tum.encode("session_context", SESSION)
    for length in range(len(wire)):
        counted.every.clear()
        try:
            mava_tum.decode("session_context", wire[:length])
        except mava_tum.DecodeError:
            pass
        assert not only_one(counted).chunks


def test_memory_does_not_grow_with_the_number_of_calls(monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.setattr(codec_reader, "Blocks", Blocks)
    twice = mava_tum.encode("session_context", {"acl": {"field_2": "a"}}) * 2
    wire = mava_tum.encode("session_context", SESSION) + twice
    application = mava_tum.app_decode("session_context", wire)

    def use_everything() -> None:
        for _ in range(200):
            mava_tum.encode("session_context", mava_tum.decode("session_context", wire))
            mava_tum.app_encode("session_context", application)

    use_everything()
    tracemalloc.start()
    use_everything()
    gc.collect()
    before, _ = tracemalloc.get_traced_memory()
    use_everything()
    gc.collect()
    after, _ = tracemalloc.get_traced_memory()
    tracemalloc.stop()
    assert after - before < 200 * 8, "at least a word stays behind in each call"


def test_an_empty_block_is_a_block() -> None:
    with Blocks(limit=BLOCK_BYTES) as blocks:
        assert blocks.obtain(0) != NO_BLOCK
        assert blocks.obtain(0) == NO_BLOCK
        assert blocks.refused


@for_all(sizes=st.lists(st.integers(0, CHUNK_BYTES), max_size=20))
def test_blocks_are_aligned_zeroed_and_apart(sizes: list[int]) -> None:
    with Blocks() as blocks:
        taken = []
        for size in sizes:
            block = blocks.obtain(size)
            content = ffi.buffer(ffi.cast("char *", block), size)
            assert block % WORD_BYTES == 0 and content[:] == bytes(size)
            content[:] = b"x" * size
            taken.append((block, block + max(size, 1)))
        taken.sort()
        assert all(end <= start for (_, end), (start, _) in zip(taken, taken[1:]))


def test_a_size_that_no_machine_has_is_refused() -> None:
    for size in (1 << 62, (1 << 64) - 1):
        with Blocks() as blocks:
            assert blocks.obtain(size) == NO_BLOCK
            assert blocks.refused


def test_threads_decode_at_the_same_time() -> None:
    wire = mava_tum.encode("session_context", SESSION)
    with ThreadPoolExecutor(8) as pool:
        for fields in pool.map(lambda _: mava_tum.decode("session_context", wire), range(400)):
            assert fields == SESSION
