// The 32-bit reads of src/codec/wire_read.h, line by line. What differs, and why: README.md.
#include "proof_wire_read.h"

struct number_read32 proof_read_varint32(const uint8_t *at, const uint8_t *end)
{
    //@ ghost const uint8_t *start = at;
    if (at == end)
        return (struct number_read32){NULL, 0};
    uint32_t byte = *at++;
    uint32_t value = byte;
    if (byte < 0x80)
        return (struct number_read32){at, value};
    if (at == end)
        return (struct number_read32){NULL, 0};
    byte = *at++;
    value = value - 0x80 + byte * 0x80;
    //@ assert second: value == group(start, 2, 0) + 0x80 * start[1];
    if (byte < 0x80)
        return (struct number_read32){at, value};
    if (at == end)
        return (struct number_read32){NULL, 0};
    byte = *at++;
    value = value - 0x4000 + byte * 0x4000;
    //@ assert third: value == group(start, 3, 0) + 0x80 * group(start, 3, 1) + 0x4000 * start[2];
    if (byte < 0x80)
        return (struct number_read32){at, value};
    if (at == end)
        return (struct number_read32){NULL, 0};
    byte = *at++;
    value = value - 0x200000 + byte * 0x200000;
    /*@ assert fourth: value == group(start, 4, 0) + 0x80 * group(start, 4, 1) + 0x4000 * group(start, 4, 2) +
          0x200000 * start[3]; */
    if (byte < 0x80)
        return (struct number_read32){at, value};
    if (at == end)
        return (struct number_read32){NULL, 0};
    byte = *at++;
    value = value - 0x10000000 + byte % 0x10 * 0x10000000;
    //@ assert fifth: value == varint32_value(start, 5);
    /*@
      loop invariant position: \base_addr(at) == \base_addr(start) && start + 5 <= at <= end;
      loop invariant last: byte == at[-1];
      loop invariant continued: \forall integer i; 0 <= i < at - start - 1 ==> start[i] >= 0x80;
      loop assigns at, byte;
      loop variant end - at;
    */
    while (byte >= 0x80) {
        if (at == end)
            return (struct number_read32){NULL, 0};
        byte = *at++;
    }
    return (struct number_read32){at, value};
}

struct number_read32 proof_read_started_varint32(const uint8_t *at, const uint8_t *end)
{
    uint32_t byte = *at++;
    if (byte < 0x80)
        return (struct number_read32){at, byte};
    if (at == end)
        return (struct number_read32){NULL, 0};
    uint32_t value = byte % 0x80;
    byte = *at++;
    value += byte % 0x80 * 0x80;
    if (byte < 0x80)
        return (struct number_read32){at, value};
    return proof_read_varint32(at - 2, end);
}

struct number_read32 proof_read_length_varint(const uint8_t *at, const uint8_t *end)
{
    if (at == end)
        return (struct number_read32){NULL, 0};
    return proof_read_started_varint32(at, end);
}

struct payload proof_read_payload(const uint8_t *at, const uint8_t *end)
{
    const struct number_read32 length = proof_read_length_varint(at, end);
    if (length.next == NULL || length.value > (uint64_t)(end - length.next))
        return (struct payload){NULL, 0};
    return (struct payload){length.next, length.value};
}

int proof_is_short_payload(const uint8_t *at, const uint8_t *end)
{
    return at != end && *at < 0x80 && *at < end - at;
}

struct number_read32 proof_read_fixed32(const uint8_t *at, const uint8_t *end)
{
    if ((uint64_t)(end - at) < 4)
        return (struct number_read32){NULL, 0};
    uint32_t value = at[0];
    value += (uint32_t)at[1] * 0x100;
    value += (uint32_t)at[2] * 0x10000;
    value += (uint32_t)at[3] * 0x1000000;
    return (struct number_read32){at + 4, value};
}
