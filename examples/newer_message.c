/* Reads a message of a newer sender, which has fields that we do not know yet: they are skipped, and gone when we
 * encode the record again. Only an unknown group, which nothing can be skipped by, is refused. Prints what was
 * understood of each message, and what of it goes out again. */
#include "mava_tum/session_messages.h"

#include <stdio.h>

static int failures;

static void print_hex(const char *what, const uint8_t *bytes, uint64_t size)
{
    printf("%s", what);
    for (uint64_t i = 0; i < size; ++i)
        printf(" %02X", bytes[i]);
    printf("\n");
}

static void relay(const char *what, const uint8_t *wire, uint64_t size, int32_t expected)
{
    print_hex(what, wire, size);
    mava_tum_session_delete request;
    const int32_t result = mava_tum_session_delete_decode_ext(&request, wire, size, NULL, NULL);
    if (result != expected) {
        fprintf(stderr, "newer_message: result %d instead of %d\n", (int)result, (int)expected);
        ++failures;
    }
    if (result != MAVA_TUM_OK) {
        printf("    refused, result %d\n", (int)result);
        return;
    }
    printf("    field 1 is %u, field 2 is %u\n", request.field_1, request.field_2);
    uint8_t out[64];
    const uint64_t out_size = mava_tum_session_delete_encode_ext(&request, out, sizeof out, NULL, NULL);
    if (out_size > sizeof out) {
        fprintf(stderr, "newer_message: %llu bytes to send\n", (unsigned long long)out_size);
        ++failures;
        return;
    }
    print_hex("    out:", out, out_size);
}

int main(void)
{
    /* Between and behind field 1 and field 2 of session_delete, which has five. */
    const uint8_t known[] = {0x08, 0x05, 0x10, 0x07};
    const uint8_t with_number[] = {0x08, 0x05, 0x30, 0x2A, 0x10, 0x07};                  /* 6: a varint */
    const uint8_t with_text[] = {0x08, 0x05, 0x10, 0x07, 0x3A, 0x03, 'n', 'e', 'w'};     /* 7: three bytes */
    const uint8_t with_fixed[] = {0x08, 0x05, 0x45, 0x01, 0x02, 0x03, 0x04, 0x10, 0x07}; /* 8: four bytes */
    const uint8_t with_group[] = {0x08, 0x05, 0x4B, 0x08, 0x01, 0x4C, 0x10, 0x07};       /* 9: a group */
    relay("known fields:", known, sizeof known, MAVA_TUM_OK);
    relay("field 6, a number:", with_number, sizeof with_number, MAVA_TUM_OK);
    relay("field 7, a text:", with_text, sizeof with_text, MAVA_TUM_OK);
    relay("field 8, four bytes:", with_fixed, sizeof with_fixed, MAVA_TUM_OK);
    relay("field 9, a group:", with_group, sizeof with_group, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    return failures == 0 ? 0 : 1;
}
