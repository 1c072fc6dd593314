"""The memory of one decode: blocks that are cut from a few chunks and released all together, also after an error, and
also those that are dropped when a nested record occurs twice. The objects of the result count, too: a few wire bytes
may become a large dictionary."""

from __future__ import annotations

from types import TracebackType
from typing import Any

from .library import ffi

WORD_BYTES = 8  # the alignment that the strictest record asks for
FIRST_CHUNK_BYTES = 2 << 10  # enough for most messages
CHUNK_BYTES = 64 << 10
LARGE_BYTES = CHUNK_BYTES // 8
# Measured with CPython 3.11. The content of texts and of blocks comes on top.
BLOCK_BYTES = 160  # of the result: a text, or the list of an array
RECORD_BYTES = 100  # of the result: a dictionary in a list
FIELD_BYTES = 100  # an entry of a dictionary, and its value
DEFAULT_LIMIT = 64 << 20
NO_BLOCK = 0

_WORDS = ffi.typeof("uint64_t[]")
_ADDRESS = ffi.typeof("uintptr_t")


class LimitReached(Exception):
    """The result takes more memory than the limit."""


class Blocks:
    """Allocates blocks. The limit for blocks and counted records together is `limit` bytes (None: no limit). A context
    manager: the blocks are released at its end."""

    def __init__(self, limit: int | None = None) -> None:
        self.limit = limit
        self.left_bytes = float("inf") if limit is None else limit
        self.refused = False
        self.chunks: list[Any] = []
        self._next = self._end = 0  # addresses in the last chunk
        self.handle = ffi.new_handle(self.obtain)  # the context of ALLOC_FN

    def __enter__(self) -> Blocks:
        return self

    def __exit__(self, kind: type[BaseException] | None, error: BaseException | None,
                 trace: TracebackType | None) -> None:
        self.handle = None  # it refers back to this object
        self.chunks.clear()

    def obtain(self, size: int) -> int:
        """The address of a zeroed block, or NO_BLOCK if the limit is reached or the allocation fails."""
        left_bytes = self.left_bytes - size - BLOCK_BYTES
        if left_bytes < 0:
            self.refused = True
            return NO_BLOCK
        self.left_bytes = left_bytes
        block = self._next
        end = block + (size + WORD_BYTES & -WORD_BYTES)  # an empty block has an address, too
        if end > self._end:
            return self._obtain_from_new_chunk(size)
        self._next = end
        return block

    def _obtain_from_new_chunk(self, size: int) -> int:
        is_large = size > LARGE_BYTES  # gets a chunk of its own: the last one stays in use
        chunk_bytes = CHUNK_BYTES if self.chunks else FIRST_CHUNK_BYTES
        try:
            chunk = ffi.new(_WORDS, (size if is_large else max(size, chunk_bytes)) // WORD_BYTES + 1)
        except (MemoryError, OverflowError):
            self.refused = True
            return NO_BLOCK
        self.chunks.append(chunk)
        block = int(ffi.cast(_ADDRESS, chunk))
        if not is_large:
            self._next, self._end = block + (size + WORD_BYTES & -WORD_BYTES), block + ffi.sizeof(chunk)
        return block

    def count_record(self, field_count: int) -> None:
        """Counts a record of the result and its values. Raises LimitReached."""
        self.left_bytes -= RECORD_BYTES + FIELD_BYTES * field_count
        if self.left_bytes < 0:
            self.refused = True
            raise LimitReached


@ffi.callback("uintptr_t(uint64_t, void *)", error=NO_BLOCK)
def _obtain(size: int, context: Any) -> int:
    block: int = ffi.from_handle(context)(size)
    return block


ALLOC_FN = ffi.cast("mava_tum_alloc_fn", _obtain)
