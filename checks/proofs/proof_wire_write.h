// The contracts of the write primitives: src/codec/wire_write.h.
#ifndef PROOF_WIRE_WRITE_H
#define PROOF_WIRE_WRITE_H

#include "proof_span.h"

struct field_tag {
    uint32_t bytes;
    uint32_t length;
};

/*@
  // The bytes of the shortest varint of `value`.
  logic integer varint_size(integer value) =
    value < 0x80 ? 1 : value < 0x4000 ? 2 : value < 0x200000 ? 3 : value < 0x10000000 ? 4 : value < 0x800000000 ? 5 :
    value < 0x40000000000 ? 6 : value < 0x2000000000000 ? 7 : value < 0x100000000000000 ? 8 :
    value < 0x8000000000000000 ? 9 : 10;

  // `value` without its lowest `i` groups of seven bits.
  logic integer shifted(integer value, integer i) =
    i == 0 ? value : i == 1 ? value / 0x80 : i == 2 ? value / 0x4000 : i == 3 ? value / 0x200000 :
    i == 4 ? value / 0x10000000 : i == 5 ? value / 0x800000000 : i == 6 ? value / 0x40000000000 :
    i == 7 ? value / 0x2000000000000 : i == 8 ? value / 0x100000000000000 : value / 0x8000000000000000;

  // Byte `i` of that varint.
  logic integer varint_byte(integer value, integer i) =
    shifted(value, i) % 0x80 + (i + 1 < varint_size(value) ? 0x80 : 0);

  // A tag of one or two bytes, the first one lowest.
  predicate is_tag(struct field_tag tag) =
    tag.length == 1 && tag.bytes < 0x80 || tag.length == 2 && 0x80 <= tag.bytes % 0x100 && tag.bytes < 0x8000;

  logic integer tag_byte(struct field_tag tag, integer i) = i == 0 ? tag.bytes % 0x100 : tag.bytes / 0x100;
*/

/*@
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures size: \result == varint_size(value) && 1 <= \result <= 10;
*/
uint64_t proof_varint_bytes(uint64_t value);

/*@
  requires room: \valid(at + (0 .. varint_size(value) - 1));
  terminates \true;
  exits \false;
  assigns at[0 .. varint_size(value) - 1];
  ensures position: \result == at + varint_size(value);
  ensures stored: \forall integer i; 0 <= i < varint_size(value) ==> at[i] == varint_byte(value, i);
*/
uint8_t *proof_store_varint(uint8_t *at, uint64_t value);

/*@
  requires room: \valid(at + (0 .. 7));
  requires tag: is_tag(tag);
  terminates \true;
  exits \false;
  assigns at[0 .. 7];
  ensures position: \result == at + tag.length + varint_size(value) && \result - at <= 7;
  ensures tag: \forall integer i; 0 <= i < tag.length ==> at[i] == tag_byte(tag, i);
  ensures stored: \forall integer i; 0 <= i < varint_size(value) ==> at[tag.length + i] == varint_byte(value, i);
*/
uint8_t *proof_put_counter(uint8_t *at, struct field_tag tag, uint32_t value);

#endif
