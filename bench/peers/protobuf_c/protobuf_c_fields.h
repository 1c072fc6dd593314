// How the protobuf-c peer sets fields of messages that it only borrows for one call, and reads fields that may be
// absent.
#ifndef MAVA_TUM_BENCH_PROTOBUF_C_FIELDS_H
#define MAVA_TUM_BENCH_PROTOBUF_C_FIELDS_H

#include "peers/harness/application_fields.h"

#include <protobuf-c/protobuf-c.h>

namespace bench
{

template <class Field, class Value>
void put(protobuf_c_boolean &has, Field &field, Value value)
{
    has = 1;
    field = value;
}

template <class Field, class Value>
void put_nonzero(protobuf_c_boolean &has, Field &field, Value value)
{
    if (value != 0)
        put(has, field, value);
}

// The message points at the record's own text: packing only reads it, whatever the generated member's type says.
inline void put_text_always(char *&field, const char *text)
{
    field = const_cast<char *>(text);
}

inline void put_text(char *&field, const char *text)
{
    if (text[0] != 0)
        put_text_always(field, text);
}

template <size_t Bytes>
void put_bytes(protobuf_c_boolean &has, ProtobufCBinaryData &field, const uint8_t (&bytes)[Bytes])
{
    put(has, field, ProtobufCBinaryData{Bytes, const_cast<uint8_t *>(bytes)});
}

// Makes `part` the nested message that `field` points at.
template <class Message>
Message &attach(Message *&field, Message &part, void (*init)(Message *))
{
    init(&part);
    field = &part;
    return part;
}

template <size_t Bytes>
void take_text(char (&array)[Bytes], const char *field, size_t limit = Bytes)
{
    if (field != nullptr)
        copy_text(array, limit, field, std::strlen(field));
}

template <size_t Bytes>
void take_bytes(uint8_t (&array)[Bytes], const ProtobufCBinaryData &field)
{
    if (field.len != 0)
        copy_bytes(array, field.data, field.len);
}

// As many elements as there is room for.
template <class Count, class Entry, size_t Slots>
Count slots_taken(size_t received, const Entry (&)[Slots])
{
    return static_cast<Count>(std::min(received, Slots));
}

} // namespace bench

#endif
