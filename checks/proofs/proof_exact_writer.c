// src/codec/exact_writer.h and .cpp, line by line. What differs, and why: README.md.
#include "proof_exact_writer.h"

/*@
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures sum: \result == advanced(position, payload_bytes);
*/
static uint64_t advance(uint64_t position, uint64_t payload_bytes)
{
    // The sum with what wraps taken off: `position + payload_bytes < position` of the original.
    const uint64_t left = UINT64_MAX - position;
    return payload_bytes > left ? position : position + payload_bytes;
}

/*@
  requires writer: is_writer(writer);
  terminates \true;
  exits \false;
  assigns writer->position, writer->buffer[0 .. writer->length - 1];
  ensures position: \old(writer->position) < 0xFFFFFFFFFFFFFFFF ==> writer->position == \old(writer->position) + 1;
  ensures stored: \old(writer->position) < writer->length ==> writer->buffer[\old(writer->position)] == value;
  ensures kept: kept_but{Pre, Here}(writer, \old(writer->position), \old(writer->position) + 1);
*/
static void writer_byte(struct exact_writer *writer, uint8_t value)
{
    if (writer->position < writer->length)
        writer->buffer[writer->position] = value;
    ++writer->position;
}

/*@
  requires writer: is_writer(writer);
  requires tag: is_tag(tag);
  terminates \true;
  exits \false;
  assigns writer->position, writer->buffer[0 .. writer->length - 1];
  ensures position: \old(writer->position) + 2 <= 0xFFFFFFFFFFFFFFFF ==>
    writer->position == \old(writer->position) + tag.length;
  ensures stored: \old(writer->position) + 2 <= 0xFFFFFFFFFFFFFFFF ==>
    tag_stands(writer, \old(writer->position), tag);
  ensures kept: \old(writer->position) + 2 <= 0xFFFFFFFFFFFFFFFF ==>
    kept_but{Pre, Here}(writer, \old(writer->position), writer->position);
*/
static void writer_tag(struct exact_writer *writer, struct field_tag tag)
{
    writer_byte(writer, (uint8_t)(tag.bytes % 0x100));
    if (tag.length == 2)
        writer_byte(writer, (uint8_t)(tag.bytes / 0x100));
}

// The original's `emit_varint`, for this one of its two users.
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
static void emit_varint(struct exact_writer *writer, uint64_t value)
{
    //@ ghost uint64_t written = 0;
    /*@
      loop invariant writer: is_writer(writer);
      loop invariant range: 0 <= written <= 9;
      loop invariant value: value == shifted(\at(value, Pre), written);
      loop invariant needed: written < varint_size(\at(value, Pre));
      loop invariant position: \at(writer->position, Pre) + 10 <= 0xFFFFFFFFFFFFFFFF ==>
        writer->position == \at(writer->position, Pre) + written;
      loop invariant stored: \at(writer->position, Pre) + 10 <= 0xFFFFFFFFFFFFFFFF ==>
        \forall integer i; 0 <= i < written && \at(writer->position, Pre) + i < writer->length ==>
          writer->buffer[\at(writer->position, Pre) + i] == varint_byte(\at(value, Pre), i);
      loop invariant kept: \at(writer->position, Pre) + 10 <= 0xFFFFFFFFFFFFFFFF ==>
        kept_but{Pre, Here}(writer, \at(writer->position, Pre), writer->position);
      loop assigns value, written, writer->position, writer->buffer[0 .. writer->length - 1];
      loop variant value;
    */
    for (; value >= 0x80; value /= 0x80) {
        writer_byte(writer, (uint8_t)(value % 0x80 + 0x80));
        //@ ghost ++written;
    }
    writer_byte(writer, (uint8_t)value);
}

void proof_writer_varint_field(struct exact_writer *writer, struct field_tag tag, uint64_t value)
{
    if (writer->position >= writer->length) {
        writer->position += tag.length + proof_varint_bytes(value);
        return;
    }
    writer_tag(writer, tag);
    emit_varint(writer, value);
}

void proof_writer_fixed32_field(struct exact_writer *writer, struct field_tag tag, uint32_t value)
{
    writer_tag(writer, tag);
    writer_byte(writer, (uint8_t)(value % 0x100));
    writer_byte(writer, (uint8_t)(value / 0x100 % 0x100));
    writer_byte(writer, (uint8_t)(value / 0x10000 % 0x100));
    writer_byte(writer, (uint8_t)(value / 0x1000000));
}

// What memcpy does.
/*@
  requires to: \valid(to + (0 .. bytes - 1));
  requires from: \valid_read(from + (0 .. bytes - 1));
  requires apart: \separated(to + (0 .. bytes - 1), from + (0 .. bytes - 1));
  terminates \true;
  exits \false;
  assigns to[0 .. bytes - 1];
  ensures copied: \forall integer i; 0 <= i < bytes ==> to[i] == from[i];
*/
static void copy_bytes(uint8_t *to, const uint8_t *from, uint64_t bytes)
{
    /*@
      loop invariant position: 0 <= i <= bytes;
      loop invariant copied: \forall integer k; 0 <= k < i ==> to[k] == from[k];
      loop assigns i, to[0 .. bytes - 1];
      loop variant bytes - i;
    */
    for (uint64_t i = 0; i < bytes; ++i)
        to[i] = from[i];
}

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
static void writer_copy(struct exact_writer *writer, const uint8_t *data, uint64_t payload_length)
{
    const uint64_t end = advance(writer->position, payload_length);
    if (data != NULL && end != writer->position && end <= writer->length)
        copy_bytes(writer->buffer + writer->position, data, payload_length);
    writer->position = end;
}

void proof_writer_block(
    struct exact_writer *writer, struct field_tag tag, const uint8_t *data, uint64_t payload_length)
{
    proof_writer_varint_field(writer, tag, (uint32_t)payload_length);
    writer_copy(writer, data, payload_length);
}

bool proof_writer_start_nested(struct exact_writer *writer, struct field_tag tag, uint64_t nested_bytes)
{
    proof_writer_varint_field(writer, tag, (uint32_t)nested_bytes);
    if (writer->position < writer->length)
        return true;
    writer->position += nested_bytes;
    return false;
}

struct exact_writer proof_writer_nested(const struct exact_writer *writer)
{
    if (writer->position >= writer->length)
        return (struct exact_writer){NULL, 0, 0};
    return (struct exact_writer){writer->buffer + writer->position, writer->length - writer->position, 0};
}
