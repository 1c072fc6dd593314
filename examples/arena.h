/* Memory that is handed out from front to back and taken back all at once: the cheapest allocator that a decoder can
 * be given. It is a budget, too: what does not fit is refused, and the decoder returns MAVA_TUM_NO_MEMORY. */
#ifndef ARENA_H
#define ARENA_H

#include <stddef.h>
#include <stdint.h>

struct arena {
    unsigned char *block; /* aligned for any record; the caller's, and outlives what was decoded into it */
    uint64_t size;        /* of the block, in bytes */
    uint64_t used;
};

/* The allocator callback; the context is the arena. */
static inline void *arena_allocate(uint64_t size, void *context)
{
    struct arena *arena = (struct arena *)context;
    const uint64_t alignment = 16;
    const uint64_t free_bytes = arena->size - arena->used;
    if (size > free_bytes)
        return NULL;
    void *taken = arena->block + arena->used;
    const uint64_t rounded = (size + alignment - 1) & ~(alignment - 1);
    arena->used += rounded < free_bytes ? rounded : free_bytes;
    return taken;
}

/* Everything that was decoded into the arena is void from here on. This stands where `_free_ext` would. */
static inline void arena_reset(struct arena *arena)
{
    arena->used = 0;
}

#endif
