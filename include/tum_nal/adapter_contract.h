/* What all adapters share. An adapter converts between an application record and wire bytes in one call:
 *
 *     uint64_t tum_nal_data_gpb_encode_tum_<name>(const <record> *record, uint8_t *buffer, uint32_t capacity);
 *     void     tum_nal_data_gpb_decode_tum_<name>(const uint8_t *data, uint32_t length, <record> *record);
 *
 * Application record
 *   A flat structure of fixed size without pointers, owned by the caller; a record pointer must not be null. Integers
 *   are in host byte order, IPv4 addresses too (192.0.2.1 is 0xC0000201); IPv6 addresses and identifiers are byte
 *   arrays in the order of the wire. A text is a NUL-terminated char array; an empty one is absent. A list is a count
 *   and a fixed array; its first `count` elements are used. Members called `reserved_...` are not read, and zero after
 *   a decode. The layout has natural alignment and is part of the ABI. The comment of a member has the number of its
 *   field and the condition under which it is sent; most members of a session have the number in their names.
 *
 * Encode
 *   Returns the size of the message in bytes. If `capacity` (bytes) is smaller, the output is truncated: do not send
 *   it. `buffer` may be null if `capacity` is 0; it must not overlap `record`. Nothing is written beyond the returned
 *   size, and `record` is only read. A count above the number of slots is reduced to the number of slots. Every char
 *   array must contain a NUL: an array without one is read beyond its end. A buffer of TUM_NAL_<NAME>_MAX_SIZE bytes,
 *   with the function's <name> in capitals, is large enough for every record.
 *
 * Decode
 *   `record` is always overwritten completely: absent fields are zero. Nothing is reported. Of a malformed message, the
 *   fields before the fault arrive, also those of the nested record with the fault, but nothing of a list with the
 *   fault; the rest is zero. A text that is longer than its array, or than the record documents, is truncated, with a
 *   NUL. A value that is wider than its member keeps its low bits. Of a list that is longer than its array (a count in
 *   8 bits is first taken modulo 256), the first elements arrive, with their count. Of a bytes value that is longer
 *   than its array, the first bytes arrive; a shorter one is followed by zeros. `data` may be null if `length` is 0; it
 *   must not overlap `record`. Nothing is allocated, for any input.
 *
 * Stack
 *   An encode adapter needs at most 12 KiB, a decode adapter at most 4 KiB.
 *
 * Threads may call adapters at the same time on distinct records and buffers. */
#ifndef TUM_NAL_ADAPTER_CONTRACT_H
#define TUM_NAL_ADAPTER_CONTRACT_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "mava_tum/codec_contract.h"

#endif
