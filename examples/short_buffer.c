/* Encodes into a buffer on the stack, which is large enough for most messages, and goes to the heap for the others. One
 * call for most messages, where size_then_encode makes two for all.
 * Prints for a small message and a large one where they were encoded. */
#include "mava_tum/presence_bits.h"
#include "mava_tum/statistics.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* Stands for whatever sends a message. Returns false if it is not what it should be. */
static int send_message(const char *from, const uint8_t *wire, uint64_t size)
{
    mava_tum_stats stats;
    const int32_t result = mava_tum_stats_decode_ext(&stats, wire, size);
    printf("%llu bytes from the %s, decoded with result %d\n", (unsigned long long)size, from, (int)result);
    return result == MAVA_TUM_OK;
}

/* Returns false if the message could not be sent. */
static int encode_and_send(const mava_tum_stats *stats)
{
    uint8_t first_try[16];
    const uint64_t size = mava_tum_stats_encode_ext(stats, first_try, sizeof first_try, NULL, NULL);
    if (size <= sizeof first_try)
        return send_message("stack", first_try, size);

    /* Too short. Nothing was written past the buffer, what lies in it is cut, and the size is known now. */
    printf("%llu bytes do not fit into %u\n", (unsigned long long)size, (unsigned)sizeof first_try);
    uint8_t *wire = (size_t)size == size ? malloc((size_t)size) : NULL; /* size_t may have 32 bits */
    if (wire == NULL) {
        fprintf(stderr, "short_buffer: no memory for %llu bytes\n", (unsigned long long)size);
        return 0;
    }
    const int sent =
        mava_tum_stats_encode_ext(stats, wire, size, NULL, NULL) == size && send_message("heap", wire, size);
    free(wire);
    return sent;
}

int main(void)
{
    enum { both = MAVA_TUM_STATS_HAS_FIELD_1 | MAVA_TUM_STATS_HAS_FIELD_2 };
    const mava_tum_stats quiet = {.field_1 = 12, .field_2 = 40, .presence_mask = both};
    const mava_tum_stats busy = {.field_1 = 4000000000,
        .field_2 = 900000000,
        .field_3 = 70000000,
        .presence_mask = both | MAVA_TUM_STATS_HAS_FIELD_3};
    if (!encode_and_send(&quiet) || !encode_and_send(&busy)) {
        fprintf(stderr, "short_buffer: a message was not sent\n");
        return 1;
    }
    return 0;
}
