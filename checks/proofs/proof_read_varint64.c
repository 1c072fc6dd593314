// src/codec/read_varint64.h and .cpp, line by line. What differs, and why: README.md.
#include "proof_read_varint64.h"

// The loop at the end of the original, in a function of its own for the provers' sake. `start` is the varint's first
// byte.
/*@
  requires input: span(start, end);
  requires read: inside(start, at, end) && byte == at[-1];
  requires continued: \forall integer i; 0 <= i < at - start - 1 ==> start[i] >= 0x80;
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures cut: \result == \null ==> varint_is_cut(start, end);
  ensures position: \result != \null ==> inside(start, \result, end) && at <= \result;
  ensures whole: \result != \null ==> is_varint(start, \result - start);
*/
static const uint8_t *step_over_rest(const uint8_t *start, const uint8_t *at, const uint8_t *end, uint64_t byte)
{
    (void)start;
    /*@
      loop invariant position: inside(start, at, end) && \at(at, Pre) <= at;
      loop invariant last: byte == at[-1];
      loop invariant continued: \forall integer i; 0 <= i < at - start - 1 ==> start[i] >= 0x80;
      loop assigns at, byte;
      loop variant end - at;
    */
    while (byte >= 0x80) {
        if (at == end)
            return NULL;
        byte = *at++;
    }
    return at;
}

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
static struct number_read64 read_byte_by_byte(const uint8_t *at, const uint8_t *end)
{
    const uint8_t *const start = at;
    uint64_t value = 0;
    /*@
      loop pragma UNROLL 9;
      loop invariant done: scale == 0x8000000000000000;
      loop assigns scale;
      loop variant 0;
    */
    for (uint64_t scale = 1; scale < 0x8000000000000000; scale *= 0x80) {
        //@ assert cut: at == end ==> varint_is_cut(start, end);
        if (at == end)
            return (struct number_read64){NULL, 0};
        const uint64_t byte = *at++;
        value += byte % 0x80 * scale;
        //@ assert continued: \forall integer i; 0 <= i < at - start - 1 ==> start[i] >= 0x80;
        //@ assert whole: byte < 0x80 ==> is_varint(start, at - start);
        //@ assert value: value == varint64_value(start, at - start);
        if (byte < 0x80)
            return (struct number_read64){at, value};
    }
    //@ assert cut: at == end ==> varint_is_cut(start, end);
    if (at == end)
        return (struct number_read64){NULL, 0};
    const uint64_t byte = *at++;
    value += byte % 2 * 0x8000000000000000;
    at = step_over_rest(start, at, end, byte);
    if (at == NULL)
        return (struct number_read64){NULL, 0};
    return (struct number_read64){at, value};
}

// The bytes of the varint among the eight at `at`, or 0 where none of them ends it.
/*@
  requires word: \valid_read(at + (0 .. 7));
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures none: \result == 0 ==> \forall integer i; 0 <= i < 8 ==> at[i] >= 0x80;
  ensures whole: \result != 0 ==> \result <= 8 && is_varint(at, \result);
*/
static uint32_t bytes_to_stop(const uint8_t *at)
{
    /*@
      loop invariant range: 0 <= i <= 8;
      loop invariant continued: \forall integer k; 0 <= k < i ==> at[k] >= 0x80;
      loop assigns i;
      loop variant 8 - i;
    */
    for (uint32_t i = 0; i < 8; ++i) {
        if (at[i] < 0x80)
            return i + 1;
    }
    return 0;
}

// What byte `i` of a word adds, where only the first `bytes` count.
/*@
  requires word: \valid_read(at + (0 .. 7));
  requires range: i < 8 && bytes <= 8;
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures part: \result == group(at, bytes, i);
*/
static uint64_t group_of(const uint8_t *at, uint32_t bytes, uint32_t i)
{
    return i < bytes ? at[i] % 0x80 : 0;
}

/*@
  requires word: \valid_read(at + (0 .. 7));
  requires range: 1 <= bytes <= 8;
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures value: \result == varint64_value(at, bytes);
*/
static uint64_t join_groups(const uint8_t *at, uint32_t bytes)
{
    uint64_t value = group_of(at, bytes, 0);
    value += group_of(at, bytes, 1) * 0x80;
    value += group_of(at, bytes, 2) * 0x4000;
    value += group_of(at, bytes, 3) * 0x200000;
    value += group_of(at, bytes, 4) * 0x10000000;
    value += group_of(at, bytes, 5) * 0x800000000;
    value += group_of(at, bytes, 6) * 0x40000000000;
    value += group_of(at, bytes, 7) * 0x2000000000000;
    return value;
}

struct number_read64 proof_read_long_varint64(const uint8_t *at, const uint8_t *end)
{
    if ((uint64_t)(end - at) < 8)
        return read_byte_by_byte(at, end);
    const uint32_t bytes = bytes_to_stop(at);
    if (bytes == 0)
        return read_byte_by_byte(at, end);
    return (struct number_read64){at + bytes, join_groups(at, bytes)};
}

struct number_read64 proof_read_varint64(const uint8_t *at, const uint8_t *end)
{
    if (at == end)
        return (struct number_read64){NULL, 0};
    if (*at < 0x80)
        return (struct number_read64){at + 1, *at};
    return proof_read_long_varint64(at, end);
}
