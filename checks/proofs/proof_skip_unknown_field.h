// The contract of the step over unknown fields: src/codec/skip_unknown_field.h.
#ifndef PROOF_SKIP_UNKNOWN_FIELD_H
#define PROOF_SKIP_UNKNOWN_FIELD_H

#include "proof_wire_read.h"

struct field_read {
    const uint8_t *next;
    int32_t failure;
};

/*@
  // `bytes` further, or the end where that is nearer.
  logic uint8_t *stepped(uint8_t *at, uint8_t *end, integer bytes) = bytes > end - at ? end : at + bytes;
*/

/*@
  requires input: span(at, end);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures unsupported: type != 0 && type != 1 && type != 2 && type != 5 ==>
    \result.next == \null && \result.failure == -2;
  ensures fixed: type == 1 || type == 5 ==>
    \result.next == stepped(at, end, type == 1 ? 8 : 4) && \result.failure == 0;
  ensures cut: (type == 0 || type == 2) && \result.next == \null ==> varint_is_cut(at, end) && \result.failure == -1;
  ensures position: \result.next != \null ==>
    \base_addr(\result.next) == \base_addr(at) && 0 <= \result.next - at <= end - at;
  ensures varint: type == 0 && \result.next != \null ==> is_varint(at, \result.next - at) && \result.failure == 0;
  ensures length_delimited: type == 2 && \result.next != \null ==> \result.failure == 0 &&
    \exists integer n; 1 <= n <= end - at && is_varint(at, n) &&
      \result.next == stepped(at + n, end, varint32_value(at, n));
*/
struct field_read proof_skip_unknown_field(uint32_t type, const uint8_t *at, const uint8_t *end);

#endif
