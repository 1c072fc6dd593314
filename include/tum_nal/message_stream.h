/* Messages on a stream of bytes: a pipe, a socket, a file. A protobuf message has no end mark, so each has its
 * length before it:
 *
 *   +-----------------------------+-------------------+
 *   | length, 4 bytes, big-endian | `length` bytes    |  next message ...
 *   +-----------------------------+-------------------+
 *
 * Sending: tum_nal_message_stream_put_length(), then the message. Receiving: tum_nal_message_stream_init() with a
 * buffer for the largest message that is accepted, then tum_nal_message_stream_next() for the bytes as they arrive, in
 * parts of any size. Nothing is allocated, read or sent. The functions are compiled into the caller: the library
 * exports none of them, and mava_tum.h does not include this header. Both sides must agree which message is sent.
 *
 *     static uint8_t buffer[TUM_NAL_SESSION_CONTEXT_MAX_SIZE];
 *     tum_nal_message_stream_t stream;
 *     tum_nal_message_stream_init(&stream, buffer, sizeof buffer);
 *     while ((result = tum_nal_message_stream_next(&stream, &bytes, &count, &message, &length)) == 1)
 *         take(message, length); */
#ifndef TUM_NAL_MESSAGE_STREAM_H
#define TUM_NAL_MESSAGE_STREAM_H
/* SPDX-License-Identifier: Apache-2.0 */

#include <stdint.h>
#include <string.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Bytes before each message. */
enum { TUM_NAL_MESSAGE_LENGTH_BYTES = 4 };

/* What tum_nal_message_stream_next() returns. */
enum {
    TUM_NAL_MESSAGE_TOO_LONG = -1,  /* a length above the limit: no stream of these messages, close it */
    TUM_NAL_MESSAGE_INCOMPLETE = 0, /* all bytes are consumed, and the next message needs more */
    TUM_NAL_MESSAGE_COMPLETE = 1    /* a message is complete */
};

/* The receiving side. The functions set the members; a caller may read them to report where a stream failed. */
typedef struct tum_nal_message_stream {
    uint8_t *buffer;       /* the caller's: holds a message that arrives in parts */
    uint32_t limit;        /* its size in bytes, and the length of the longest message that is accepted */
    uint32_t length;       /* of the present message, as far as its length has arrived */
    uint32_t received;     /* bytes of the present message in `buffer` */
    uint32_t length_bytes; /* of the length that have arrived, 0 to 4 */
} tum_nal_message_stream_t;

/* Begins a stream. `buffer` has `limit` bytes and must outlive the stream; it may be null if `limit` is 0. For one
 * adapter, TUM_NAL_<NAME>_MAX_SIZE is the limit for every message. */
static inline void tum_nal_message_stream_init(tum_nal_message_stream_t *stream, uint8_t *buffer, uint32_t limit)
{
    stream->buffer = buffer;
    stream->limit = limit;
    stream->length = stream->received = stream->length_bytes = 0;
}

/* Reads the length of the next message from the `*count` bytes at `*bytes`. Returns 1 if it is complete. */
static inline int32_t tum_nal_message_stream_take_length(
    tum_nal_message_stream_t *stream, const uint8_t **bytes, uint64_t *count)
{
    for (; stream->length_bytes < TUM_NAL_MESSAGE_LENGTH_BYTES && *count != 0; ++*bytes, --*count) {
        stream->length = stream->length << 8 | **bytes;
        ++stream->length_bytes;
    }
    return stream->length_bytes == TUM_NAL_MESSAGE_LENGTH_BYTES;
}

/* Consumes bytes up to the end of the next message; `*bytes` and `*count` then describe the rest. A complete message is
 * in the input or in the buffer, and is valid until the next call with this stream or until the caller changes those
 * bytes. A length above the limit is rejected before any byte of its message, and the stream stays rejected.
 * `*bytes` may be null if `*count` is 0. */
static inline int32_t tum_nal_message_stream_next(
    tum_nal_message_stream_t *stream, const uint8_t **bytes, uint64_t *count, const uint8_t **message, uint32_t *length)
{
    uint32_t taken;
    if (!tum_nal_message_stream_take_length(stream, bytes, count))
        return TUM_NAL_MESSAGE_INCOMPLETE;
    if (stream->length > stream->limit)
        return TUM_NAL_MESSAGE_TOO_LONG;
    if (*count == 0 && stream->received < stream->length)
        return TUM_NAL_MESSAGE_INCOMPLETE;
    taken = stream->length - stream->received;
    if (taken > *count)
        taken = (uint32_t)*count;
    if (stream->received == 0 && taken == stream->length) {
        *message = *bytes; /* whole, where it arrived */
    } else {
        memcpy(stream->buffer + stream->received, *bytes, taken);
        *message = stream->buffer;
    }
    stream->received += taken;
    *bytes += taken;
    *count -= taken;
    if (stream->received < stream->length)
        return TUM_NAL_MESSAGE_INCOMPLETE;
    *length = stream->length;
    tum_nal_message_stream_init(stream, stream->buffer, stream->limit);
    return TUM_NAL_MESSAGE_COMPLETE;
}

/* Returns 1 between two messages, where a stream may end; 0 inside a message or its length. */
static inline int32_t tum_nal_message_stream_may_end(const tum_nal_message_stream_t *stream)
{
    return stream->length_bytes == 0;
}

/* Writes the 4 bytes before a message of `length` bytes. */
static inline void tum_nal_message_stream_put_length(uint8_t *front, uint32_t length)
{
    front[0] = (uint8_t)(length >> 24);
    front[1] = (uint8_t)(length >> 16);
    front[2] = (uint8_t)(length >> 8);
    front[3] = (uint8_t)length;
}

#ifdef __cplusplus
}
#endif

#endif
