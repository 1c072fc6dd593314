// The varints of src/codec/wire_write.h, line by line. What differs, and why: README.md.
#include "proof_wire_write.h"

uint64_t proof_varint_bytes(uint64_t value)
{
    uint64_t bytes = 1;
    /*@
      loop invariant range: 1 <= bytes <= 10;
      loop invariant value: value == shifted(\at(value, Pre), bytes - 1);
      loop invariant needed: bytes <= varint_size(\at(value, Pre));
      loop assigns value, bytes;
      loop variant value;
    */
    for (; value >= 0x80; value /= 0x80)
        ++bytes;
    return bytes;
}

uint8_t *proof_store_varint(uint8_t *at, uint64_t value)
{
    //@ ghost uint8_t *start = at;
    //@ ghost uint64_t written = 0;
    /*@
      loop invariant range: 0 <= written <= 9;
      loop invariant position: at == start + written;
      loop invariant value: value == shifted(\at(value, Pre), written);
      loop invariant needed: written < varint_size(\at(value, Pre));
      loop invariant stored: \forall integer i; 0 <= i < written ==> start[i] == varint_byte(\at(value, Pre), i);
      loop assigns value, at, written, start[0 .. varint_size(\at(value, Pre)) - 1];
      loop variant value;
    */
    for (; value >= 0x80; value /= 0x80) {
        *at++ = (uint8_t)(value % 0x80 + 0x80);
        //@ ghost ++written;
    }
    *at++ = (uint8_t)value;
    return at;
}

// Byte `i` of the word that the original stores at once: the tag, the varint, zeros.
/*@
  requires tag: is_tag(tag);
  requires range: i < 8;
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures tag: i < tag.length ==> \result == tag_byte(tag, i);
  ensures varint: tag.length <= i < tag.length + varint_size(value) ==> \result == varint_byte(value, i - tag.length);
  ensures rest: i >= tag.length + varint_size(value) ==> \result == 0;
*/
static uint8_t word_byte(struct field_tag tag, uint32_t value, uint32_t i)
{
    if (i < tag.length)
        return (uint8_t)(i == 0 ? tag.bytes % 0x100 : tag.bytes / 0x100);
    const uint32_t bytes = (uint32_t)proof_varint_bytes(value);
    uint32_t left = value;
    /*@
      loop invariant range: tag.length <= k <= i;
      loop invariant value: k - tag.length < bytes ==> left == shifted(value, k - tag.length);
      loop assigns k, left;
      loop variant i - k;
    */
    for (uint32_t k = tag.length; k < i; ++k)
        left /= 0x80;
    if (i >= tag.length + bytes)
        return 0;
    return (uint8_t)(left % 0x80 + (i + 1 < tag.length + bytes ? 0x80 : 0));
}

uint8_t *proof_put_counter(uint8_t *at, struct field_tag tag, uint32_t value)
{
    /*@
      loop invariant range: 0 <= i <= 8;
      loop invariant tag: \forall integer k; 0 <= k < i && k < tag.length ==> at[k] == tag_byte(tag, k);
      loop invariant stored: \forall integer k; 0 <= k < varint_size(value) && tag.length + k < i ==>
        at[tag.length + k] == varint_byte(value, k);
      loop assigns i, at[0 .. 7];
      loop variant 8 - i;
    */
    for (uint32_t i = 0; i < 8; ++i)
        at[i] = word_byte(tag, value, i);
    return at + tag.length + proof_varint_bytes(value);
}
