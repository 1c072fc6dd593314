/* Keeps a record when the one that was decoded is given back: its duplicate has memory of its own. A duplicate that
 * runs out of memory says so, and is freed all the same. Prints the copy after its original is gone, a copy of the
 * copy, and what is left of one that was refused its last block. */
#include "mava_tum/statistics.h"

#include <stdio.h>
#include <stdlib.h>

/* Refuses blocks once `left` is used up. */
static void *limited_alloc(uint64_t size, void *context)
{
    unsigned *left = context;
    if (*left == 0)
        return NULL;
    --*left;
    if ((size_t)size != size) /* where size_t has 32 bits */
        return NULL;
    return malloc(size == 0 ? 1 : (size_t)size);
}

static void release(void *block, void *context)
{
    (void)context;
    free(block);
}

static void print(const char *what, const mava_tum_subscriber_stats *stats)
{
    printf("%s: %u services", what, (unsigned)stats->field_8_count);
    for (uint32_t i = 0; i < stats->field_8_count; ++i)
        printf(", %s", stats->field_8[i].field_1 != NULL ? stats->field_8[i].field_1 : "(no name)");
    printf("\n");
}

/* Returns false if not everything is as it should be. */
static int keep(const mava_tum_subscriber_stats *received, unsigned blocks, int32_t expected)
{
    mava_tum_subscriber_stats kept = {0};
    const int32_t result = mava_tum_subscriber_stats_duplicate(&kept, received, limited_alloc, &blocks);
    print(result == MAVA_TUM_OK ? "whole" : "incomplete", &kept);
    mava_tum_subscriber_stats_free_ext(&kept, release, NULL);
    if (result != expected)
        fprintf(stderr, "duplicate_stats: result %d instead of %d\n", (int)result, (int)expected);
    return result == expected;
}

int main(void)
{
    const uint8_t wire[] = {0x42, 0x07, 0x0A, 0x05, 'v', 'o', 'i', 'c', 'e', 0x42, 0x04, 0x0A, 0x02, 't', 'v'};
    unsigned many = 100;
    mava_tum_subscriber_stats received;
    mava_tum_subscriber_stats kept = {0}; /* a duplicate leaves spare bits as they are: they start as zeros */
    int32_t result = mava_tum_subscriber_stats_decode_ext(&received, wire, sizeof wire, limited_alloc, &many);
    if (result == MAVA_TUM_OK)
        result = mava_tum_subscriber_stats_duplicate(&kept, &received, limited_alloc, &many);
    mava_tum_subscriber_stats_free_ext(&received, release, NULL); /* also after a failure */

    int as_expected = 0;
    if (result == MAVA_TUM_OK) {
        print("the original is gone", &kept);
        /* Three blocks: the array and two names. */
        as_expected = keep(&kept, 3, MAVA_TUM_OK) && keep(&kept, 2, MAVA_TUM_NO_MEMORY);
    } else {
        fprintf(stderr, "duplicate_stats: no copy was made, result %d\n", (int)result);
    }
    mava_tum_subscriber_stats_free_ext(&kept, release, NULL);
    return as_expected ? 0 : 1;
}
