// A pointer and a count: how the layer takes and shows bytes and elements. It owns nothing.
//
// std::span is C++20. This one is there in every standard, so that a program whose parts are compiled as C++17 and as
// C++20 sees one type; it takes whatever has data() and size(), a std::span included, and converts to a std::span.
#ifndef MAVA_TUM_CPP_SPAN_HPP
#define MAVA_TUM_CPP_SPAN_HPP
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>
#if __has_include(<version>)
#include <version>
#endif
#if defined(__cpp_lib_ranges)
#include <ranges>
#endif

// Where the compiler has it: warns when the result outlives what it was made from.
#if defined(__clang__) && __has_cpp_attribute(clang::lifetimebound)
#define MAVA_TUM_LIFETIMEBOUND [[clang::lifetimebound]]
#else
#define MAVA_TUM_LIFETIMEBOUND
#endif

namespace mava_tum::cpp
{

// A type of one byte, const or not.
template <class Type>
inline constexpr bool is_byte =
    std::is_same_v<std::remove_cv_t<Type>, std::uint8_t> || std::is_same_v<std::remove_cv_t<Type>, std::byte> ||
    std::is_same_v<std::remove_cv_t<Type>, char>;

// `size()` elements from `data()` on. If Element is a byte, the bytes of a std::string or of a std::vector<std::byte>
// are elements, too.
template <class Element>
class span
{
    // Elements of ours, or ours without const; or bytes of another type, unless they are const and ours are not.
    template <class Given>
    static constexpr bool is_element = std::is_convertible_v<Given (*)[], Element (*)[]> ||
                                       (is_byte<Given> && is_byte<Element> &&
                                           (std::is_const_v<Element> || !std::is_const_v<Given>));

    template <class Given>
    static constexpr Element *elements_at(Given *data) noexcept
    {
        if constexpr (std::is_convertible_v<Given(*)[], Element(*)[]>)
            return data;
        else
            return reinterpret_cast<Element *>(data);
    }

    // Of a container of elements.
    template <class Container>
    using data_of =
        std::enable_if_t<is_element<std::remove_pointer_t<decltype(std::declval<Container &>().data())>> &&
                             std::is_convertible_v<decltype(std::declval<Container &>().size()), std::size_t>,
            decltype(std::declval<Container &>().data())>;

    // The elements of a std::span are not const when it is itself: it does not own them. Those of a std::vector are.
    template <class Container>
    using is_view = std::is_same<decltype(std::declval<std::remove_const_t<Container> &>().data()),
        decltype(std::declval<const Container &>().data())>;

    template <class Container>
    using if_view = std::enable_if_t<is_view<Container>::value, data_of<Container>>;

    template <class Container>
    using if_owner = std::enable_if_t<!is_view<Container>::value, data_of<Container>>;

public:
    using element_type = Element;
    using value_type = std::remove_cv_t<Element>;
    using iterator = Element *;

    // No elements.
    constexpr span() noexcept = default;

    // `size` elements from `data` on; `data` may be null if there are none.
    constexpr span(Element *data, std::size_t size) noexcept : data_(data), size_(size) {}

    // All of an array.
    template <std::size_t size>
    constexpr span(Element (&array MAVA_TUM_LIFETIMEBOUND)[size]) noexcept : data_(array), size_(size)
    {
    }

    // All of an array of std::byte. Not of characters: the last one of a text is its NUL, see bytes_of().
    template <class Given, std::size_t size,
        class = std::enable_if_t<is_element<Given> && std::is_same_v<std::remove_cv_t<Given>, std::byte>>>
    constexpr span(Given (&array MAVA_TUM_LIFETIMEBOUND)[size]) noexcept : data_(elements_at(array)), size_(size)
    {
    }

    // What another view refers to: a std::span, a span without const.
    template <class View, class = if_view<const View>>
    constexpr span(const View &view) noexcept : data_(elements_at(view.data())), size_(view.size())
    {
    }

    // What a container holds at the time: a std::vector, a std::array, a std::string.
    template <class Owner, class = if_owner<Owner>>
    constexpr span(Owner &owner MAVA_TUM_LIFETIMEBOUND) noexcept : data_(elements_at(owner.data())), size_(owner.size())
    {
    }

    // A container without a name.
    template <class Owner, class = if_owner<Owner>>
    span(const Owner &&) = delete; // what it holds ends with the statement: give it a name first

    constexpr Element *data() const noexcept
    {
        return data_;
    }

    constexpr std::size_t size() const noexcept
    {
        return size_;
    }

    constexpr bool empty() const noexcept
    {
        return size_ == 0;
    }

    // Not checked: `index` is below size().
    constexpr Element &operator[](std::size_t index) const noexcept
    {
        return data_[index];
    }

    constexpr iterator begin() const noexcept
    {
        return data_;
    }

    constexpr iterator end() const noexcept
    {
        return data_ + size_;
    }

    // Not checked: `count` is at most size().
    constexpr span first(std::size_t count) const noexcept
    {
        return {data_, count};
    }

    // Elements that are equal, one by one.
    friend bool operator==(const span &left, const span &right) noexcept
    {
        return std::equal(left.begin(), left.end(), right.begin(), right.end());
    }

    friend bool operator!=(const span &left, const span &right) noexcept
    {
        return !(left == right);
    }

private:
    Element *data_ = nullptr;
    std::size_t size_ = 0;
};

// For parameters only: what a function has read when it returns. So it can also be given what ends with the statement,
// such as the vector that encode() returns.
template <class Element>
class argument_span : public span<Element>
{
public:
    // No elements.
    constexpr argument_span() noexcept = default;

    // `size` elements from `data` on; `data` may be null if there are none.
    constexpr argument_span(Element *data, std::size_t size) noexcept : span<Element>(data, size) {}

    // All of an array.
    template <std::size_t size>
    constexpr argument_span(Element (&array)[size]) noexcept : span<Element>(array)
    {
    }

    // What a container holds at the time, with or without a name.
    template <class Container, class = decltype(span<Element>(std::declval<std::remove_reference_t<Container> &>()))>
    constexpr argument_span(Container &&container) noexcept
        : span<Element>(static_cast<std::remove_reference_t<Container> &>(container))
    {
    }
};

// Wire bytes, and the content of a bytes field.
using bytes_view = span<const std::uint8_t>;

// Wire bytes, or the content of a bytes field, for a function that has read them when it returns.
using bytes_argument = argument_span<const std::uint8_t>;

// The bytes of a text, for what came in as one.
inline bytes_view bytes_of(std::string_view text MAVA_TUM_LIFETIMEBOUND) noexcept
{
    return {reinterpret_cast<const std::uint8_t *>(text.data()), text.size()};
}

} // namespace mava_tum::cpp

#if defined(__cpp_lib_ranges)
template <class Element>
inline constexpr bool std::ranges::enable_view<mava_tum::cpp::span<Element>> = true;
template <class Element>
inline constexpr bool std::ranges::enable_borrowed_range<mava_tum::cpp::span<Element>> = true;
#endif

#endif
