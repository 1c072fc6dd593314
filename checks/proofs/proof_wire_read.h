// The contracts of the 32-bit reads: src/codec/wire_read.h.
#ifndef PROOF_WIRE_READ_H
#define PROOF_WIRE_READ_H

#include "proof_span.h"

struct number_read32 {
    const uint8_t *next;
    uint32_t value;
};

struct payload {
    const uint8_t *data;
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
struct number_read32 proof_read_varint32(const uint8_t *at, const uint8_t *end);

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
struct number_read32 proof_read_started_varint32(const uint8_t *at, const uint8_t *end);

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
struct number_read32 proof_read_length_varint(const uint8_t *at, const uint8_t *end);

/*@
  requires input: span(at, end);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures position: \result.data != \null ==> inside(at, \result.data, end);
  ensures whole: \result.data != \null ==> is_varint(at, \result.data - at);
  ensures length: \result.data != \null ==> \result.length == varint32_value(at, \result.data - at);
  ensures fits: \result.data != \null ==> \result.length <= end - \result.data;
  ensures readable: \result.data != \null ==> \valid_read(\result.data + (0 .. \result.length - 1));
  ensures refused: \result.data == \null ==> \result.length == 0 &&
    \forall integer n; 1 <= n <= end - at && is_varint(at, n) ==> n + varint32_value(at, n) > end - at;
*/
struct payload proof_read_payload(const uint8_t *at, const uint8_t *end);

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
struct number_read32 proof_read_fixed32(const uint8_t *at, const uint8_t *end);

#endif
