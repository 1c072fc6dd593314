"""The memory of one decode. Keeps a list of all blocks until the decode's record has been freed. So every block is
released, also after an error, and also the blocks that are dropped when a nested record occurs twice. The objects of
the result count, too: a few wire bytes may become a large dictionary."""

from __future__ import annotations

from types import TracebackType
from typing import Any

from .library import ffi

WORD_BYTES = 8  # the alignment that the strictest record asks for
# Measured with CPython 3.11. The content of texts and of blocks comes on top.
BLOCK_BYTES = 160  # to remember a block
RECORD_BYTES = 100  # of the result: a dictionary in a list
FIELD_BYTES = 100  # an entry of a dictionary, and its value
DEFAULT_LIMIT = 64 << 20


class LimitReached(Exception):
    """The result takes more memory than the limit."""


class Blocks:
    """Allocates and releases blocks. The limit for blocks and counted records together is `limit` bytes (None: no
    limit). A context manager."""

    def __init__(self, limit: int | None = None) -> None:
        self.limit = limit
        self.spent_bytes = 0
        self.refused = False
        self._blocks: dict[int, Any] = {}
        self._handle = ffi.new_handle(self)

    def __enter__(self) -> Blocks:
        return self

    def __exit__(self, kind: type[BaseException] | None, error: BaseException | None,
                 trace: TracebackType | None) -> None:
        self._handle = None  # it refers back to this object
        self._blocks.clear()

    def obtain(self, size: int) -> Any:
        """A block, or null if the limit is reached or the allocation fails."""
        if not self._spend(size + BLOCK_BYTES):
            return ffi.NULL
        try:
            # An empty block has an address, too: null would be a failure.
            block = ffi.new("uint64_t[]", size // WORD_BYTES + 1)
        except (MemoryError, OverflowError):
            self.refused = True
            return ffi.NULL
        self._blocks[int(ffi.cast("uintptr_t", block))] = block
        return ffi.cast("void *", block)

    def count_record(self, fields: dict[str, Any]) -> None:
        """Counts a record of the result and its values. Raises LimitReached."""
        if not self._spend(RECORD_BYTES + FIELD_BYTES * len(fields)):
            raise LimitReached

    def _spend(self, size: int) -> bool:
        if self.limit is not None and self.spent_bytes + size > self.limit:
            self.refused = True
            return False
        self.spent_bytes += size
        return True

    def give_back(self, pointer: Any) -> None:
        del self._blocks[int(ffi.cast("uintptr_t", pointer))]

    def arguments(self) -> dict[str, Any]:
        """The callbacks for decode and free functions, by the names of the parameters."""
        return {"alloc_fn": _obtain, "alloc_ctx": self._handle, "release_fn": _give_back, "release_ctx": self._handle}


@ffi.callback("void *(uint64_t, void *)", error=ffi.NULL)
def _obtain(size: int, context: Any) -> Any:
    return ffi.from_handle(context).obtain(size)


@ffi.callback("void(void *, void *)")
def _give_back(pointer: Any, context: Any) -> None:
    ffi.from_handle(context).give_back(pointer)
