// Reads one field of a codec record, by its number and its member: what the named accessors are made of.
#ifndef MAVA_TUM_CPP_FIELD_ACCESS_HPP
#define MAVA_TUM_CPP_FIELD_ACCESS_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/codec_contract.h"
#include "mava_tum/cpp/list_view.hpp"
#include "mava_tum/cpp/span.hpp"

#include <optional>

namespace mava_tum::cpp::access
{

// `fields`, for a function that returns what refers to the record. A record without a name must not be asked for that.
template <class Derived, class Fields>
Fields &lasting(Fields &fields) noexcept
{
    static_assert(!Derived::holds_record,
        "what this function returns refers to a record that ends with the statement: give the record a name first");
    return fields;
}

// Field n owns bit n-1.
template <unsigned number, class Record>
bool is_present(const Record &record) noexcept
{
    return (record.presence_mask >> (number - 1) & 1U) != 0;
}

template <unsigned number, class Record, class Number>
std::optional<Number> number_of(const Record &record, Number member) noexcept
{
    return is_present<number>(record) ? std::optional<Number>(member) : std::nullopt;
}

template <unsigned number, class Record>
std::optional<bytes_view> bytes_of(const Record &record, const mava_tum_bytes &member) noexcept
{
    if (!is_present<number>(record))
        return std::nullopt;
    return bytes_view(member.data, static_cast<std::size_t>(member.length));
}

template <unsigned number, class Record>
std::optional<std::string_view> text_of(const Record &record, const char *member) noexcept
{
    if (!is_present<number>(record) || member == nullptr)
        return std::nullopt;
    return std::string_view(member);
}

template <unsigned number, class View, class Record, class Nested>
View record_of(const Record &record, const Nested &member) noexcept
{
    return View(member, is_present<number>(record));
}

template <unsigned number, class List, class Record, class Element>
List list_of(const Record &record, Element *elements, std::uint32_t count) noexcept
{
    return is_present<number>(record) ? List(elements, count) : List();
}

} // namespace mava_tum::cpp::access

#endif
