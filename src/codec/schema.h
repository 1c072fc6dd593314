// A message is a list of fields. `schema<Record>` names it; everything else in this folder is derived from it.
//
//     template <> struct schema<mava_tum_vlan_info> {
//         using self = mava_tum_vlan_info;
//         using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>>;
//     };
//
// The kinds of field, each with its rules in field_<kind>.h: varint, fixed32, bytes, text, record, record_array,
// text_array. A kind has:
//
//     number, type, tag, bit       constants
//     shape                        what of it is read and written
//     max_put_bytes                the most that the fast path writes without asking for room
//     max_head_bytes               the same without the payloads of texts and bytes
//     reset(record)                decode: the empty value
//     read(record, ...)            decode: one occurrence, or one run of an array
//     describe(fields, record, present)   encode: names the value, if it is present, to a writer (encode_fields.h)
//     copy(...)                    duplicate
//     release(...)                 free
#pragma once

#include "codec/presence.h"
#include "codec/wire_types.h"

#include <cstdint>
#include <tuple>

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

// What a field holds on the wire.
enum class field_shape : uint8_t { number, bytes, text, record, record_array, text_array };

// What a field number and a wire type fix.
template <uint32_t Number, wire_type Type>
struct field_key {
    static constexpr uint32_t number = Number;
    static constexpr wire_type type = Type;
    static constexpr uint32_t tag_value = mava_tum::tag_value(Number, Type);
    static constexpr field_tag tag = make_field_tag(Number, Type);
    static constexpr uint32_t bit = presence_bit(Number);
    static_assert(tag_value < 1u << 14, "a tag takes one or two bytes");

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

template <class List>
struct fields_by_number;

template <class... Field>
struct fields_by_number<field_list<Field...>> {
    using all = std::tuple<Field...>;
};

template <class Record, uint32_t Number>
using field_at = std::tuple_element_t<Number - 1, typename fields_by_number<fields_of<Record>>::all>;

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

// Flat records of a few fields are written and read inline: that is shorter than a call.
inline constexpr uint32_t max_tiny_fields = 3;

template <class Record>
inline constexpr bool is_tiny = is_flat<Record> && (field_count<Record> <= max_tiny_fields);

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

// The most that the fast path writes of a record without asking for room.
template <class... Field>
constexpr uint32_t sum_of_put_bytes(field_list<Field...>)
{
    return (0 + ... + Field::max_put_bytes);
}

template <class Record>
constexpr uint32_t max_put_bytes()
{
    return sum_of_put_bytes(fields_of<Record>{});
}

// The same without the payloads of texts and bytes: how large a record of its kind is.
template <class... Field>
constexpr uint32_t sum_of_head_bytes(field_list<Field...>)
{
    return (0 + ... + Field::max_head_bytes);
}

template <class Record>
constexpr uint32_t max_head_bytes()
{
    return sum_of_head_bytes(fields_of<Record>{});
}

} // namespace mava_tum
