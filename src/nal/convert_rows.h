// The rows that the converters between application records and codec records are made of, one line each:
//
//     put...<n>(codec record, its field n, application value)    stores the value and sets bit n-1 of the presence mask
//     take...<n>(application member, codec record, its field n)  copies the value when that bit is set
//
// A `put` borrows: texts and bytes of the codec record point into the application record. A `take` copies, and leaves
// a member whose field is absent as it is: zero.
#pragma once

#include "mava_tum/codec_contract.h"
#include "nal/bounded_text.h"
#include "nal/ipv4_order.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace mava_tum
{

// ---- presence ----

constexpr uint32_t presence_bit(unsigned field_number)
{
    return 1u << (field_number - 1);
}

template <unsigned FieldNumber, class Record>
bool is_present(const Record &record)
{
    return (record.presence_mask & presence_bit(FieldNumber)) != 0;
}

template <unsigned FieldNumber, class Record>
void mark_present(Record &record)
{
    using mask = decltype(record.presence_mask);
    static_assert(FieldNumber >= 1 && FieldNumber <= 8 * sizeof(mask));
    record.presence_mask = static_cast<mask>(record.presence_mask | presence_bit(FieldNumber));
}

// L31: some messages are marked whole instead of field by field, spare bits included. No encoder looks at those, and a
// text or a list is still left out when there is none.
constexpr uint8_t every_presence_bit = 0xFF;

template <class Record>
void mark_all_present(Record &record)
{
    static_assert(sizeof(record.presence_mask) == sizeof(every_presence_bit));
    record.presence_mask = every_presence_bit;
}

// ---- application -> codec ----

template <unsigned FieldNumber, class Record, class Field, class Value>
void put(Record &record, Field &field, Value value)
{
    static_assert(sizeof(Value) <= sizeof(Field));
    field = value;
    mark_present<FieldNumber>(record);
}

template <unsigned FieldNumber, class Record, class Field, class Value>
void put_nonzero(Record &record, Field &field, Value value)
{
    if (value != 0)
        put<FieldNumber>(record, field, value);
}

template <unsigned FieldNumber, class Record>
void put_ipv4(Record &record, uint32_t &field, uint32_t host_order)
{
    put<FieldNumber>(record, field, swap_ipv4_order(host_order));
}

template <unsigned FieldNumber, class Record>
void put_ipv4_nonzero(Record &record, uint32_t &field, uint32_t host_order)
{
    put_nonzero<FieldNumber>(record, field, swap_ipv4_order(host_order));
}

// The encoder only reads through the pointers of a record, so borrowing from a const application record is sound.
template <unsigned FieldNumber, class Record, size_t Size>
void put_bytes(Record &record, mava_tum_bytes &field, const uint8_t (&array)[Size])
{
    field.data = const_cast<uint8_t *>(array);
    field.length = Size;
    mark_present<FieldNumber>(record);
}

inline bool is_zero_ipv6(const uint8_t (&address)[16])
{
    uint64_t halves[2];
    memcpy(halves, address, sizeof(halves));
    return (halves[0] | halves[1]) == 0;
}

template <unsigned FieldNumber, class Record>
void put_ipv6_nonzero(Record &record, mava_tum_bytes &field, const uint8_t (&address)[16])
{
    if (!is_zero_ipv6(address))
        put_bytes<FieldNumber>(record, field, address);
}

// An empty text is absent, whatever follows its NUL. One without a NUL is the caller's error: the encoder measures it
// with strlen.
template <unsigned FieldNumber, class Record, size_t Size>
void put_text(Record &record, char *&field, const char (&array)[Size])
{
    if (array[0] == '\0')
        return;
    field = const_cast<char *>(array);
    mark_present<FieldNumber>(record);
}

// L33: present also when it is empty.
template <unsigned FieldNumber, class Record, size_t Size>
void put_text_always(Record &record, char *&field, const char (&array)[Size])
{
    field = const_cast<char *>(array);
    mark_present<FieldNumber>(record);
}

// L18: a count above the number of slots is taken as the number of slots. Only the slots in use are cleared: of fifty,
// most calls need a few. No element, no field. `fill_slot(i)` converts element i into its slot.
template <unsigned FieldNumber, class Record, class Codec, size_t Slots, class FillSlot>
void put_slots(
    Record &record, Codec *&field, uint32_t &field_count, Codec (&slots)[Slots], uint32_t count, FillSlot fill_slot)
{
    const uint32_t used = count < Slots ? count : Slots;
    if (used == 0)
        return;
    for (uint32_t i = 0; i < used; ++i) {
        slots[i] = {};
        fill_slot(i);
    }
    field = slots;
    field_count = used;
    mark_present<FieldNumber>(record);
}

template <unsigned FieldNumber, class Record, class Codec, class Entry, size_t Slots>
void put_list(Record &record, Codec *&field, uint32_t &field_count, Codec (&slots)[Slots],
    const Entry (&entries)[Slots], uint32_t count, void (*entry_to_codec)(Codec &, const Entry &))
{
    put_slots<FieldNumber>(
        record, field, field_count, slots, count, [&](uint32_t i) { entry_to_codec(slots[i], entries[i]); });
}

// The same for elements that hold lists themselves: each comes with slots of its own.
template <unsigned FieldNumber, class Record, class Codec, class Nested, class Entry, size_t Slots>
void put_list(Record &record, Codec *&field, uint32_t &field_count, Codec (&slots)[Slots],
    Nested (&nested_slots)[Slots], const Entry (&entries)[Slots], uint32_t count,
    void (*entry_to_codec)(Codec &, Nested &, const Entry &))
{
    put_slots<FieldNumber>(record, field, field_count, slots, count,
        [&](uint32_t i) { entry_to_codec(slots[i], nested_slots[i], entries[i]); });
}

// ---- codec -> application ----

// L20: a member narrower than the field keeps the low bits.
template <unsigned FieldNumber, class Member, class Record, class Field>
void take(Member &member, const Record &record, Field field)
{
    if (is_present<FieldNumber>(record))
        member = static_cast<Member>(field);
}

template <unsigned FieldNumber, class Record>
void take_ipv4(uint32_t &host_order, const Record &record, uint32_t field)
{
    if (is_present<FieldNumber>(record))
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
