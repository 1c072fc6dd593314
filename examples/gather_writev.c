/* Sends a message without copying its bytes field: the encoder leaves it out as a segment of its own, and writev takes
 * the segments as they are. That works for messages without nested records (docs/alias-and-gather.md).
 * Prints what each segment is, and what the other end decodes. */
#define _GNU_SOURCE /* writev */
#include "mava_tum/presence_bits.h"
#include "mava_tum/subscriber_records.h"

#include <stdio.h>
#include <string.h>
#include <sys/uio.h>
#include <unistd.h>

enum { most_segments = 4, content_bytes = 2000, wire_bytes = 4096 };

/* Returns the number of bytes that were sent, or -1. */
static ssize_t send_gathered(int channel, const mava_tum_ppp_data *record)
{
    uint8_t buffer[64]; /* for everything but the content of the bytes field */
    mava_tum_segment segments[most_segments];
    uint32_t count = most_segments; /* in: how many there is room for; out: how many there are */
    const uint64_t in_buffer =
        mava_tum_ppp_data_encode_ext(record, buffer, sizeof buffer, segments, &count, MAVA_TUM_ALIAS);
    if (in_buffer > sizeof buffer || count > most_segments) {
        fprintf(stderr, "gather_writev: %llu bytes in %u segments do not fit\n", (unsigned long long)in_buffer, count);
        return -1;
    }
    struct iovec vectors[most_segments];
    for (uint32_t i = 0; i < count; ++i) {
        const int is_content = segments[i].data == record->field_5.data;
        printf("segment %u: %llu bytes, %s\n", i + 1, (unsigned long long)segments[i].length,
            is_content ? "the record's own" : "in the buffer");
        vectors[i].iov_base = (void *)segments[i].data; /* writev does not write there */
        vectors[i].iov_len = (size_t)segments[i].length;
    }
    const ssize_t sent = writev(channel, vectors, (int)count);
    if (sent < 0)
        perror("gather_writev: writev");
    return sent;
}

/* Returns true if what arrives is what was sent. */
static int receive(int channel, const uint8_t *content)
{
    uint8_t wire[wire_bytes];
    const ssize_t size = read(channel, wire, sizeof wire);
    if (size < 0) {
        perror("gather_writev: read");
        return 0;
    }
    mava_tum_ppp_data record;
    const int32_t result = mava_tum_ppp_data_decode_ext(&record, wire, (uint64_t)size, NULL, NULL, MAVA_TUM_ALIAS);
    printf("%d bytes arrived, result %d: field 1 is %u, field 5 has %llu bytes\n", (int)size, (int)result,
        record.field_1, (unsigned long long)record.field_5.length);
    return result == MAVA_TUM_OK && record.field_1 == 3 && record.field_6 == 9 &&
           record.field_5.length == content_bytes && memcmp(record.field_5.data, content, content_bytes) == 0;
}

int main(void)
{
    static uint8_t content[content_bytes];
    memset(content, 0x5A, sizeof content);
    const mava_tum_ppp_data record = {.field_1 = 3,
        .field_5 = {content, sizeof content},
        .field_6 = 9,
        .presence_mask = MAVA_TUM_PPP_DATA_HAS_FIELD_1 | MAVA_TUM_PPP_DATA_HAS_FIELD_5 | MAVA_TUM_PPP_DATA_HAS_FIELD_6};
    int ends[2];
    if (pipe(ends) != 0) {
        perror("gather_writev: pipe");
        return 1;
    }
    return send_gathered(ends[1], &record) > 0 && receive(ends[0], content) ? 0 : 1;
}
