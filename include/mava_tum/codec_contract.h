/* What the codec functions of all messages share. Read this once; the other headers give only what differs.
 *
 * Every message has a codec record, a plain structure `mava_tum_<message>`, and four functions:
 *
 *     mava_tum_<message>_decode_ext   wire bytes -> record        returns a result code (below)
 *     mava_tum_<message>_encode_ext   record -> wire bytes        returns the size needed, in bytes
 *     mava_tum_<message>_duplicate    deep copy                   returns MAVA_TUM_OK or MAVA_TUM_NO_MEMORY
 *     mava_tum_<message>_free_ext     gives back what the record owns; never the record itself
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
 * A function may take a parameter that its message has no use for (an allocator without memory to own, flags without
 * bytes fields): it is ignored. A record pointer must not be null unless the function says so.
 *
 * The wire is the protobuf binary format (https://protobuf.dev/programming-guides/encoding/): varint, fixed32 and
 * length-delimited fields; no groups, no zigzag, no packed fields. All functions are pure: they keep no state, log
 * nothing, start no thread, and touch only their arguments, so any number of threads may call them on distinct
 * records. None of them throws. What a call writes must not overlap what it reads.
 *
 * Records
 *   Value fields stand in field-number order; `presence_mask` is the last member. Field number n owns bit n-1 of the
 *   mask. A decode sets the bit of each field that it stores; an encode writes a scalar, a bytes field, a text or an
 *   array only when its bit is set. Bits that belong to no field ("spare") are kept as they are by every function.
 *     varint, fixed32   an unsigned integer in host byte order. An IPv4 address is held so that its four bytes stand on
 *                       the wire in network order: 192.0.2.1 is 0x010200C0, on every host.
 *     bytes             a `mava_tum_bytes`: pointer and length in bytes. Length 0 is a value like any other; the
 *                       pointer is then not null after a decode, and null after a duplicate. Do not write through the
 *                       pointer of a record decoded with the alias bit: it is the input.
 *     text              a `char *` to a NUL-terminated copy; null when absent. Neither length nor character set is
 *                       limited; a NUL inside the wire bytes ends the text early for whoever reads it.
 *     record            another message's record, held inline. It is written when its bit is set or when it has
 *                       content of its own.
 *     array of ...      a pointer to `<name>_count` contiguous elements, in wire order. No maximum. An array of texts
 *                       may hold nulls after a duplicate that ran out of memory; an encode leaves them out.
 *   Before an encode or a duplicate, zero the record (`= {0}`) and then set fields and their bits.
 *
 * Decoding
 *   The record is reset first: all fields zero, all own bits clear, at every depth. What it pointed to before is
 *   dropped, so call `_free_ext` first on a record that owns memory. `data` may be null when `length` is 0.
 *   Scalars and records: the last occurrence wins; records are not merged. A second occurrence of a bytes field, of a
 *   text, or of an array after another field has come in between, is an error. When a record occurs twice, the memory
 *   that its first occurrence obtained is dropped. Unknown fields are skipped; one of fixed width or with a length may
 *   end beyond the input, and the message then ends with success. On failure the record keeps all fields decoded before
 *   it, with their memory: call `_free_ext` all the same.
 *   The codec puts no limit on counts and lengths: a list of empty elements asks for many times its size on the wire
 *   (at most 328 times, for session contexts inside a replay). Bound the input, or give an `alloc_fn` with a budget.
 *
 * Encoding
 *   Call with buffer null and length 0 to learn the size. When `length` is too small, single bytes are written up to
 *   it, a text or bytes field that does not fit whole is left out whole, and the full size is still returned. Nothing
 *   is written beyond the returned size. Lengths on the wire have 32 bits: of a text, bytes field or record of 2^32
 *   bytes or more the low 32 bits are written, and nobody can read the message.
 *   `segments` and `segment_count`, both optional, receive the output as segments: on entry `*segment_count` is the
 *   capacity of `segments` in elements, on return the number of segments, which may be larger: those above the capacity
 *   are only counted, as all are when `segments` is null; `segments` without a `segment_count` is ignored. Without the
 *   alias bit that is one segment, the whole output (none if it is empty). With it, each bytes field that is not empty
 *   is a segment of its own that points at the record's memory, and the result counts only the bytes in `buffer`. One
 *   after another, the segments are the message where no record is nested. Where one is, they are not: the length in
 *   front of it counts only what it has in `buffer`, and the next segment of the record around it starts where that
 *   record's own last one ended, so it covers the nested bytes again. That is for callers who lay out the segments
 *   themselves.
 *
 * Ownership
 *   A record owns its texts and arrays always, its bytes fields unless it was decoded with the alias bit. After
 *   `_free_ext` released a bytes field, the field's length and bit remain (counts of arrays become 0): decode into the
 *   record anew or zero it before using it again. `release_fn` must not be null while the record owns anything.
 *   A duplicate that cannot obtain a block goes on and returns MAVA_TUM_NO_MEMORY: what the block was for is empty and
 *   absent. An array that was obtained keeps all its elements, its count and its bit, also when some of them are
 *   incomplete in this way. */
#ifndef MAVA_TUM_CODEC_CONTRACT_H
#define MAVA_TUM_CODEC_CONTRACT_H

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
    MAVA_TUM_OK = 0, /* all was done */
    /* The input ends inside a tag or a value, or a length runs past its end; or, which is no truncation, a bytes field,
     * a text or an array occurs a second time. */
    MAVA_TUM_TRUNCATED = -1,
    /* An unknown field has wire type 3, 4, 6 or 7, which cannot be skipped. */
    MAVA_TUM_UNSUPPORTED_WIRE_TYPE = -2,
    /* A known field arrives with another wire type than its own. */
    MAVA_TUM_WRONG_WIRE_TYPE = -3,
    /* `alloc_fn` returned null, or is null where a block is needed; or an array has more than 2^32 - 1 elements; or a
     * text has 2^32 - 1 bytes, whose block of length + 1 is computed in 32 bits and asked for with size 0: should
     * `alloc_fn` give such a block, it is dropped. */
    MAVA_TUM_NO_MEMORY = -4
};

/* The alias bit of `flags`; all other bits are ignored.
 * decode: bytes fields point into the input, which must outlive the record, and are not copied.
 * encode: bytes fields become segments of their own. free: bytes fields are not released. */
enum { MAVA_TUM_ALIAS = 1 };

/* Returns a block of at least `size` bytes, aligned for any record, or null. Its content does not matter. `alloc_ctx`
 * comes from the caller, unchanged. `size` may be 0 (an empty bytes field); null then counts as a failure too. Like the
 * release callback it must return, and must not touch the record or the input at work. Where size_t has 32 bits, test
 * that `size` fits before you pass it to malloc(). */
typedef void *(*mava_tum_alloc_fn)(uint64_t size, void *alloc_ctx);

/* Gives back one block that the allocator callback returned. Never called with null. */
typedef void (*mava_tum_release_fn)(void *pointer, void *release_ctx);

/* A bytes field. `length` is in bytes. */
typedef struct mava_tum_bytes {
    uint8_t *data;   /* the first byte */
    uint64_t length; /* bytes at `data` */
} mava_tum_bytes;

/* One segment of an encoder's output. `length` is in bytes. `data` is null for a segment that lies in the buffer when
 * the call had no buffer there. */
typedef struct mava_tum_segment {
    const uint8_t *data; /* the first byte */
    uint64_t length;     /* bytes at `data` */
} mava_tum_segment;

#ifdef __cplusplus
}
#endif

#endif
