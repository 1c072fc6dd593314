// The rows that the mappings are made of, one line for each member, for both directions:
//
//     number<n, &record::member, when>    sent as field n if `when` says so; received into the member
//     ipv4, octets, ipv6, text            the same for addresses, octet arrays and texts
//     nested<n, rows, when>               a nested message whose values are members of the same record
//     nested_in<n, &record::member, ...>  a nested message whose values are members of a member
//     list, text_list                     a repeated field, in a fixed array and a count
//     sent<row>, received<row>            one direction only
//
// What `when` can be is below the rows that use it first.
#pragma once

#include "codec/mapping.h"
#include "nal/ipv4_order.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace mava_tum
{

// ---- when a value is sent ----

struct always {
    static bool sends(const auto &, const auto &)
    {
        return true;
    }
};

struct if_nonzero {
    static bool sends(const auto &, const auto &value)
    {
        return value != 0;
    }
};

// An empty text is absent, whatever follows its NUL.
struct if_not_empty {
    static bool sends(const auto &, const auto &array)
    {
        return array[0] != '\0';
    }
};

// If another member is not zero.
template <auto Member>
struct if_set {
    static bool sends(const auto &record, const auto &)
    {
        return record.*Member != 0;
    }
};

template <class... When>
struct if_all {
    static bool sends(const auto &record, const auto &value)
    {
        return (When::sends(record, value) && ...);
    }
};

// ---- numbers ----

// L20: a member narrower than the field keeps the low bits.
template <uint32_t Number, auto Member, class When = always>
struct number {
    static constexpr uint32_t field = Number;

    [[gnu::always_inline]] static void send(auto &fields, const auto &record)
    {
        const auto value = record.*Member;
        if (When::sends(record, value))
            fields.template number<Number>(value);
    }

    [[gnu::always_inline]] static void store(auto &record, auto value)
    {
        record.*Member = static_cast<std::remove_reference_t<decltype(record.*Member)>>(value);
    }

    static void clear(auto &record)
    {
        record.*Member = 0;
    }
};

// One of an array of numbers, sent when it is not zero.
template <uint32_t Number, auto Member, size_t Index>
struct number_at {
    static constexpr uint32_t field = Number;

    [[gnu::always_inline]] static void send(auto &fields, const auto &record)
    {
        const auto value = (record.*Member)[Index];
        if (value != 0) [[likely]]
            fields.template number<Number>(value);
    }

    [[gnu::always_inline]] static void store(auto &record, auto value)
    {
        (record.*Member)[Index] = value;
    }

    static void clear(auto &record)
    {
        (record.*Member)[Index] = 0;
    }
};

// A record that is a number itself.
template <uint32_t Number>
struct whole_record {
    static constexpr uint32_t field = Number;

    [[gnu::always_inline]] static void send(auto &fields, uint32_t value)
    {
        fields.template number<Number>(value);
    }

    [[gnu::always_inline]] static void store(uint32_t &record, uint32_t value)
    {
        record = value;
    }

    static void clear(uint32_t &record)
    {
        record = 0;
    }
};

// An IPv4 address, in host order in the record.
template <uint32_t Number, auto Member, class When = always>
struct ipv4 : number<Number, Member, When> {
    [[gnu::always_inline]] static void send(auto &fields, const auto &record)
    {
        const uint32_t host_order = record.*Member;
        if (When::sends(record, host_order))
            fields.template number<Number>(swap_ipv4_order(host_order));
    }

    [[gnu::always_inline]] static void store(auto &record, uint32_t value)
    {
        record.*Member = swap_ipv4_order(value);
    }
};

// ---- arrays ----

template <uint32_t Number, auto Member>
struct array_row {
    static constexpr uint32_t field = Number;

    static auto &array(auto &record)
    {
        return record.*Member;
    }

    static void clear(auto &record)
    {
        memset(array(record), 0, sizeof(array(record)));
    }
};

template <uint32_t Number, auto Member, class When = always>
struct octets : array_row<Number, Member> {
    [[gnu::always_inline]] static void send(auto &fields, const auto &record)
    {
        const auto &array = record.*Member;
        if (When::sends(record, array))
            fields.template block<Number>(array, sizeof array);
    }
};

struct if_nonzero_address {
    static bool sends(const auto &, const uint8_t (&address)[16])
    {
        uint64_t halves[2];
        memcpy(halves, address, sizeof(halves));
        return (halves[0] | halves[1]) != 0;
    }
};

template <uint32_t Number, auto Member, class When = always>
using ipv6 = octets<Number, Member, if_all<When, if_nonzero_address>>;

inline constexpr uint32_t whole_array = 0;

// `Limit`: how much of the array a received text may take, NUL included.
template <uint32_t Number, auto Member, class When = if_not_empty, uint32_t Limit = whole_array>
struct text : array_row<Number, Member> {
    static constexpr uint32_t array_bytes = sizeof(typename member_of<Member>::value);
    static constexpr uint32_t limit = Limit == whole_array ? array_bytes : Limit;
    static_assert(limit >= 1 && limit <= array_bytes);

    [[gnu::always_inline]] static void send(auto &fields, const auto &record)
    {
        if (When::sends(record, record.*Member))
            fields.template array_text<Number>(record.*Member);
    }
};

// ---- nested messages; L36: sent also when nothing of them is ----

template <uint32_t Number, class Rows, class When = always>
struct nested {
    static constexpr uint32_t field = Number;
    using rows = Rows;

    [[gnu::always_inline]] static void send(auto &fields, const auto &record)
    {
        if (When::sends(record, record))
            fields.template record<Number, nested_description<Rows>>(record);
    }

    static auto &target(auto &record)
    {
        return record;
    }

    static void clear(auto &record)
    {
        clear_rows(typename Rows::rows{}, record);
    }
};

template <uint32_t Number, auto Member, class Rows, class When = always>
struct nested_in {
    static constexpr uint32_t field = Number;
    using rows = Rows;

    [[gnu::always_inline]] static void send(auto &fields, const auto &record)
    {
        if (When::sends(record, record))
            fields.template record<Number, nested_description<Rows>>(record.*Member);
    }

    static auto &target(auto &record)
    {
        return record.*Member;
    }

    static void clear(auto &record)
    {
        memset(&target(record), 0, sizeof(target(record)));
    }
};

// ---- lists; L18: a count above the number of slots is taken as the number of slots ----

template <uint32_t Number, auto Member, auto CountMember>
struct list_row {
    static constexpr uint32_t field = Number;

    static auto &slots(auto &record)
    {
        return record.*Member;
    }

    static auto &count(auto &record)
    {
        return record.*CountMember;
    }

    static void clear(auto &record)
    {
        memset(slots(record), 0, sizeof(slots(record)));
        count(record) = 0;
    }

    [[gnu::always_inline]] static uint32_t used_slots(const auto &record)
    {
        constexpr uint32_t slot_count = std::extent_v<typename member_of<Member>::value>;
        const uint32_t count = record.*CountMember;
        return count < slot_count ? count : slot_count;
    }
};

template <uint32_t Number, auto Member, auto CountMember, class Rows, class When = always>
struct list : list_row<Number, Member, CountMember> {
    using rows = Rows;

    [[gnu::always_inline]] static void send(auto &fields, const auto &record)
    {
        if (!When::sends(record, record))
            return;
        fields.repeat(list::used_slots(record),
            [&](uint32_t i) { fields.template record<Number, element_description<Rows>>((record.*Member)[i]); });
    }
};

// L33: as many texts are sent as are counted, empty ones too: the receiver counts them.
template <uint32_t Number, auto Member, auto CountMember>
struct text_list : list_row<Number, Member, CountMember> {
    [[gnu::always_inline]] static void send(auto &fields, const auto &record)
    {
        fields.repeat(text_list::used_slots(record),
            [&](uint32_t i) { fields.template array_text<Number>((record.*Member)[i]); });
    }
};

// ---- one direction only ----

template <class Row>
struct sent {
    static constexpr uint32_t field = 0; // no field is received into it

    [[gnu::always_inline]] static void send(auto &fields, const auto &record)
    {
        Row::send(fields, record);
    }

    static void clear(auto &) {}
};

template <class Row>
struct received : Row {
    static void send(auto &, const auto &) {}
};

} // namespace mava_tum
