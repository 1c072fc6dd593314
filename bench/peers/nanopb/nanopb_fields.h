// How the nanopb peer sets fields, and reads the texts of its structures.
#ifndef MAVA_TUM_BENCH_NANOPB_FIELDS_H
#define MAVA_TUM_BENCH_NANOPB_FIELDS_H

#include "peers/harness/application_fields.h"

namespace bench
{

template <class Field, class Value>
void put(bool &has, Field &field, Value value)
{
    has = true;
    field = value;
}

template <class Field, class Value>
void put_nonzero(bool &has, Field &field, Value value)
{
    if (value != 0)
        put(has, field, value);
}

template <size_t Room, size_t Bytes>
void put_text_always(bool &has, char (&field)[Room], const char (&text)[Bytes])
{
    static_assert(Room == Bytes);
    has = true;
    std::memcpy(field, text, std::strlen(text) + 1);
}

template <size_t Room, size_t Bytes>
void put_text(bool &has, char (&field)[Room], const char (&text)[Bytes])
{
    if (text[0] != 0)
        put_text_always(has, field, text);
}

template <size_t Bytes>
void put_bytes(bool &has, uint8_t (&field)[Bytes], const uint8_t (&bytes)[Bytes])
{
    has = true;
    std::memcpy(field, bytes, Bytes);
}

template <size_t Bytes>
void take_text(char (&array)[Bytes], const char *field, size_t limit = Bytes)
{
    copy_text(array, limit, field, std::strlen(field));
}

template <size_t Bytes>
void take_bytes(uint8_t (&array)[Bytes], const uint8_t (&field)[Bytes])
{
    std::memcpy(array, field, Bytes);
}

} // namespace bench

#endif
