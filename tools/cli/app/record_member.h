// What an application record is made of, as data. Names, sizes and offsets come from the compiler, through pointers to
// members.
#pragma once

#include "inspect/member_name.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <vector>

namespace mava_tum_cli
{

enum class member_kind : uint8_t {
    number,   // unsigned, 8 to 64 bits
    numbers,  // an array of uint32_t, all of it used
    ipv4,     // uint32_t in host byte order
    ipv6,     // 16 bytes
    bytes,    // an array of uint8_t, all of it used
    text,     // a char array with a NUL
    record,   // another record, inline
    records,  // an array of records, of which the first `count` are used
    texts,    // the same of texts
    reserved, // neither read nor written
};

struct record_layout;

struct record_member {
    std::string_view name;
    member_kind kind;
    size_t offset;
    size_t size_bytes;
    size_t element_bytes; // of arrays of elements; otherwise the same as size_bytes
    // records, texts: the member that counts; otherwise 0.
    size_t count_offset = 0;
    size_t count_bytes = 0;
    // record, records: of the record, or of an element; otherwise null.
    const record_layout *layout = nullptr;

    size_t slots() const
    {
        return size_bytes / element_bytes;
    }
};

struct record_layout {
    std::string_view name;
    size_t size_bytes;
    std::vector<record_member> members;
};

// Defined for each record in record_layouts_<group>.cpp.
template <class Record>
const record_layout &layout_of();

// The record that a pointer to member belongs to, and the type of what it points at.
template <auto Member>
struct member_type;

template <class Record, class Value, Value Record::*Member>
struct member_type<Member> {
    using record = Record;
    using value = Value;
};

template <auto Member>
using member_value = typename member_type<Member>::value;

template <auto Member>
size_t offset_of()
{
    static const typename member_type<Member>::record sample{};
    return static_cast<size_t>(
        reinterpret_cast<const std::byte *>(&(sample.*Member)) - reinterpret_cast<const std::byte *>(&sample));
}

template <auto Member>
record_member describe_member(member_kind kind)
{
    using value = member_value<Member>;
    return {mava_tum_inspect::member_name<Member>::name, kind, offset_of<Member>(), sizeof(value), sizeof(value)};
}

template <auto Member>
record_member number()
{
    static_assert(std::is_unsigned_v<member_value<Member>>);
    return describe_member<Member>(member_kind::number);
}

template <auto Member>
record_member ipv4()
{
    static_assert(std::is_same_v<member_value<Member>, uint32_t>);
    return describe_member<Member>(member_kind::ipv4);
}

template <auto Member>
record_member ipv6()
{
    static_assert(std::is_same_v<member_value<Member>, uint8_t[16]>);
    return describe_member<Member>(member_kind::ipv6);
}

template <auto Member>
record_member bytes()
{
    static_assert(std::is_same_v<std::remove_extent_t<member_value<Member>>, uint8_t>);
    return describe_member<Member>(member_kind::bytes);
}

template <auto Member>
record_member text()
{
    static_assert(std::is_same_v<std::remove_extent_t<member_value<Member>>, char>);
    return describe_member<Member>(member_kind::text);
}

template <auto Member>
record_member reserved()
{
    return describe_member<Member>(member_kind::reserved);
}

template <auto Member>
record_member numbers()
{
    static_assert(std::is_same_v<std::remove_extent_t<member_value<Member>>, uint32_t>);
    record_member member = describe_member<Member>(member_kind::numbers);
    member.element_bytes = sizeof(uint32_t);
    return member;
}

template <auto Member>
record_member record()
{
    record_member member = describe_member<Member>(member_kind::record);
    member.layout = &layout_of<member_value<Member>>();
    return member;
}

// What `records` and `texts` share.
template <auto Member, auto Count>
record_member describe_list(member_kind kind)
{
    static_assert(std::is_unsigned_v<member_value<Count>>);
    record_member member = describe_member<Member>(kind);
    member.element_bytes = sizeof(std::remove_extent_t<member_value<Member>>);
    member.count_offset = offset_of<Count>();
    member.count_bytes = sizeof(member_value<Count>);
    return member;
}

template <auto Member, auto Count>
record_member records()
{
    record_member member = describe_list<Member, Count>(member_kind::records);
    member.layout = &layout_of<std::remove_extent_t<member_value<Member>>>();
    return member;
}

template <auto Member, auto Count>
record_member texts()
{
    static_assert(std::is_same_v<std::remove_all_extents_t<member_value<Member>>, char>);
    return describe_list<Member, Count>(member_kind::texts);
}

template <class Record>
record_layout describe_layout(std::vector<record_member> members)
{
    // An application record is called tum_nal_data_<name>.
    const std::string_view name =
        mava_tum_inspect::text_behind(mava_tum_inspect::argument_text<Record>(), "tum_nal_data_");
    return {name, sizeof(Record), std::move(members)};
}

} // namespace mava_tum_cli
