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

struct varint64_end proof_read_long_varint64(const uint8_t *at, const uint8_t *end, uint8_t first)
{
    const uint8_t *const start = at - 1;
    uint64_t value = first % 0x80;
    /*@
      loop pragma UNROLL 8;
      loop invariant done: scale == 0x8000000000000000;
      loop assigns scale;
      loop variant 0;
    */
    for (uint64_t scale = 0x80; scale < 0x8000000000000000; scale *= 0x80) {
        //@ assert cut: at == end ==> varint_is_cut(start, end);
        if (at == end)
            return (struct varint64_end){NULL, 0};
        const uint64_t byte = *at++;
        value += byte % 0x80 * scale;
        //@ assert continued: \forall integer i; 0 <= i < at - start - 1 ==> start[i] >= 0x80;
        //@ assert whole: byte < 0x80 ==> is_varint(start, at - start);
        //@ assert value: value == varint64_value(start, at - start);
        if (byte < 0x80)
            return (struct varint64_end){at, value};
    }
    //@ assert cut: at == end ==> varint_is_cut(start, end);
    if (at == end)
        return (struct varint64_end){NULL, 0};
    const uint64_t byte = *at++;
    value += byte % 2 * 0x8000000000000000;
    at = step_over_rest(start, at, end, byte);
    if (at == NULL)
        return (struct varint64_end){NULL, 0};
    return (struct varint64_end){at, value};
}

struct varint64_end proof_read_varint64(const uint8_t *at, const uint8_t *end)
{
    if (at == end)
        return (struct varint64_end){NULL, 0};
    const uint8_t first = *at++;
    if (first < 0x80)
        return (struct varint64_end){at, first};
    return proof_read_long_varint64(at, end, first);
}
