// The rows of which the limits of an application record are made, one for each field that arrives:
//
//     takes<field, member>                          a number, a text or bytes: what it is, the member's type says
//     takes_text_up_to<field, member, size>         a text that is cut before its array ends
//     takes_with<field, member, other field>        a number that arrives only with another field
//     takes_slot<field, array, index>               a number in one place of an array
//     part<field, limits>                           a nested record whose fields arrive beside the others
//     block<field, member, limits>                  a nested record that is a structure of its own
//     list<field, array, count, limits>             the elements of an array
//     texts<field, array, count>                    an array of texts
//
// Numbers of fields and sizes come from the types: nothing is typed that a header already says.
#pragma once

#include "inspect/describe_record.h"
#include "inspect/limits/adapter_limits.h"
#include "inspect/member_name.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace mava_tum_inspect
{

// ---- the number of a field by its member ----

template <auto Member>
struct member_constant {
};

template <auto Asked, template <uint32_t, auto> class Kind, uint32_t Number, auto Member>
constexpr bool is_field(std::type_identity<Kind<Number, Member>>)
{
    return std::is_same_v<member_constant<Asked>, member_constant<Member>>;
}

template <auto Asked, template <uint32_t, auto, auto> class Kind, uint32_t Number, auto Member, auto Count>
constexpr bool is_field(std::type_identity<Kind<Number, Member, Count>>)
{
    return std::is_same_v<member_constant<Asked>, member_constant<Member>>;
}

template <auto Asked, class... Field>
constexpr uint32_t number_in(mava_tum::field_list<Field...>)
{
    return ((is_field<Asked>(std::type_identity<Field>{}) ? Field::number : 0) + ...);
}

template <auto Field>
constexpr uint32_t number_of()
{
    constexpr uint32_t number = number_in<Field>(mava_tum::fields_of<typename mava_tum::member_of<Field>::record>{});
    static_assert(number != 0);
    return number;
}

// ---- what a member can take ----

template <class Value>
constexpr limit_kind kind_of_member()
{
    if constexpr (!std::is_array_v<Value>)
        return limit_kind::number;
    else
        return std::is_same_v<std::remove_extent_t<Value>, char> ? limit_kind::text : limit_kind::bytes;
}

template <class Value>
constexpr uint64_t allowed_in_member()
{
    constexpr limit_kind kind = kind_of_member<Value>();
    if constexpr (kind == limit_kind::number)
        return 8 * sizeof(Value);
    else
        return kind == limit_kind::text ? sizeof(Value) - 1 : sizeof(Value);
}

template <class Limits>
std::span<const member_limit> limits_of();

// ---- rows ----

template <auto Field, auto Member>
struct takes {
    static member_limit limit()
    {
        using value = typename mava_tum::member_of<Member>::value;
        member_limit limit{};
        limit.number = number_of<Field>();
        limit.kind = kind_of_member<value>();
        limit.allowed = allowed_in_member<value>();
        limit.member = member_name<Member>::text.data();
        limit.offset = offset_of<Member>();
        limit.member_bytes = sizeof(value);
        return limit;
    }
};

// `Size` counts the NUL.
template <auto Field, auto Member, std::size_t Size>
struct takes_text_up_to {
    static member_limit limit()
    {
        static_assert(Size <= sizeof(typename mava_tum::member_of<Member>::value));
        member_limit limit = takes<Field, Member>::limit();
        limit.allowed = Size - 1;
        return limit;
    }
};

template <auto Field, auto Member, auto OtherField>
struct takes_with {
    static member_limit limit()
    {
        member_limit limit = takes<Field, Member>::limit();
        limit.only_with = number_of<OtherField>();
        return limit;
    }
};

template <auto Field, auto Array, std::size_t Index>
struct takes_slot {
    static member_limit limit()
    {
        using value = std::remove_extent_t<typename mava_tum::member_of<Array>::value>;
        static_assert(Index < std::extent_v<typename mava_tum::member_of<Array>::value>);
        member_limit limit{};
        limit.number = number_of<Field>();
        limit.kind = limit_kind::number;
        limit.allowed = 8 * sizeof(value);
        limit.member = member_name<Array>::text.data();
        limit.offset = offset_of<Array>() + Index * sizeof(value);
        limit.member_bytes = sizeof(value);
        return limit;
    }
};

template <auto Field, class Limits>
struct part {
    static member_limit limit()
    {
        member_limit limit{};
        limit.number = number_of<Field>();
        limit.kind = limit_kind::record;
        limit.members = limits_of<Limits>();
        return limit;
    }
};

template <auto Field, auto Member, class Limits>
struct block {
    static member_limit limit()
    {
        member_limit limit = part<Field, Limits>::limit();
        limit.member = member_name<Member>::text.data();
        limit.offset = offset_of<Member>();
        limit.member_bytes = sizeof(typename mava_tum::member_of<Member>::value);
        return limit;
    }
};

// What lists of records and of texts have in common.
template <auto Field, auto Array, auto Count>
member_limit limit_of_elements(limit_kind kind)
{
    using array = typename mava_tum::member_of<Array>::value;
    member_limit limit{};
    limit.number = number_of<Field>();
    limit.kind = kind;
    limit.allowed = std::extent_v<array>;
    limit.member = member_name<Array>::text.data();
    limit.offset = offset_of<Array>();
    limit.member_bytes = sizeof(std::remove_extent_t<array>);
    limit.count_bits = 8 * sizeof(typename mava_tum::member_of<Count>::value);
    limit.count_offset = offset_of<Count>();
    return limit;
}

template <auto Field, auto Array, auto Count, class Limits>
struct list {
    static member_limit limit()
    {
        member_limit limit = limit_of_elements<Field, Array, Count>(limit_kind::list);
        limit.members = limits_of<Limits>();
        return limit;
    }
};

template <auto Field, auto Array, auto Count>
struct texts {
    static member_limit limit()
    {
        member_limit limit = limit_of_elements<Field, Array, Count>(limit_kind::texts);
        limit.text_characters = limit.member_bytes - 1;
        return limit;
    }
};

// ---- a record ----

template <class... Row>
struct limit_rows {
};

template <class... Row>
std::array<member_limit, sizeof...(Row)> limits_in(limit_rows<Row...>)
{
    return {Row::limit()...};
}

template <class Limits>
std::span<const member_limit> limits_of()
{
    static const auto limits = limits_in(typename Limits::rows{});
    return limits;
}

} // namespace mava_tum_inspect
