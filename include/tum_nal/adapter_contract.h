/* What all adapters share. An adapter converts between an application record and wire bytes in one call:
 *
 *     uint64_t tum_nal_data_gpb_encode_tum_<name>(const <record> *record, uint8_t *buffer, uint32_t capacity);
 *     void     tum_nal_data_gpb_decode_tum_<name>(const uint8_t *data, uint32_t length, <record> *record);
 *
 * Application record
 *   A flat structure of fixed size without pointers, owned by the caller; a record pointer must not be null. Integers
 *   are in host byte order, IPv4 addresses too (192.0.2.1 is 0xC0000201); IPv6 addresses and identifiers are byte
 *   arrays as they stand on the wire. A text is a NUL-terminated char array; an empty one is absent. A repeated part is
 *   a count and a fixed array, of which the first `count` elements are used. Members called `reserved_...` are neither
 *   read nor set to anything but zero. The layout is natural alignment, part of the ABI. Beside a member: its field's
 *   number, which most members of a session have in their names instead, and when it is sent.
 *
 * Encode
 *   Returns the size of the message in bytes, also when `capacity` (bytes) is smaller: the output was then cut and
 *   must not be sent. `buffer` may be null when `capacity` is 0; it must not overlap `record`. Nothing is written
 *   beyond the returned size, and `record` is only read. A count above the number of slots is taken as the number of
 *   slots. Every char array must contain a NUL: an array without one is read beyond its end.
 *   No message is larger than TUM_NAL_<NAME>_MAX_SIZE bytes, the function's <name> in capitals: a buffer of that size
 *   takes every record.
 *
 * Decode
 *   `record` is always overwritten as a whole: absent fields are zero. Nothing is reported: of a malformed message the
 *   fields before the fault arrive, also those of the nested record that it lies in, but nothing of the list that it
 *   lies in; the rest is zero. Texts longer than their array, or than the record says that it takes, are cut, with a
 *   NUL; values wider than their member keep their low bits; of a list longer than its array (a count in 8 bits is
 *   first taken modulo 256) the first elements arrive and the count says how many; of a bytes value longer than its
 *   array the first bytes arrive, a shorter one is followed by zeros. `data` may be null when `length` is 0; it must
 *   not overlap `record`. Nothing is allocated, whatever the input: all that a call needs is its stack.
 *
 * Stack
 *   An encode adapter needs at most 12 KiB, a decode adapter at most 4 KiB.
 *
 * Threads may call adapters at the same time on distinct records and buffers. */
#ifndef TUM_NAL_ADAPTER_CONTRACT_H
#define TUM_NAL_ADAPTER_CONTRACT_H

#include "mava_tum/codec_contract.h"

#endif
