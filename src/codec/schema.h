// A message is a list of fields. `schema<Record>` names it; everything else in this folder is derived from it.
//
//     template <> struct schema<mava_tum_vlan_info> {
//         using self = mava_tum_vlan_info;
//         using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>>;
//     };
//
// The kinds of field, each with all its operations in field_<kind>.h: varint, fixed32, bytes, text, record,
// record_array, text_array. A kind has:
//
//     number, type, tag, bit       constants
//     max_put_bytes                the most that `put` writes without asking for room
//     max_head_bytes               the same without the payloads of texts and bytes
//     reset(record)                decode: the empty value
//     read(...)                    decode: one occurrence, or one run of an array
//     put(...)                     encode: the fast writer, into the scratch
//     store(...)                   encode: scalars only, byte by byte into the caller's buffer
//     count(...), write(...)       encode: the exact writer, for short buffers and pieces
//     put_value, store_value,      scalars only: the same for a value that is in no record (direct_encode.h)
//     value_bytes, write_value
//     copy(...)                    duplicate
//     release(...)                 free
#pragma once

#include "codec/presence.h"
#include "codec/wire_types.h"

#include <cstdint>

namespace mava_tum
{

template <class Record>
struct schema;

template <class... Field>
struct field_list {
    static constexpr uint32_t size = sizeof...(Field);
};

template <class Record>
using fields_of = typename schema<Record>::fields;

template <class Record>
inline constexpr uint32_t field_count = fields_of<Record>::size;

template <class Record>
inline constexpr uint32_t own_bits = presence_bits_up_to(field_count<Record>);

// What a field number and a wire type fix.
template <uint32_t Number, wire_type Type>
struct field_key {
    static constexpr uint32_t number = Number;
    static constexpr wire_type type = Type;
    static constexpr uint32_t tag = tag_of(Number, Type);
    static constexpr uint32_t bit = presence_bit(Number);
    static constexpr uint32_t tag_bytes = tag < varint_continues ? 1 : 2;
    static_assert(tag < 1u << 14, "a tag takes one or two bytes");

    // What most kinds are not; the others say so themselves.
    static constexpr bool holds_bytes = false;   // a bytes field, here or in a nested record
    static constexpr bool asks_for_room = false; // a block or an array, here or in a nested record
    static constexpr bool is_scalar = true;      // decoded without calling anything

    // Whether the field alone, without a bit of its own record, can produce a byte: a nested record can.
    template <class Record>
    static constexpr bool has_content(const Record &)
    {
        return false;
    }
};

// The type of the member that a pointer to member points at, and the record it belongs to.
template <auto Member>
struct member_of;

template <class Record, class Value, Value Record::*Member>
struct member_of<Member> {
    using record = Record;
    using value = Value;
};

// Field numbers run from 1 without a gap, so that a field's number gives its presence bit, and the bits fit the mask.
template <class Record, class... Field>
constexpr bool is_well_formed(field_list<Field...>)
{
    uint32_t expected = 0;
    const bool dense = ((Field::number == ++expected) && ...);
    return dense && sizeof...(Field) <= 8 * sizeof(Record::presence_mask);
}

template <class... Field>
constexpr bool any_holds_bytes(field_list<Field...>)
{
    return (Field::holds_bytes || ...);
}

template <class... Field>
constexpr bool any_asks_for_room(field_list<Field...>)
{
    return (Field::asks_for_room || ...);
}

template <class... Field>
constexpr bool all_scalar(field_list<Field...>)
{
    return (Field::is_scalar && ...);
}

template <class Record>
inline constexpr bool is_flat = all_scalar(fields_of<Record>{});

// Flat records of a few fields are put inline: their bodies are shorter than a call.
inline constexpr uint32_t max_inline_fields = 3;

template <class Record>
inline constexpr bool is_put_inline = is_flat<Record> && (field_count<Record> <= max_inline_fields);

// Such messages have the alias bit.
template <class Record>
constexpr bool holds_bytes()
{
    return any_holds_bytes(fields_of<Record>{});
}

template <class Record>
constexpr bool asks_for_room()
{
    return any_asks_for_room(fields_of<Record>{});
}

} // namespace mava_tum
