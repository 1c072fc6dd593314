// A pointer and a count: how the layer takes and shows bytes and elements. It owns nothing.
//
// std::span is C++20. This one is there in every standard, so that a program whose parts are compiled as C++17 and as
// C++20 sees one type; it takes whatever has data() and size(), a std::span included, and converts to a std::span.
#ifndef MAVA_TUM_CPP_SPAN_HPP
#define MAVA_TUM_CPP_SPAN_HPP

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

namespace mava_tum::cpp
{

// `size()` elements from `data()` on.
template <class Element>
class span
{
    // The container's elements are ours, or ours without const.
    template <class Container>
    using if_contiguous = std::enable_if_t<
        std::is_convertible_v<std::remove_pointer_t<decltype(std::declval<Container &>().data())> (*)[],
            Element (*)[]> &&
        std::is_convertible_v<decltype(std::declval<Container &>().size()), std::size_t>>;

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
    constexpr span(Element (&array)[size]) noexcept : data_(array), size_(size)
    {
    }

    // What a container holds at the time: a std::vector, a std::array, a std::string, a std::span.
    template <class Container, class = if_contiguous<Container>>
    constexpr span(Container &&container) noexcept : data_(container.data()), size_(container.size())
    {
    }

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

private:
    Element *data_ = nullptr;
    std::size_t size_ = 0;
};

// Wire bytes, and the content of a bytes field.
using bytes_view = span<const std::uint8_t>;

// The bytes of a text, for what came in as one.
inline bytes_view bytes_of(std::string_view text) noexcept
{
    return {reinterpret_cast<const std::uint8_t *>(text.data()), text.size()};
}

} // namespace mava_tum::cpp

#endif
