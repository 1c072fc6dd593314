// Changes one field of a codec record, by its number and its member: what the named setters are made of.
#ifndef MAVA_TUM_CPP_FIELD_CHANGE_HPP
#define MAVA_TUM_CPP_FIELD_CHANGE_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/block_list.hpp"
#include "mava_tum/cpp/exact_number.hpp"
#include "mava_tum/cpp/field_access.hpp"
#include "mava_tum/cpp/list_view.hpp"
#include "mava_tum/cpp/result.hpp"
#include "mava_tum/cpp/span.hpp"

#include <cstring>
#include <optional>

namespace mava_tum::cpp::change
{

// Field n owns bit n-1.
template <unsigned number, class Record>
void mark(Record &record, bool present) noexcept
{
    using mask = decltype(record.presence_mask);
    constexpr auto bit = static_cast<mask>(1U << (number - 1));
    record.presence_mask = static_cast<mask>(present ? record.presence_mask | bit : record.presence_mask & ~bit);
}

template <unsigned number, class Record, class Number>
void set_number(Record &record, Number &member, exact_number<Number> value) noexcept
{
    member = value.number();
    mark<number>(record, value.is_present());
}

// Null if the block is refused.
inline char *copy_of(std::string_view text, block_list &blocks) noexcept
{
    auto *const copy = static_cast<char *>(blocks.take(text.size() + std::uint64_t{1}));
    if (copy == nullptr)
        return nullptr;
    if (!text.empty())
        std::memcpy(copy, text.data(), text.size());
    copy[text.size()] = '\0';
    return copy;
}

// When the block is refused the field stays as it is; so it does in the functions below.
template <unsigned number, class Record>
result set_text(Record &record, char *&member, block_list *blocks, std::optional<std::string_view> text) noexcept
{
    char *const copy = text ? copy_of(*text, *blocks) : nullptr;
    if (text && copy == nullptr)
        return result::no_memory;
    member = copy;
    mark<number>(record, text.has_value());
    return result::ok;
}

template <unsigned number, class Record>
result set_bytes(
    Record &record, mava_tum_bytes &member, block_list *blocks, std::optional<bytes_argument> bytes) noexcept
{
    mava_tum_bytes copy = {};
    if (bytes && !bytes->empty()) {
        copy = {static_cast<std::uint8_t *>(blocks->take(bytes->size())), bytes->size()};
        if (copy.data == nullptr)
            return result::no_memory;
        std::memcpy(copy.data, bytes->data(), bytes->size());
    }
    member = copy;
    mark<number>(record, bytes.has_value());
    return result::ok;
}

template <unsigned number, class Editor, class Record, class Nested>
Editor edit_record(Record &record, Nested &member, block_list *blocks) noexcept
{
    if (!access::is_present<number>(record))
        member = Nested{}; // see absent_record
    mark<number>(record, true);
    return Editor(member, blocks);
}

template <unsigned number, class Record, class Nested>
void clear_record(Record &record, Nested &member) noexcept
{
    member = Nested{};
    mark<number>(record, false);
}

// What the count of an array can hold.
inline constexpr std::uint32_t most_elements = UINT32_MAX;

// Starts the elements from `first` to `end` without content.
template <class Element>
void make_empty(Element *elements, std::uint32_t first, std::uint32_t end) noexcept
{
    for (std::uint32_t i = first; i < end; ++i)
        ::new (static_cast<void *>(elements + i)) Element();
}

// `count` elements without content; null if there are to be none, or if the block is refused.
template <class Element>
Element *make_elements(block_list &blocks, std::uint32_t count) noexcept
{
    void *const block = count == 0 ? nullptr : blocks.take(sizeof(Element) * std::uint64_t{count});
    if (block == nullptr)
        return nullptr;
    auto *const elements = static_cast<Element *>(block);
    make_empty(elements, 0, count);
    return elements;
}

// The new elements; none when the block is refused, and so are more than can be counted.
template <unsigned number, class List, class Record, class Element>
List make_list(
    Record &record, Element *&member, std::uint32_t &member_count, block_list *blocks, std::uint64_t given) noexcept
{
    if (given > most_elements)
        return List();
    const auto count = static_cast<std::uint32_t>(given);
    Element *const elements = make_elements<Element>(*blocks, count);
    if (count != 0 && elements == nullptr)
        return List();
    member = elements;
    member_count = count;
    mark<number>(record, count != 0);
    return List(elements, count, {blocks});
}

// The elements that there are.
template <unsigned number, class List, class Record, class Element>
List edit_list(Record &record, Element *elements, std::uint32_t count, block_list *blocks) noexcept
{
    return access::is_present<number>(record) ? List(elements, count, {blocks}) : List();
}

template <unsigned number, class Record, class Element>
void clear_list(Record &record, Element *&member, std::uint32_t &member_count) noexcept
{
    member = nullptr;
    member_count = 0;
    mark<number>(record, false);
}

// `member` with room for `count` elements, after the first `used`, which are kept; null when the block is refused. A
// block has room for twice as many as there are, so that elements can be added one by one.
template <class Element>
Element *with_room_for(std::uint32_t count, Element *member, std::uint32_t used, block_list &blocks) noexcept
{
    if (member != nullptr && blocks.room_of(member) / sizeof(Element) >= count)
        return member;
    const std::uint64_t wanted = std::uint64_t{used} * 2 > count ? std::uint64_t{used} * 2 : count;
    auto *const elements = static_cast<Element *>(blocks.take_growing(sizeof(Element) * wanted));
    if (elements != nullptr && used != 0)
        std::memcpy(static_cast<void *>(elements), member, sizeof(Element) * std::size_t{used});
    return elements;
}

// New elements are empty. When a block is refused the field stays as it is.
template <unsigned number, class Record, class Element>
result resize_list(
    Record &record, Element *&member, std::uint32_t &member_count, block_list *blocks, std::uint64_t given) noexcept
{
    if (given > most_elements)
        return result::no_memory;
    const std::uint32_t used = access::is_present<number>(record) ? member_count : 0;
    const auto count = static_cast<std::uint32_t>(given);
    if (count > used) {
        Element *const elements = with_room_for(count, member, used, *blocks);
        if (elements == nullptr)
            return result::no_memory;
        make_empty(elements, used, count);
        member = elements;
    }
    member_count = count;
    mark<number>(record, count != 0);
    return result::ok;
}

// An empty element after the others; nothing when a block is refused.
template <unsigned number, class Editor, class Record, class Element>
std::optional<Editor> add_element(
    Record &record, Element *&member, std::uint32_t &member_count, block_list *blocks) noexcept
{
    const std::uint64_t used = access::is_present<number>(record) ? member_count : 0;
    if (resize_list<number>(record, member, member_count, blocks, used + 1) != result::ok)
        return std::nullopt;
    return Editor(member[used], blocks);
}

// All of them, or when a block is refused none: the field stays as it is.
template <unsigned number, class Record>
result set_texts(Record &record, char **&member, std::uint32_t &member_count, block_list *blocks,
    argument_span<const std::string_view> texts) noexcept
{
    if (std::uint64_t{texts.size()} > most_elements)
        return result::no_memory;
    const auto count = static_cast<std::uint32_t>(texts.size());
    char **const copies = make_elements<char *>(*blocks, count);
    if (count != 0 && copies == nullptr)
        return result::no_memory;
    for (std::uint32_t i = 0; i < count; ++i) {
        copies[i] = copy_of(texts[i], *blocks);
        if (copies[i] == nullptr)
            return result::no_memory;
    }
    member = copies;
    member_count = count;
    mark<number>(record, count != 0);
    return result::ok;
}

} // namespace mava_tum::cpp::change

#endif
