/* An allocator with a budget: a decode that wants more ends with MAVA_TUM_NO_MEMORY, and everything comes back in the
 * end, also what a decode drops of a nested record that occurs twice. Prints which blocks are out after each step. */
#include "mava_tum/reconciliation.h"

#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* Stands before each block that is out. It is charged too: many small blocks cost as much as they take. */
union block {
    struct {
        union block *next, *previous;
        uint64_t charged;
    } out;
    max_align_t aligned_for_any_record;
};

struct budget {
    uint64_t left; /* bytes */
    uint32_t blocks;
    union block ring; /* of all blocks that are out */
};

static void *capped_alloc(uint64_t size, void *context)
{
    struct budget *budget = context;
    if (budget->left < sizeof(union block) || size > budget->left - sizeof(union block))
        return NULL;
    const uint64_t charged = size + sizeof(union block);
    union block *block = (size_t)charged == charged ? malloc((size_t)charged) : NULL; /* size_t may have 32 bits */
    if (block == NULL)
        return NULL;
    block->out.charged = charged;
    block->out.next = budget->ring.out.next;
    block->out.previous = &budget->ring;
    block->out.next->out.previous = budget->ring.out.next = block;
    budget->left -= charged;
    ++budget->blocks;
    return block + 1;
}

static void capped_release(void *pointer, void *context)
{
    struct budget *budget = context;
    union block *block = (union block *)pointer - 1;
    block->out.next->out.previous = block->out.previous;
    block->out.previous->out.next = block->out.next;
    budget->left += block->out.charged;
    --budget->blocks;
    free(block);
}

static void decode_and_free(struct budget *budget, const char *what, const uint8_t *wire, uint32_t length)
{
    mava_tum_rec_sess_replay_req request = {0};
    const int32_t result = mava_tum_rec_sess_replay_req_decode_ext(&request, wire, length, capped_alloc, budget, 0);
    printf("%s, %u bytes: %s, blocks out: %u", what, (unsigned)length, result == MAVA_TUM_OK ? "decoded" : "refused",
        (unsigned)budget->blocks);
    mava_tum_rec_sess_replay_req_free_ext(&request, capped_release, budget, 0);
    printf(", after free: %u", (unsigned)budget->blocks);
    while (budget->ring.out.next != &budget->ring) /* what the decode dropped */
        capped_release(budget->ring.out.next + 1, budget);
    printf(", in the end: %u\n", (unsigned)budget->blocks);
}

int main(void)
{
    uint8_t sessions[1000]; /* 500 empty ones, two bytes each: some 300 KB of records */
    for (size_t i = 0; i < sizeof sessions; i += 2)
        memcpy(sessions + i, "\x22\x00", 2);
    const uint8_t acl_twice[] = {0x22, 0x08, 0x62, 0x04, 0x12, 0x02, 'i', 'n', 0x62, 0x00};
    struct budget budget = {.left = 65536};
    budget.ring.out.next = budget.ring.out.previous = &budget.ring;
    decode_and_free(&budget, "3 sessions", sessions, 6);
    decode_and_free(&budget, "500 sessions", sessions, sizeof sessions);
    decode_and_free(&budget, "1 session, its access list twice", acl_twice, sizeof acl_twice);
    return budget.left == 65536 ? 0 : 1;
}
