"""The memory of one decode. Every block is known here until the decode's record has been freed, so nothing can stay
behind: not after an error, and not when a second occurrence of a record drops what the first one had obtained."""

from __future__ import annotations

from types import TracebackType
from typing import Any

from .library import ffi

WORD_BYTES = 8  # the alignment that the strictest record asks for


class Blocks:
    """Hands out blocks up to `limit` bytes in all (no limit if None) and takes them back. Use it as a context."""

    def __init__(self, limit: int | None = None) -> None:
        self.limit = limit
        self.asked_bytes = 0
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
        """A block, or null where the limit or the machine has no more."""
        self.asked_bytes += size
        if self.limit is not None and self.asked_bytes > self.limit:
            self.refused = True
            return ffi.NULL
        try:
            # An empty block has an address of its own too: null would count as a failure.
            block = ffi.new("uint64_t[]", size // WORD_BYTES + 1)
        except (MemoryError, OverflowError):
            self.refused = True
            return ffi.NULL
        self._blocks[int(ffi.cast("uintptr_t", block))] = block
        return ffi.cast("void *", block)

    def give_back(self, pointer: Any) -> None:
        del self._blocks[int(ffi.cast("uintptr_t", pointer))]

    def arguments(self) -> dict[str, Any]:
        """What decode and free functions take for their memory, by the names of the parameters."""
        return {"alloc_fn": _obtain, "alloc_ctx": self._handle, "release_fn": _give_back, "release_ctx": self._handle}


@ffi.callback("void *(uint64_t, void *)", error=ffi.NULL)
def _obtain(size: int, context: Any) -> Any:
    return ffi.from_handle(context).obtain(size)


@ffi.callback("void(void *, void *)")
def _give_back(pointer: Any, context: Any) -> None:
    ffi.from_handle(context).give_back(pointer)
