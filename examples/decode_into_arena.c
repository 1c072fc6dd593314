/* For a receiver that needs what an application record cuts or has no member for: the codec's decoder, with memory of
 * our own. Nothing is copied into an application record; the codec record is read where it stands.
 * Prints three sessions, and that a message which asks for more than the memory has is refused. */
#include "arena.h"
#include "mava_tum/session_messages.h"
#include "tum_nal/nal_session_context.h"

#include <stdalign.h>
#include <stdio.h>
#include <string.h>

/* What somebody sends us. */
static uint64_t make_message(unsigned number, uint8_t *wire, uint32_t capacity)
{
    tum_nal_data_session_context sent = {
        .feature_mask = TUM_NAL_FEATURE_IPV4 | TUM_NAL_FEATURE_MTU_1,
        .ipv4_address = 0xC0000200 + number, /* 192.0.2.number */
        .mtu_1_value = 1500 - 8 * number,
    };
    snprintf(sent.session_name, sizeof sent.session_name, "user%04u@example.com", number);
    return tum_nal_data_gpb_encode_tum_session_context(&sent, wire, capacity);
}

/* Texts are null, and numbers zero, where the message does not have them. Until the arena is reset, pointers may be
 * kept; those of bytes fields also need the wire. */
static void use(const mava_tum_session_context *session)
{
    const char *name = session->session_data.field_5;
    uint8_t address[4]; /* in network order, as it was on the wire */
    memcpy(address, &session->subscriber_v4.ipv4_address, sizeof address);
    printf("%s: %u.%u.%u.%u, MTU %u\n", name != NULL ? name : "(no name)", address[0], address[1], address[2],
        address[3], session->mtu_1.field_1);
}

static void receive(const uint8_t *wire, uint64_t length, struct arena *arena)
{
    mava_tum_session_context session;
    int32_t result = mava_tum_session_context_decode_ext(&session, wire, length, arena_allocate, arena, MAVA_TUM_ALIAS);
    if (result == MAVA_TUM_OK)
        use(&session);
    else
        printf("refused, result %d\n", (int)result);
    arena_reset(arena); /* instead of mava_tum_session_context_free_ext */
}

int main(void)
{
    static alignas(16) unsigned char block[16 * 1024];
    struct arena arena = {.block = block, .size = sizeof block};
    uint8_t wire[1024];
    for (unsigned number = 1; number <= 3; ++number)
        receive(wire, make_message(number, wire, sizeof wire), &arena);

    /* Two bytes each on the wire, 88 in memory: a list of 500 empty QoS entries, of a sender who means no good. The
     * arena is the limit to what it gets. */
    for (unsigned i = 0; i < 500; ++i)
        memcpy(wire + 2 * i, "\x5A\x00", 2);
    receive(wire, 1000, &arena);
    return 0;
}
