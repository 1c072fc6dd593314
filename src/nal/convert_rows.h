// The rows that the converters between application records and the wire are made of, one line each:
//
//     put...<n>(fields, application value)                       sends the value as field n
//     take...(application member, scalar field)                  copies the value: zero where the field is absent
//     take...<n>(application member, codec record, its field n)  copies the value when the record marks it present
//
// A `put` stands in the description of a message, in the order of the field numbers, and stores nothing between: from
// the application record to the wire. A `take` copies into a cleared record: what is absent is zero.
#pragma once

#include "mava_tum/codec_contract.h"
#include "messages/described_encode.h"
#include "nal/bounded_text.h"
#include "nal/ipv4_order.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace mava_tum
{

// ---- presence ----

template <unsigned FieldNumber, class Record>
bool is_present(const Record &record)
{
    static_assert(FieldNumber >= 1 && FieldNumber <= field_count<Record>);
    return (record.presence_mask & presence_bit(FieldNumber)) != 0;
}

// ---- application -> wire ----

template <unsigned FieldNumber, class Fields, class Value>
[[gnu::always_inline]] inline void put(Fields &fields, Value value)
{
    fields.template value<FieldNumber>(value);
}

template <unsigned FieldNumber, class Fields, class Value>
[[gnu::always_inline]] inline void put_nonzero(Fields &fields, Value value)
{
    if (value != 0)
        put<FieldNumber>(fields, value);
}

template <unsigned FieldNumber, class Fields>
[[gnu::always_inline]] inline void put_ipv4(Fields &fields, uint32_t host_order)
{
    put<FieldNumber>(fields, swap_ipv4_order(host_order));
}

template <unsigned FieldNumber, class Fields>
[[gnu::always_inline]] inline void put_ipv4_nonzero(Fields &fields, uint32_t host_order)
{
    put_nonzero<FieldNumber>(fields, swap_ipv4_order(host_order));
}

template <unsigned FieldNumber, class Fields, size_t Size>
[[gnu::always_inline]] inline void put_bytes(Fields &fields, const uint8_t (&array)[Size])
{
    fields.template block<FieldNumber>(array, Size);
}

inline bool is_zero_ipv6(const uint8_t (&address)[16])
{
    uint64_t halves[2];
    memcpy(halves, address, sizeof(halves));
    return (halves[0] | halves[1]) == 0;
}

template <unsigned FieldNumber, class Fields>
[[gnu::always_inline]] inline void put_ipv6_nonzero(Fields &fields, const uint8_t (&address)[16])
{
    if (!is_zero_ipv6(address))
        put_bytes<FieldNumber>(fields, address);
}

// L33: present also when it is empty. One without a NUL is the caller's error: it is measured with strlen.
template <unsigned FieldNumber, class Fields, size_t Size>
[[gnu::always_inline]] inline void put_text_always(Fields &fields, const char (&array)[Size])
{
    fields.template text<FieldNumber>(array);
}

// An empty text is absent, whatever follows its NUL.
template <unsigned FieldNumber, class Fields, size_t Size>
[[gnu::always_inline]] inline void put_text(Fields &fields, const char (&array)[Size])
{
    if (array[0] != '\0')
        put_text_always<FieldNumber>(fields, array);
}

// A nested record, sent also when nothing of it is.
template <unsigned FieldNumber, class Description, class Fields, class Source>
[[gnu::always_inline]] inline void put_record(Fields &fields, const Source &source)
{
    fields.template record<FieldNumber, Description>(source);
}

// L18: a count above the number of entries is taken as the number of entries.
template <unsigned FieldNumber, class Description, class Fields, class Entry, size_t Entries>
[[gnu::always_inline]] inline void put_list(Fields &fields, const Entry (&entries)[Entries], uint32_t count)
{
    const uint32_t used = count < Entries ? count : Entries;
    for (uint32_t i = 0; i < used; ++i)
        fields.template element<FieldNumber, Description>(entries[i]);
}

// The same for texts. L33: as many are sent as are counted, empty ones too: the receiver counts them.
template <unsigned FieldNumber, class Fields, size_t Size, size_t Entries>
[[gnu::always_inline]] inline void put_texts(Fields &fields, const char (&entries)[Entries][Size], uint32_t count)
{
    const uint32_t used = count < Entries ? count : Entries;
    for (uint32_t i = 0; i < used; ++i)
        fields.template text_element<FieldNumber>(entries[i]);
}

// ---- codec -> application ----

// A decoder stores a scalar together with its presence bit, and empties the others first: an absent one is zero, as in
// the application record. So the bit is not asked: of random content the processor would often guess it wrong
// (bench/run, decode adapter, set random).

// L20: a member narrower than the field keeps the low bits.
template <class Member, class Field>
void take(Member &member, Field field)
{
    member = static_cast<Member>(field);
}

// A value that arrives with another field, n, and without it is dropped.
template <unsigned FieldNumber, class Member, class Record, class Field>
void take_with(Member &member, const Record &record, Field field)
{
    if (is_present<FieldNumber>(record))
        take(member, field);
}

inline void take_ipv4(uint32_t &host_order, uint32_t field)
{
    host_order = swap_ipv4_order(field);
}

// L19: the sender chose the length: of a longer value the first bytes are taken, behind a shorter one the rest stays
// zero.
template <unsigned FieldNumber, class Record, size_t Size>
void take_bytes(uint8_t (&array)[Size], const Record &record, const mava_tum_bytes &field)
{
    if (!is_present<FieldNumber>(record))
        return;
    if (field.length >= Size)
        memcpy(array, field.data, Size);
    else
        memcpy(array, field.data, field.length);
}

// L21: cut to the limit.
template <unsigned FieldNumber, size_t Limit, class Record, size_t Size>
void take_text_up_to(char (&array)[Size], const Record &record, const char *field)
{
    static_assert(Limit >= 1 && Limit <= Size);
    if (is_present<FieldNumber>(record))
        copy_bounded_text(array, Limit, field);
}

template <unsigned FieldNumber, class Record, size_t Size>
void take_text(char (&array)[Size], const Record &record, const char *field)
{
    take_text_up_to<FieldNumber, Size>(array, record, field);
}

// L17: the count is first narrowed to the bits of its member (in 8 bits 258 elements are 2, as ever), then kept within
// the slots, so that a record never claims elements it does not hold.
template <unsigned FieldNumber, class Entry, size_t Slots, class Count, class Record, class Codec>
void take_list(Entry (&entries)[Slots], Count &count, const Record &record, const Codec *field, uint32_t field_count,
    void (*entry_from_codec)(Entry &, const Codec &))
{
    static_assert(Slots <= static_cast<Count>(~Count{0}));
    if (!is_present<FieldNumber>(record))
        return;
    const Count narrow = static_cast<Count>(field_count);
    count = narrow < Slots ? narrow : static_cast<Count>(Slots);
    for (uint32_t i = 0; i < count; ++i)
        entry_from_codec(entries[i], field[i]);
}

} // namespace mava_tum
