// The contracts of the exact encoder: src/codec/counting_writer.h. In gather mode, pieces are not part of them.
#ifndef PROOF_COUNTING_WRITER_H
#define PROOF_COUNTING_WRITER_H

#include "proof_span.h"

struct counting_writer {
    uint8_t *buffer;
    uint64_t length;
    uint64_t position;
};

/*@
  // Nothing but the first `length` bytes of the buffer may be written, and none of it where `length` is 0.
  predicate is_writer{L}(struct counting_writer *writer) =
    \valid(writer) && 0 <= writer->length <= 0x7FFFFFFFFFFFFFFF &&
    \valid(writer->buffer + (0 .. writer->length - 1)) &&
    \separated(writer, writer->buffer + (0 .. writer->length - 1));

  // The buffer is as it was, but for the bytes from `first` to before `past`.
  predicate kept_but{Before, After}(struct counting_writer *writer, integer first, integer past) =
    \forall integer i; 0 <= i < \at(writer->length, After) && !(first <= i < past) ==>
      \at(writer->buffer[i], After) == \at(writer->buffer[i], Before);

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

  // The varint stands at `first`, as far as the buffer goes.
  predicate varint_stands{L}(struct counting_writer *writer, integer first, integer value) =
    \forall integer i; 0 <= i < varint_size(value) && first + i < writer->length ==>
      writer->buffer[first + i] == varint_byte(value, i);

  logic integer advanced(integer position, integer bytes) =
    position + bytes > 0xFFFFFFFFFFFFFFFF ? position : position + bytes;
*/

/*@
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures size: \result == varint_size(value) && 1 <= \result <= 10;
*/
uint64_t proof_varint_bytes(uint64_t value);

/*@
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures sum: \result == advanced(position, payload_bytes);
*/
uint64_t proof_advance(uint64_t position, uint64_t payload_bytes);

/*@
  requires writer: is_writer(writer);
  terminates \true;
  exits \false;
  assigns writer->position, writer->buffer[0 .. writer->length - 1];
  ensures position: \old(writer->position) < 0xFFFFFFFFFFFFFFFF ==> writer->position == \old(writer->position) + 1;
  ensures stored: \old(writer->position) < writer->length ==> writer->buffer[\old(writer->position)] == value;
  ensures kept: kept_but{Pre, Here}(writer, \old(writer->position), \old(writer->position) + 1);
*/
void proof_writer_byte(struct counting_writer *writer, uint8_t value);

/*@
  requires writer: is_writer(writer);
  terminates \true;
  exits \false;
  assigns writer->position, writer->buffer[0 .. writer->length - 1];
  ensures position: \old(writer->position) + 10 <= 0xFFFFFFFFFFFFFFFF ==>
    writer->position == \old(writer->position) + varint_size(value);
  ensures stored: \old(writer->position) + 10 <= 0xFFFFFFFFFFFFFFFF ==>
    varint_stands(writer, \old(writer->position), value);
  ensures kept: \old(writer->position) + 10 <= 0xFFFFFFFFFFFFFFFF ==>
    kept_but{Pre, Here}(writer, \old(writer->position), writer->position);
*/
void proof_writer_varint(struct counting_writer *writer, uint64_t value);

/*@
  requires writer: is_writer(writer);
  terminates \true;
  exits \false;
  assigns writer->position, writer->buffer[0 .. writer->length - 1];
  ensures position: \old(writer->position) + 4 <= 0xFFFFFFFFFFFFFFFF ==>
    writer->position == \old(writer->position) + 4;
  ensures stored: \old(writer->position) + 4 <= 0xFFFFFFFFFFFFFFFF ==> \let first = \old(writer->position);
    (first < writer->length ==> writer->buffer[first] == value % 0x100) &&
    (first + 1 < writer->length ==> writer->buffer[first + 1] == value / 0x100 % 0x100) &&
    (first + 2 < writer->length ==> writer->buffer[first + 2] == value / 0x10000 % 0x100) &&
    (first + 3 < writer->length ==> writer->buffer[first + 3] == value / 0x1000000);
  ensures kept: \old(writer->position) + 4 <= 0xFFFFFFFFFFFFFFFF ==>
    kept_but{Pre, Here}(writer, \old(writer->position), writer->position);
*/
void proof_writer_fixed32(struct counting_writer *writer, uint32_t value);

/*@
  requires writer: is_writer(writer);
  requires data: data != \null ==> \valid_read(data + (0 .. payload_length - 1)) &&
    \separated(data + (0 .. payload_length - 1), writer, writer->buffer + (0 .. writer->length - 1));
  terminates \true;
  exits \false;
  assigns writer->position, writer->buffer[0 .. writer->length - 1];
  ensures position: writer->position == advanced(\old(writer->position), payload_length);
  ensures stored_whole: data != \null && writer->position <= writer->length &&
    writer->position != \old(writer->position) ==>
    \forall integer i; 0 <= i < payload_length ==> writer->buffer[\old(writer->position) + i] == data[i];
  ensures kept: kept_but{Pre, Here}(writer, \old(writer->position), writer->position);
  ensures or_not_at_all: data == \null || writer->position > writer->length ==> kept_but{Pre, Here}(writer, 0, 0);
*/
void proof_writer_copy(struct counting_writer *writer, const uint8_t *data, uint64_t payload_length);

/*@
  requires writer: is_writer(writer);
  requires data: data != \null ==> \valid_read(data + (0 .. payload_length - 1)) &&
    \separated(data + (0 .. payload_length - 1), writer, writer->buffer + (0 .. writer->length - 1));
  terminates \true;
  exits \false;
  assigns writer->position, writer->buffer[0 .. writer->length - 1];
  ensures position: \old(writer->position) + 20 <= 0xFFFFFFFFFFFFFFFF ==> writer->position ==
    advanced(\old(writer->position) + varint_size(tag) + varint_size((uint32_t)payload_length), payload_length);
  ensures stored_tag: \old(writer->position) + 20 <= 0xFFFFFFFFFFFFFFFF ==>
    varint_stands(writer, \old(writer->position), tag);
  ensures stored_length: \old(writer->position) + 20 <= 0xFFFFFFFFFFFFFFFF ==>
    varint_stands(writer, \old(writer->position) + varint_size(tag), (uint32_t)payload_length);
  ensures stored_whole: \old(writer->position) + 20 <= 0xFFFFFFFFFFFFFFFF ==>
    \let payload = \old(writer->position) + varint_size(tag) + varint_size((uint32_t)payload_length);
    data != \null && payload + payload_length <= writer->length ==>
      \forall integer i; 0 <= i < payload_length ==> writer->buffer[payload + i] == data[i];
  ensures kept: \old(writer->position) + 20 <= 0xFFFFFFFFFFFFFFFF ==>
    kept_but{Pre, Here}(writer, \old(writer->position), writer->position);
  ensures whole_or_not_at_all: \old(writer->position) + 20 <= 0xFFFFFFFFFFFFFFFF ==>
    \let payload = \old(writer->position) + varint_size(tag) + varint_size((uint32_t)payload_length);
    data == \null || payload + payload_length > writer->length ==>
      kept_but{Pre, Here}(writer, \old(writer->position), payload);
*/
void proof_writer_block(struct counting_writer *writer, uint32_t tag, const uint8_t *data, uint64_t payload_length);

/*@
  requires writer: is_writer(writer);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures rest: writer->position < writer->length ==> \result.buffer == writer->buffer + writer->position &&
    \result.length == writer->length - writer->position;
  ensures nothing_left: writer->position >= writer->length ==> \result.buffer == \null && \result.length == 0;
  ensures start: \result.position == 0;
  ensures inside: \valid(\result.buffer + (0 .. \result.length - 1));
*/
struct counting_writer proof_writer_nested(const struct counting_writer *writer);

#endif
