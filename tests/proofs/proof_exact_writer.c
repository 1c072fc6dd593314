// src/codec/exact_writer.h and .cpp, line by line. What differs, and why: README.md.
#include "proof_exact_writer.h"

uint64_t proof_advance(uint64_t position, uint64_t payload_bytes)
{
    // The sum with what wraps taken off: `position + payload_bytes < position` of the original.
    const uint64_t left = UINT64_MAX - position;
    return payload_bytes > left ? position : position + payload_bytes;
}

void proof_writer_byte(struct exact_writer *writer, uint8_t value)
{
    if (writer->position < writer->length)
        writer->buffer[writer->position] = value;
    ++writer->position;
}

void proof_writer_tag(struct exact_writer *writer, struct field_tag tag)
{
    proof_writer_byte(writer, (uint8_t)(tag.bytes % 0x100));
    if (tag.length == 2)
        proof_writer_byte(writer, (uint8_t)(tag.bytes / 0x100));
}

// The end of a local array is something the provers cannot subtract from: the difference is taken in here.
/*@
  requires room: \valid(stored + (0 .. 9));
  terminates \true;
  exits \false;
  assigns stored[0 .. 9];
  ensures size: \result == varint_size(value) && 1 <= \result <= 10;
  ensures stored: \forall integer i; 0 <= i < \result ==> stored[i] == varint_byte(value, i);
*/
static uint64_t store_and_count(uint8_t *stored, uint64_t value)
{
    return (uint64_t)(proof_store_varint(stored, value) - stored);
}

void proof_writer_varint(struct exact_writer *writer, uint64_t value)
{
    if (writer->position >= writer->length) {
        writer->position += proof_varint_bytes(value);
        return;
    }
    uint8_t stored[10];
    const uint64_t bytes = store_and_count(stored, value);
    /*@
      loop invariant kept_here: \forall integer k; 0 <= k < bytes ==> stored[k] == varint_byte(value, k);
      loop invariant writer: is_writer(writer);
      loop invariant range: 0 <= i <= bytes;
      loop invariant position: \at(writer->position, Pre) + 10 <= 0xFFFFFFFFFFFFFFFF ==>
        writer->position == \at(writer->position, Pre) + i;
      loop invariant stored: \at(writer->position, Pre) + 10 <= 0xFFFFFFFFFFFFFFFF ==>
        \forall integer k; 0 <= k < i && \at(writer->position, Pre) + k < writer->length ==>
          writer->buffer[\at(writer->position, Pre) + k] == stored[k];
      loop invariant kept: \at(writer->position, Pre) + 10 <= 0xFFFFFFFFFFFFFFFF ==>
        kept_but{Pre, Here}(writer, \at(writer->position, Pre), writer->position);
      loop assigns i, writer->position, writer->buffer[0 .. writer->length - 1];
      loop variant bytes - i;
    */
    for (uint64_t i = 0; i < bytes; ++i)
        proof_writer_byte(writer, stored[i]);
}

void proof_writer_fixed32(struct exact_writer *writer, uint32_t value)
{
    proof_writer_byte(writer, (uint8_t)(value % 0x100));
    proof_writer_byte(writer, (uint8_t)(value / 0x100 % 0x100));
    proof_writer_byte(writer, (uint8_t)(value / 0x10000 % 0x100));
    proof_writer_byte(writer, (uint8_t)(value / 0x1000000));
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

void proof_writer_copy(struct exact_writer *writer, const uint8_t *data, uint64_t payload_length)
{
    const uint64_t end = proof_advance(writer->position, payload_length);
    if (data != NULL && end != writer->position && end <= writer->length)
        copy_bytes(writer->buffer + writer->position, data, payload_length);
    writer->position = end;
}

void proof_writer_block(
    struct exact_writer *writer, struct field_tag tag, const uint8_t *data, uint64_t payload_length)
{
    proof_writer_tag(writer, tag);
    proof_writer_varint(writer, (uint32_t)payload_length);
    proof_writer_copy(writer, data, payload_length);
}

struct exact_writer proof_writer_nested(const struct exact_writer *writer)
{
    if (writer->position >= writer->length)
        return (struct exact_writer){NULL, 0, 0};
    return (struct exact_writer){writer->buffer + writer->position, writer->length - writer->position, 0};
}
