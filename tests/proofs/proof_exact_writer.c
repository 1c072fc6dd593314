// src/codec/counting_writer.h and .cpp, line by line. What differs, and why: README.md.
#include "proof_counting_writer.h"

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

uint64_t proof_advance(uint64_t position, uint64_t payload_bytes)
{
    // The sum with what wraps taken off: `position + payload_bytes < position` of the original.
    const uint64_t left = UINT64_MAX - position;
    return payload_bytes > left ? position : position + payload_bytes;
}

void proof_writer_byte(struct counting_writer *writer, uint8_t value)
{
    if (writer->position < writer->length)
        writer->buffer[writer->position] = value;
    ++writer->position;
}

void proof_writer_varint(struct counting_writer *writer, uint64_t value)
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
        proof_writer_byte(writer, (uint8_t)(value % 0x80 + 0x80));
        //@ ghost ++written;
    }
    proof_writer_byte(writer, (uint8_t)value);
}

void proof_writer_fixed32(struct counting_writer *writer, uint32_t value)
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

void proof_writer_copy(struct counting_writer *writer, const uint8_t *data, uint64_t payload_length)
{
    const uint64_t end = proof_advance(writer->position, payload_length);
    if (data != NULL && end != writer->position && end <= writer->length)
        copy_bytes(writer->buffer + writer->position, data, payload_length);
    writer->position = end;
}

void proof_writer_block(struct counting_writer *writer, uint32_t tag, const uint8_t *data, uint64_t payload_length)
{
    proof_writer_varint(writer, tag);
    proof_writer_varint(writer, (uint32_t)payload_length);
    proof_writer_copy(writer, data, payload_length);
}

struct counting_writer proof_writer_nested(const struct counting_writer *writer)
{
    if (writer->position >= writer->length)
        return (struct counting_writer){NULL, 0, 0};
    return (struct counting_writer){writer->buffer + writer->position, writer->length - writer->position, 0};
}
