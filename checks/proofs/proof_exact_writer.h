// The contracts of the exact path: src/codec/exact_writer.h. In gather mode, segments are not part of them.
#ifndef PROOF_EXACT_WRITER_H
#define PROOF_EXACT_WRITER_H

#include "proof_wire_write.h"

#include <stdbool.h>

struct exact_writer {
    uint8_t *buffer;
    uint64_t length;
    uint64_t position;
};

/*@
  // Nothing but the first `length` bytes of the buffer may be written, and none of it where `length` is 0.
  predicate is_writer{L}(struct exact_writer *writer) =
    \valid(writer) && 0 <= writer->length <= 0x7FFFFFFFFFFFFFFF &&
    \valid(writer->buffer + (0 .. writer->length - 1)) &&
    \separated(writer, writer->buffer + (0 .. writer->length - 1));

  // The buffer is as it was, but for the bytes from `first` to before `past`.
  predicate kept_but{Before, After}(struct exact_writer *writer, integer first, integer past) =
    \forall integer i; 0 <= i < \at(writer->length, After) && !(first <= i < past) ==>
      \at(writer->buffer[i], After) == \at(writer->buffer[i], Before);

  // The varint stands at `first`, as far as the buffer goes.
  predicate varint_stands{L}(struct exact_writer *writer, integer first, integer value) =
    \forall integer i; 0 <= i < varint_size(value) && first + i < writer->length ==>
      writer->buffer[first + i] == varint_byte(value, i);

  // So does the tag.
  predicate tag_stands{L}(struct exact_writer *writer, integer first, struct field_tag tag) =
    \forall integer i; 0 <= i < tag.length && first + i < writer->length ==>
      writer->buffer[first + i] == tag_byte(tag, i);

  logic integer advanced(integer position, integer bytes) =
    position + bytes > 0xFFFFFFFFFFFFFFFF ? position : position + bytes;
*/

/*@
  requires writer: is_writer(writer);
  requires tag: is_tag(tag);
  terminates \true;
  exits \false;
  assigns writer->position, writer->buffer[0 .. writer->length - 1];
  ensures position: \old(writer->position) + 12 <= 0xFFFFFFFFFFFFFFFF ==>
    writer->position == \old(writer->position) + tag.length + varint_size(value);
  ensures stored_tag: \old(writer->position) + 12 <= 0xFFFFFFFFFFFFFFFF ==>
    tag_stands(writer, \old(writer->position), tag);
  ensures stored: \old(writer->position) + 12 <= 0xFFFFFFFFFFFFFFFF ==>
    varint_stands(writer, \old(writer->position) + tag.length, value);
  ensures kept: \old(writer->position) + 12 <= 0xFFFFFFFFFFFFFFFF ==>
    kept_but{Pre, Here}(writer, \old(writer->position), writer->position);
*/
void proof_writer_varint_field(struct exact_writer *writer, struct field_tag tag, uint64_t value);

/*@
  requires writer: is_writer(writer);
  requires tag: is_tag(tag);
  terminates \true;
  exits \false;
  assigns writer->position, writer->buffer[0 .. writer->length - 1];
  ensures position: \old(writer->position) + 6 <= 0xFFFFFFFFFFFFFFFF ==>
    writer->position == \old(writer->position) + tag.length + 4;
  ensures stored_tag: \old(writer->position) + 6 <= 0xFFFFFFFFFFFFFFFF ==>
    tag_stands(writer, \old(writer->position), tag);
  ensures stored: \old(writer->position) + 6 <= 0xFFFFFFFFFFFFFFFF ==>
    \let first = \old(writer->position) + tag.length;
    (first < writer->length ==> writer->buffer[first] == value % 0x100) &&
    (first + 1 < writer->length ==> writer->buffer[first + 1] == value / 0x100 % 0x100) &&
    (first + 2 < writer->length ==> writer->buffer[first + 2] == value / 0x10000 % 0x100) &&
    (first + 3 < writer->length ==> writer->buffer[first + 3] == value / 0x1000000);
  ensures kept: \old(writer->position) + 6 <= 0xFFFFFFFFFFFFFFFF ==>
    kept_but{Pre, Here}(writer, \old(writer->position), writer->position);
*/
void proof_writer_fixed32_field(struct exact_writer *writer, struct field_tag tag, uint32_t value);

/*@
  requires writer: is_writer(writer);
  requires tag: is_tag(tag);
  requires data: data != \null ==> \valid_read(data + (0 .. payload_length - 1)) &&
    \separated(data + (0 .. payload_length - 1), writer, writer->buffer + (0 .. writer->length - 1));
  terminates \true;
  exits \false;
  assigns writer->position, writer->buffer[0 .. writer->length - 1];
  ensures position: \old(writer->position) + 20 <= 0xFFFFFFFFFFFFFFFF ==> writer->position ==
    advanced(\old(writer->position) + tag.length + varint_size((uint32_t)payload_length), payload_length);
  ensures stored_tag: \old(writer->position) + 20 <= 0xFFFFFFFFFFFFFFFF ==>
    tag_stands(writer, \old(writer->position), tag);
  ensures stored_length: \old(writer->position) + 20 <= 0xFFFFFFFFFFFFFFFF ==>
    varint_stands(writer, \old(writer->position) + tag.length, (uint32_t)payload_length);
  ensures stored_whole: \old(writer->position) + 20 <= 0xFFFFFFFFFFFFFFFF ==>
    \let payload = \old(writer->position) + tag.length + varint_size((uint32_t)payload_length);
    data != \null && payload + payload_length <= writer->length ==>
      \forall integer i; 0 <= i < payload_length ==> writer->buffer[payload + i] == data[i];
  ensures kept: \old(writer->position) + 20 <= 0xFFFFFFFFFFFFFFFF ==>
    kept_but{Pre, Here}(writer, \old(writer->position), writer->position);
  ensures whole_or_not_at_all: \old(writer->position) + 20 <= 0xFFFFFFFFFFFFFFFF ==>
    \let payload = \old(writer->position) + tag.length + varint_size((uint32_t)payload_length);
    data == \null || payload + payload_length > writer->length ==>
      kept_but{Pre, Here}(writer, \old(writer->position), payload);
*/
void proof_writer_block(
    struct exact_writer *writer, struct field_tag tag, const uint8_t *data, uint64_t payload_length);

/*@
  requires writer: is_writer(writer);
  requires tag: is_tag(tag);
  terminates \true;
  exits \false;
  assigns writer->position, writer->buffer[0 .. writer->length - 1];
  ensures goes_on: \result ==> writer->position < writer->length;
  ensures started: \old(writer->position) + 12 <= 0xFFFFFFFFFFFFFFFF && \result ==>
    writer->position == \old(writer->position) + tag.length + varint_size((uint32_t)nested_bytes);
  ensures complete: \old(writer->position) + 12 + nested_bytes <= 0xFFFFFFFFFFFFFFFF && !\result ==>
    writer->position == \old(writer->position) + tag.length + varint_size((uint32_t)nested_bytes) + nested_bytes;
*/
bool proof_writer_start_nested(struct exact_writer *writer, struct field_tag tag, uint64_t nested_bytes);

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
struct exact_writer proof_writer_nested(const struct exact_writer *writer);

#endif
