// A record's field list, which is types, as data.
#pragma once

#include "codec/message.h"
#include "inspect/address_hints.h"
#include "inspect/member_name.h"
#include "inspect/message_table.h"

#include <array>
#include <cstddef>
#include <type_traits>

namespace mava_tum_inspect
{

// The one description of a record; defined where the table is.
template <class Record>
const message_description *description_of();

template <auto Member>
std::size_t offset_of()
{
    using owner = typename mava_tum::member_of<Member>::record;
    static const owner sample{};
    return static_cast<std::size_t>(
        reinterpret_cast<const std::byte *>(&(sample.*Member)) - reinterpret_cast<const std::byte *>(&sample));
}

// What all kinds have in common.
template <auto Member>
field_description named_field(uint32_t number, field_kind kind)
{
    return {number, member_name<Member>::text.data(), kind, 0, address_kind::none, offset_of<Member>(), 0, nullptr};
}

// One function per kind. The argument is only a type: it says which.
template <uint32_t Number, auto Member>
field_description describe(std::type_identity<mava_tum::kind::varint<Number, Member>>)
{
    field_description field = named_field<Member>(Number, field_kind::varint);
    field.value_bits = 8 * sizeof(typename mava_tum::member_of<Member>::value);
    return field;
}

template <uint32_t Number, auto Member>
field_description describe(std::type_identity<mava_tum::kind::counter<Number, Member>>)
{
    return describe(std::type_identity<mava_tum::kind::varint<Number, Member>>{});
}

template <uint32_t Number, auto Member>
field_description describe(std::type_identity<mava_tum::kind::fixed32<Number, Member>>)
{
    field_description field = named_field<Member>(Number, field_kind::fixed32);
    field.value_bits = 32;
    field.address = address_kind::ipv4;
    return field;
}

template <uint32_t Number, auto Member>
field_description describe(std::type_identity<mava_tum::kind::bytes<Number, Member>>)
{
    field_description field = named_field<Member>(Number, field_kind::bytes);
    field.address = holds_ipv6<Member> ? address_kind::ipv6 : address_kind::none;
    return field;
}

template <uint32_t Number, auto Member>
field_description describe(std::type_identity<mava_tum::kind::text<Number, Member>>)
{
    return named_field<Member>(Number, field_kind::text);
}

template <uint32_t Number, auto Member>
field_description describe(std::type_identity<mava_tum::kind::record<Number, Member>>)
{
    field_description field = named_field<Member>(Number, field_kind::record);
    field.nested = description_of<typename mava_tum::member_of<Member>::value>();
    return field;
}

template <uint32_t Number, auto Member, auto CountMember>
field_description describe(std::type_identity<mava_tum::kind::record_array<Number, Member, CountMember>>)
{
    field_description field = named_field<Member>(Number, field_kind::record_array);
    field.count_offset = offset_of<CountMember>();
    field.nested = description_of<typename mava_tum::kind::record_array<Number, Member, CountMember>::nested>();
    return field;
}

template <uint32_t Number, auto Member, auto CountMember>
field_description describe(std::type_identity<mava_tum::kind::text_array<Number, Member, CountMember>>)
{
    field_description field = named_field<Member>(Number, field_kind::text_array);
    field.count_offset = offset_of<CountMember>();
    return field;
}

template <class... Field>
std::array<field_description, sizeof...(Field)> describe_fields(mava_tum::field_list<Field...>)
{
    return {describe(std::type_identity<Field>{})...};
}

template <class Record>
std::span<const field_description> fields_of_record()
{
    static const auto fields = describe_fields(mava_tum::fields_of<Record>{});
    return fields;
}

template <class Record, auto Decode, auto Encode, auto Duplicate, auto Free>
message_description describe_record()
{
    return {
        message_name<Record>::text.data(),
        sizeof(Record),
        offsetof(Record, presence_mask),
        sizeof(Record::presence_mask),
        mava_tum::holds_bytes<Record>(),
        mava_tum::asks_for_room<Record>(),
        fields_of_record<Record>(),
        uniform_calls<Decode, Encode, Duplicate, Free>(),
    };
}

} // namespace mava_tum_inspect
