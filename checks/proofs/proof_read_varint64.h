// The contract of the 64-bit read: src/codec/read_varint64.h.
#ifndef PROOF_READ_VARINT64_H
#define PROOF_READ_VARINT64_H

#include "proof_span.h"

struct number_read64 {
    const uint8_t *next;
    uint64_t value;
};

/*@
  // The low 64 bits of a varint: nine groups and the lowest bit of the tenth byte.
  logic integer varint64_value(uint8_t *at, integer bytes) =
    group(at, bytes, 0) + 0x80 * group(at, bytes, 1) + 0x4000 * group(at, bytes, 2) +
    0x200000 * group(at, bytes, 3) + 0x10000000 * group(at, bytes, 4) + 0x800000000 * group(at, bytes, 5) +
    0x40000000000 * group(at, bytes, 6) + 0x2000000000000 * group(at, bytes, 7) +
    0x100000000000000 * group(at, bytes, 8) + (bytes > 9 ? 0x8000000000000000 * (at[9] % 2) : 0);
*/

/*@
  requires input: span(at, end);
  requires started: at < end;
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures cut: \result.next == \null ==> varint_is_cut(at, end) && \result.value == 0;
  ensures position: \result.next != \null ==> inside(at, \result.next, end);
  ensures whole: \result.next != \null ==> is_varint(at, \result.next - at);
  ensures value: \result.next != \null ==> \result.value == varint64_value(at, \result.next - at);
*/
struct number_read64 proof_read_long_varint64(const uint8_t *at, const uint8_t *end);

/*@
  requires input: span(at, end);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures cut: \result.next == \null ==> varint_is_cut(at, end) && \result.value == 0;
  ensures position: \result.next != \null ==> inside(at, \result.next, end);
  ensures whole: \result.next != \null ==> is_varint(at, \result.next - at);
  ensures value: \result.next != \null ==> \result.value == varint64_value(at, \result.next - at);
*/
struct number_read64 proof_read_varint64(const uint8_t *at, const uint8_t *end);

#endif
