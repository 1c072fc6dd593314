// Wire bytes from a record, for everything that holds or refers to one.
#ifndef MAVA_TUM_CPP_ENCODING_HPP
#define MAVA_TUM_CPP_ENCODING_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/codec_calls.hpp"

#include <vector>

namespace mava_tum::cpp
{

// What an encode into a buffer of the caller's came to.
struct [[nodiscard]] encoded {
    std::uint64_t size; // bytes of the whole message
    bool complete;      // false: the buffer was too small, and what lies in it is cut: do not send it

    // True if the message is whole.
    constexpr explicit operator bool() const noexcept
    {
        return complete;
    }
};

// What encodes. Derived has c_record().
template <class Derived>
class encoding
{
public:
    // In bytes. This is an encode without a buffer: who can guess a size had better encode at once.
    std::uint64_t encoded_size() const noexcept
    {
        return encode(span<std::uint8_t>()).size;
    }

    // Allocates nothing. `buffer` must not overlap what the record refers to.
    encoded encode(span<std::uint8_t> buffer) const noexcept
    {
        const auto &record = static_cast<const Derived &>(*this).c_record();
        using message = codec_of<std::decay_t<decltype(record)>>;
        const std::uint64_t size =
            call_codec(message::encode, &record, buffer.data(), buffer.size(), nullptr, nullptr, std::uint32_t{0});
        return {size, size <= buffer.size()};
    }

    // Gives `container`, of bytes of any type, exactly the message; what it held before is gone. Allocates as resize()
    // does.
    template <class Container>
    void encode_to(Container &container) const
    {
        container.resize(static_cast<std::size_t>(encoded_size()));
        static_cast<void>(encode(span<std::uint8_t>(container)));
    }

    // The message in a vector of its own.
    std::vector<std::uint8_t> encode() const
    {
        std::vector<std::uint8_t> wire;
        encode_to(wire);
        return wire;
    }

protected:
    ~encoding() = default; // no record is destroyed through this base
};

// The class of the views of what Derived holds or refers to.
template <class Derived>
using view_of = typename codec_of<std::decay_t<decltype(std::declval<const Derived &>().c_record())>>::view;

// Whether the same fields are present, with the same content, at every depth. Of records, views and editors of one
// message; an absent record equals only another one.
template <class Left, class Right, class = std::enable_if_t<std::is_same_v<view_of<Left>, view_of<Right>>>>
bool operator==(const encoding<Left> &left, const encoding<Right> &right) noexcept
{
    const view_of<Left> first = static_cast<const Left &>(left).view();
    const view_of<Right> second = static_cast<const Right &>(right).view();
    return first.has_value() == second.has_value() && first.has_fields_of(second);
}

template <class Left, class Right, class = std::enable_if_t<std::is_same_v<view_of<Left>, view_of<Right>>>>
bool operator!=(const encoding<Left> &left, const encoding<Right> &right) noexcept
{
    return !(left == right);
}

} // namespace mava_tum::cpp

#endif
