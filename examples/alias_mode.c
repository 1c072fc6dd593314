/* Decodes a session whose bytes field is large, once copying it and once leaving it in the input, and counts what was
 * asked of the allocator. With the alias bit the input has to outlive the record, and free needs the bit, too.
 * Prints both counts and where the bytes are. */
#include "mava_tum/presence_bits.h"
#include "mava_tum/session_messages.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

struct count {
    unsigned calls;
    unsigned long long bytes;
};

static void *counted_alloc(uint64_t size, void *context)
{
    struct count *count = context;
    ++count->calls;
    count->bytes += size;
    if ((size_t)size != size) /* where size_t has 32 bits */
        return NULL;
    return malloc(size == 0 ? 1 : (size_t)size); /* null would be a failure */
}

static void counted_release(void *block, void *context)
{
    (void)context;
    free(block);
}

/* A session with 4 KiB in field 6 and a name. */
static uint64_t make_message(uint8_t *wire, uint64_t capacity)
{
    static uint8_t content[4096];
    static char name[] = "user@example.com";
    memset(content, 0xA5, sizeof content);
    mava_tum_session_context session = {.field_6 = {content, sizeof content},
        .presence_mask = MAVA_TUM_SESSION_CONTEXT_HAS_FIELD_6 | MAVA_TUM_SESSION_CONTEXT_HAS_SESSION_DATA};
    session.session_data.field_5 = name;
    session.session_data.presence_mask = MAVA_TUM_SESSION_DATA_HAS_FIELD_5;
    return mava_tum_session_context_encode_ext(&session, wire, capacity, NULL, NULL, 0);
}

/* Returns false if the message could not be decoded. */
static int decode(const uint8_t *wire, uint64_t size, uint32_t flags)
{
    struct count count = {0, 0};
    mava_tum_session_context session;
    const int32_t result = mava_tum_session_context_decode_ext(&session, wire, size, counted_alloc, &count, flags);
    if (result != MAVA_TUM_OK)
        fprintf(stderr, "alias_mode: the decode ended with result %d\n", (int)result);
    const uint8_t *bytes = session.field_6.data;
    const int in_input = bytes >= wire && bytes < wire + size;
    printf("%s: %u allocations, %llu bytes; %llu bytes of field 6 are %s\n", flags & MAVA_TUM_ALIAS ? "alias" : "copy",
        count.calls, count.bytes, (unsigned long long)session.field_6.length, in_input ? "in the input" : "a copy");
    mava_tum_session_context_free_ext(&session, counted_release, &count, flags); /* the flags of the decode */
    return result == MAVA_TUM_OK && in_input == (flags == MAVA_TUM_ALIAS);
}

int main(void)
{
    static uint8_t wire[8192];
    const uint64_t size = make_message(wire, sizeof wire);
    if (size > sizeof wire) {
        fprintf(stderr, "alias_mode: the message needs %llu bytes\n", (unsigned long long)size);
        return 1;
    }
    const int copied = decode(wire, size, 0);
    const int aliased = decode(wire, size, MAVA_TUM_ALIAS);
    return copied && aliased ? 0 : 1;
}
