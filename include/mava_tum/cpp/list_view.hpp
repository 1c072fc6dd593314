// Arrays of a record: elements behind a pointer and a count, each shown as what it is.
#ifndef MAVA_TUM_CPP_LIST_VIEW_HPP
#define MAVA_TUM_CPP_LIST_VIEW_HPP
// SPDX-License-Identifier: Apache-2.0

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>
#if __has_include(<version>)
#include <version>
#endif
#if defined(__cpp_lib_ranges)
#include <ranges>
#endif

namespace mava_tum::cpp
{

class block_list;

// Show turns an element of the codec's array into what the list shows for it, which is a value: a text, a view, an
// editor. An absent array is an empty list.
template <class Element, class Show>
class list_view
{
public:
    using value_type = decltype(std::declval<const Show &>()(std::declval<Element &>()));

    // Goes over the elements, in steps of any size.
    class iterator
    {
    public:
#if defined(__cpp_lib_ranges)
        using iterator_concept = std::random_access_iterator_tag;
#endif
        using iterator_category = std::input_iterator_tag; // of C++17, since what it refers to is made on the spot
        using value_type = list_view::value_type;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = value_type;

        // Equal to any other that was made so.
        iterator() noexcept = default;

        // Refers to `element`.
        iterator(Element *element, Show show) noexcept : element_(element), show_(show) {}

        value_type operator*() const noexcept
        {
            return show_(*element_);
        }

        value_type operator[](difference_type steps) const noexcept
        {
            return show_(element_[steps]);
        }

        iterator &operator++() noexcept
        {
            ++element_;
            return *this;
        }

        iterator operator++(int) noexcept
        {
            return iterator(element_++, show_);
        }

        iterator &operator--() noexcept
        {
            --element_;
            return *this;
        }

        iterator operator--(int) noexcept
        {
            return iterator(element_--, show_);
        }

        iterator &operator+=(difference_type steps) noexcept
        {
            element_ += steps;
            return *this;
        }

        iterator &operator-=(difference_type steps) noexcept
        {
            element_ -= steps;
            return *this;
        }

        friend iterator operator+(iterator from, difference_type steps) noexcept
        {
            return from += steps;
        }

        friend iterator operator+(difference_type steps, iterator from) noexcept
        {
            return from += steps;
        }

        friend iterator operator-(iterator from, difference_type steps) noexcept
        {
            return from -= steps;
        }

        friend difference_type operator-(iterator left, iterator right) noexcept
        {
            return left.element_ - right.element_;
        }

        friend bool operator==(iterator left, iterator right) noexcept
        {
            return left.element_ == right.element_;
        }

        friend bool operator!=(iterator left, iterator right) noexcept
        {
            return left.element_ != right.element_;
        }

        friend bool operator<(iterator left, iterator right) noexcept
        {
            return left.element_ < right.element_;
        }

        friend bool operator>(iterator left, iterator right) noexcept
        {
            return right < left;
        }

        friend bool operator<=(iterator left, iterator right) noexcept
        {
            return !(right < left);
        }

        friend bool operator>=(iterator left, iterator right) noexcept
        {
            return !(left < right);
        }

    private:
        Element *element_ = nullptr;
        Show show_;
    };

    // Empty.
    list_view() noexcept = default;

    // `size` elements from `elements` on.
    list_view(Element *elements, std::size_t size, Show show = Show()) noexcept
        : elements_(elements), size_(size), show_(show)
    {
    }

    std::size_t size() const noexcept
    {
        return size_;
    }

    bool empty() const noexcept
    {
        return size_ == 0;
    }

    // Not checked: `index` is below size().
    value_type operator[](std::size_t index) const noexcept
    {
        return show_(elements_[index]);
    }

    iterator begin() const noexcept
    {
        return iterator(elements_, show_);
    }

    iterator end() const noexcept
    {
        return iterator(elements_ + size_, show_);
    }

    // Elements that are equal, one by one.
    friend bool operator==(const list_view &left, const list_view &right) noexcept
    {
        return std::equal(left.begin(), left.end(), right.begin(), right.end());
    }

    friend bool operator!=(const list_view &left, const list_view &right) noexcept
    {
        return !(left == right);
    }

private:
    Element *elements_ = nullptr;
    std::size_t size_ = 0;
    Show show_;
};

// A null text, which stands in an array after a copy that ran out of memory, is shown as an empty one.
struct show_text {
    // The text in the record; not a copy.
    std::string_view operator()(char *const &text) const noexcept
    {
        return text == nullptr ? std::string_view() : std::string_view(text);
    }
};

// Shows a record as a view of it.
template <class View>
struct show_view {
    // A view of `record`.
    template <class Record>
    View operator()(const Record &record) const noexcept
    {
        return View(record);
    }
};

// Shows a record as an editor of it.
template <class Editor>
struct show_editor {
    // An editor of `record`.
    template <class Record>
    Editor operator()(Record &record) const noexcept
    {
        return Editor(record, blocks);
    }

    block_list *blocks = nullptr; // of the record that owns the array
};

// An array of texts, to be read.
using text_list = list_view<char *const, show_text>;

// An array of records, to be read.
template <class View, class Record>
using record_list = list_view<const Record, show_view<View>>;

// An array of records, to be changed.
template <class Editor, class Record>
using editor_list = list_view<Record, show_editor<Editor>>;

} // namespace mava_tum::cpp

#if defined(__cpp_lib_ranges)
template <class Element, class Show>
inline constexpr bool std::ranges::enable_view<mava_tum::cpp::list_view<Element, Show>> = true;
template <class Element, class Show>
inline constexpr bool std::ranges::enable_borrowed_range<mava_tum::cpp::list_view<Element, Show>> = true;
#endif

#endif
