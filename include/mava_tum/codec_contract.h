/* What the codec functions of all messages share. The other headers document only the differences.
 *
 * Every message has a codec record, a plain structure `mava_tum_<message>`, and four functions:
 *
 *     mava_tum_<message>_decode_ext   wire bytes -> record        returns a result code (below)
 *     mava_tum_<message>_encode_ext   record -> wire bytes        returns the size needed, in bytes
 *     mava_tum_<message>_duplicate    deep copy                   returns MAVA_TUM_OK or MAVA_TUM_NO_MEMORY
 *     mava_tum_<message>_free_ext     releases the blocks of the record; never the record itself
 *
 *     messages                                                                      header
 *     subscriber_v4, subscriber_v6, ppp_data, l2tp_data, vlan_info, session_data    subscriber_records.h
 *     subscriber_qos, _acl, _httpr, _li, _urpf, _icmp, _mtu, _acct,                 feature_records.h
 *         subscriber_route_ipv4, subscriber_route_ipv6
 *     session_context, session_delete, sess_oper_resp                               session_messages.h
 *     stats, service_stats, subscriber_stats                                        statistics.h
 *     sub_route, subscriber_route_resp                                              routes.h
 *     rec_start_req, rec_complete_req, rec_resp, rec_session_state, rec_sess_req,   reconciliation.h
 *         rec_sess_resp, rec_sess_replay_req, _fail, _resp, sess_svc_start
 *     srg_group_rec_start_req, _resp, _complete_req, srg_group_data,                redundancy_group.h
 *         srg_group_rec_replay_req, srg_group_rec_replay_resp
 *
 * A parameter that a message does not need is ignored: an allocator without texts, arrays or bytes fields, flags
 * without bytes fields. A record pointer must not be null unless the function allows it.
 *
 * The wire is the protobuf binary format (https://protobuf.dev/programming-guides/encoding/): varint, fixed32 and
 * length-delimited fields; no groups, no zigzag, no packed fields. The functions keep no state, log nothing, start no
 * thread and do not throw. Any number of threads may call them on distinct records. The memory that a call writes must
 * not overlap the memory that it reads.
 *
 * Records
 *   Fields are in the order of their numbers; `presence_mask` is the last member. Field number n owns bit n-1 of the
 *   mask; presence_bits.h has a name for each. A decode sets the bit of each field that it stores. An encode writes a
 *   scalar, a bytes field, a text or an array only if its bit is set. Reserved bits belong to no field; no function
 *   modifies them.
 *     varint, fixed32   an unsigned integer in host byte order. The four bytes of an IPv4 address are in network
 *                       order on the wire: 192.0.2.1 is 0x010200C0, on every host.
 *     bytes             a `mava_tum_bytes`: pointer and length in bytes. Length 0 is a valid value; the pointer
 *                       is then not null after a decode, and null after a duplicate. If the record was decoded with
 *                       the alias bit, the pointer is into the input: do not write to it.
 *     text              a `char *` to a NUL-terminated copy; null when absent. Length and character set are not
 *                       limited. A NUL inside the wire bytes ends the C string early.
 *     record            another message's record, held inline. It is written if its bit is set or if it has
 *                       content.
 *     array of ...      a pointer to `<name>_count` contiguous elements, in wire order. No maximum. If an allocation of
 *                       a duplicate failed, an array of texts may hold nulls; an encode does not write them.
 *   Before an encode or a duplicate, zero the record (`= {0}`) and then set fields and their bits.
 *
 * Decoding
 *   The record is reset first: all fields zero, all own bits clear, at every depth. Its pointers are dropped: if it
 *   owns memory, call `_free_ext` before. `data` may be null if `length` is 0. Of a scalar or a record, the last
 *   occurrence is kept; records are not merged. A second occurrence of a bytes field or a text is an error, and so is a
 *   second run of an array after another field. If a record occurs twice, the blocks of the first occurrence are
 *   dropped. Unknown fields are skipped. An unknown field of fixed width or with a length may end beyond the input; the
 *   message then ends with success. After a failure, the record keeps the fields before the fault and their blocks:
 *   call `_free_ext`. The codec does not limit counts and lengths: a list of empty elements requests many times its
 *   size on the wire (at most 328 times, for session contexts inside a replay). Limit the input, or pass an `alloc_fn`
 *   with a budget.
 *
 * Encoding
 *   A call with a null buffer and length 0 returns the size. If `length` is too small, the full size is still returned:
 *   single bytes are written up to `length`, and a text or bytes field that does not fit is not written at all. Nothing
 *   is written beyond the returned size. Lengths on the wire have 32 bits: of a text, bytes field or record of 2^32
 *   bytes or more the low 32 bits are written, and the message cannot be decoded. `segments` and `segment_count`, both
 *   optional, receive the output as segments: on entry `*segment_count` is the capacity of `segments` in elements, on
 *   return the number of segments. Segments above the capacity are only counted; if `segments` is null, all are.
 *   `segments` without a `segment_count` is ignored. Without the alias bit, the whole output is one segment (none if it
 *   is empty). With it, each bytes field that is not empty is a segment that points at the record's memory, and the
 *   result counts only the bytes in `buffer`. If no record is nested, the segments in order are the message. Otherwise
 *   they are not: the length of a nested record counts only its bytes in `buffer`, and the next segment of the
 *   enclosing record starts where that record's own last one ended, so it covers the nested bytes again. Callers lay
 *   out such segments themselves.
 *
 * Ownership
 *   A record owns its texts and arrays, and its bytes fields unless it was decoded with the alias bit. After
 *   `_free_ext`, lengths and bits of bytes fields remain, counts of arrays are 0: decode into the record again or zero
 *   it before the next use. `release_fn` must not be null while the record owns anything. If an allocation of a
 *   duplicate fails, the duplicate continues and returns MAVA_TUM_NO_MEMORY: the field is empty and absent. An array
 *   that was allocated keeps its elements, its count and its bit, also if some of its elements are incomplete for this
 *   reason. */
#ifndef MAVA_TUM_CODEC_CONTRACT_H
#define MAVA_TUM_CODEC_CONTRACT_H
/* SPDX-License-Identifier: Apache-2.0 */

#include <stdint.h>

#if !defined(MAVA_TUM_API) && defined(__GNUC__) /* the static library is compiled with an empty one */
#define MAVA_TUM_API __attribute__((visibility("default")))
#elif !defined(MAVA_TUM_API)
#define MAVA_TUM_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Results of `_decode_ext` and `_duplicate`. The values are part of the ABI. */
enum {
    MAVA_TUM_OK = 0, /* success */
    /* The input ends inside a tag or a value, or a length is beyond its end; or a bytes field, a text or an array occurs
     * a second time, although nothing is truncated. */
    MAVA_TUM_TRUNCATED = -1,
    /* An unknown field has wire type 3, 4, 6 or 7, which cannot be skipped. */
    MAVA_TUM_UNSUPPORTED_WIRE_TYPE = -2,
    /* A known field arrives with another wire type than its own. */
    MAVA_TUM_WRONG_WIRE_TYPE = -3,
    /* `alloc_fn` returned null, or is null where a block is needed; or an array has more than 2^32 - 1 elements; or a
     * text has 2^32 - 1 bytes: its block of length + 1 is computed in 32 bits and requested with size 0. If `alloc_fn`
     * returns such a block, it is dropped. */
    MAVA_TUM_NO_MEMORY = -4
};

/* The alias bit of `flags`; all other bits are ignored.
 * decode: bytes fields point into the input, which must outlive the record, and are not copied.
 * encode: bytes fields become segments of their own. free: bytes fields are not released. */
enum { MAVA_TUM_ALIAS = 1 };

/* Returns a block of at least `size` bytes, aligned for any record, or null. Its content is ignored. `alloc_ctx`
 * is the caller's, unchanged. `size` may be 0 (an empty bytes field); null is then a failure, too. Like the release
 * callback, it must return, and must not touch the record or the input of the call. If size_t has 32 bits, check that
 * `size` fits before you pass it to malloc(). */
typedef void *(*mava_tum_alloc_fn)(uint64_t size, void *alloc_ctx);

/* Releases one block that the allocator callback returned. Never called with null. */
typedef void (*mava_tum_release_fn)(void *pointer, void *release_ctx);

/* A bytes field. `length` is in bytes. */
typedef struct mava_tum_bytes {
    uint8_t *data;   /* the first byte */
    uint64_t length; /* bytes at `data` */
} mava_tum_bytes;

/* One segment of an encoder's output. `length` is in bytes. `data` is null for a segment in the buffer
 * if the call had no buffer. */
typedef struct mava_tum_segment {
    const uint8_t *data; /* the first byte */
    uint64_t length;     /* bytes at `data` */
} mava_tum_segment;

#ifdef __cplusplus
}
#endif

#endif
