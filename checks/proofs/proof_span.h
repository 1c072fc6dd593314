// The inputs that the proofs speak about: any number of bytes, and what a varint is in them.
#ifndef PROOF_SPAN_H
#define PROOF_SPAN_H

#include <stddef.h>
#include <stdint.h>

/*@
  // The bytes from `at` to before `end`. Nothing outside of them may be read: nothing says that it could be.
  predicate span(uint8_t *at, uint8_t *end) =
    \base_addr(at) == \base_addr(end) && 0 <= end - at <= 0x7FFFFFFFFFFFFFFF &&
    \valid_read(at + (0 .. end - at - 1)) && \object_pointer(at) && \object_pointer(end);

  // A position after at least one byte of the span.
  predicate inside(uint8_t *at, uint8_t *next, uint8_t *end) =
    \base_addr(next) == \base_addr(at) && 1 <= next - at <= end - at;

  // Only the last of the first `bytes` bytes does not continue.
  predicate is_varint(uint8_t *at, integer bytes) =
    1 <= bytes && at[bytes - 1] < 0x80 && \forall integer i; 0 <= i < bytes - 1 ==> at[i] >= 0x80;

  // Every byte of the span continues: the input ends inside the varint, or before it.
  predicate varint_is_cut(uint8_t *at, uint8_t *end) =
    \forall integer i; 0 <= i < end - at ==> at[i] >= 0x80;

  // What byte `i` of a varint of `bytes` bytes adds, before it is shifted.
  logic integer group(uint8_t *at, integer bytes, integer i) = i < bytes ? at[i] % 0x80 : 0;

  // The low 32 bits of a varint: five groups, of which the last loses its upper bits.
  logic integer varint32_value(uint8_t *at, integer bytes) =
    group(at, bytes, 0) + 0x80 * group(at, bytes, 1) + 0x4000 * group(at, bytes, 2) +
    0x200000 * group(at, bytes, 3) + 0x10000000 * (bytes > 4 ? at[4] % 0x10 : 0);
*/

#endif
