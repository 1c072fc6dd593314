// The contracts of the 32-bit reads: src/codec/wire_read.h.
#ifndef PROOF_WIRE_READ_H
#define PROOF_WIRE_READ_H

#include "proof_span.h"

struct varint32_end {
    const uint8_t *next;
    uint32_t value;
};

struct length_end {
    const uint8_t *value;
    uint32_t length;
};

/*@
  requires input: span(at, end);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures cut: \result.next == \null ==> varint_is_cut(at, end) && \result.value == 0;
  ensures position: \result.next != \null ==> inside(at, \result.next, end);
  ensures whole: \result.next != \null ==> is_varint(at, \result.next - at);
  ensures value: \result.next != \null ==> \result.value == varint32_value(at, \result.next - at);
*/
struct varint32_end proof_read_varint32(const uint8_t *at, const uint8_t *end);

/*@
  requires input: span(at, end);
  requires started: at < end;
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures cut: \result.next == \null ==> varint_is_cut(at, end) && \result.value == 0;
  ensures position: \result.next != \null ==> inside(at, \result.next, end);
  ensures whole: \result.next != \null ==> is_varint(at, \result.next - at);
  ensures value: \result.next != \null ==> \result.value == varint32_value(at, \result.next - at);
*/
struct varint32_end proof_read_started_varint32(const uint8_t *at, const uint8_t *end);

/*@
  requires input: span(at, end);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures cut: \result.next == \null ==> varint_is_cut(at, end) && \result.value == 0;
  ensures position: \result.next != \null ==> inside(at, \result.next, end);
  ensures whole: \result.next != \null ==> is_varint(at, \result.next - at);
  ensures value: \result.next != \null ==> \result.value == varint32_value(at, \result.next - at);
*/
struct varint32_end proof_read_length_varint(const uint8_t *at, const uint8_t *end);

/*@
  requires input: span(at, end);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures position: \result.value != \null ==> inside(at, \result.value, end);
  ensures whole: \result.value != \null ==> is_varint(at, \result.value - at);
  ensures length: \result.value != \null ==> \result.length == varint32_value(at, \result.value - at);
  ensures fits: \result.value != \null ==> \result.length <= end - \result.value;
  ensures readable: \result.value != \null ==> \valid_read(\result.value + (0 .. \result.length - 1));
  ensures refused: \result.value == \null ==> \result.length == 0 &&
    \forall integer n; 1 <= n <= end - at && is_varint(at, n) ==> n + varint32_value(at, n) > end - at;
*/
struct length_end proof_read_length(const uint8_t *at, const uint8_t *end);

/*@
  requires input: span(at, end);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures answer: \result != 0 <==> end - at >= 1 && at[0] < 0x80 && 1 + at[0] <= end - at;
*/
int proof_is_short_payload(const uint8_t *at, const uint8_t *end);

/*@
  requires input: span(at, end);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures cut: \result.next == \null <==> end - at < 4;
  ensures empty: \result.next == \null ==> \result.value == 0;
  ensures position: \result.next != \null ==> \result.next == at + 4;
  ensures value: \result.next != \null ==>
    \result.value == at[0] + 0x100 * at[1] + 0x10000 * at[2] + 0x1000000 * at[3];
*/
struct varint32_end proof_read_fixed32(const uint8_t *at, const uint8_t *end);

#endif
