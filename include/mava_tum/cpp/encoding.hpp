// Wire bytes from a record, for everything that holds or refers to one.
#ifndef MAVA_TUM_CPP_ENCODING_HPP
#define MAVA_TUM_CPP_ENCODING_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/codec_calls.hpp"

#include <array>
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

// The segments of a message in order: pairs of address and length in bytes, such as mava_tum_segment or iovec. They
// point into the record and into the buffer of the call.
template <class Pair, std::size_t most>
class gathered
{
public:
    // From what the codec returned.
    gathered(const std::array<mava_tum_segment, most> &segments, std::uint32_t count, bool complete) noexcept
        : count_(count), complete_(complete)
    {
        for (std::size_t i = 0; i < count; ++i) {
            pairs_[i] =
                Pair{const_cast<std::uint8_t *>(segments[i].data), static_cast<std::size_t>(segments[i].length)};
            byte_count_ += segments[i].length;
        }
    }

    const Pair *data() const noexcept
    {
        return pairs_.data();
    }

    std::size_t size() const noexcept
    {
        return count_;
    }

    const Pair *begin() const noexcept
    {
        return data();
    }

    const Pair *end() const noexcept
    {
        return data() + count_;
    }

    // Of the message.
    std::uint64_t byte_count() const noexcept
    {
        return byte_count_;
    }

    // False: the buffer was too small: do not send it.
    explicit operator bool() const noexcept
    {
        return complete_;
    }

private:
    std::array<Pair, most> pairs_{};
    std::size_t count_;
    std::uint64_t byte_count_ = 0;
    bool complete_;
};

// What the layer knows of the message of Derived.
template <class Derived>
using message_of = codec_of<std::decay_t<decltype(std::declval<const Derived &>().c_record())>>;

// The class of the views of what Derived holds or refers to.
template <class Derived>
using view_of = typename message_of<Derived>::view;

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

    // The message as segments for writev(), as gather<iovec>(buffer). Bytes fields stay in the record; `buffer`
    // receives the bytes between them. Only for messages without nested records: the segments of others are not the
    // message.
    template <class Pair = mava_tum_segment, class Encoding = Derived>
    auto gather(span<std::uint8_t> buffer) const &noexcept
    {
        using message = message_of<Encoding>;
        static_assert(message::most_segments != 0,
            "the segments of a message with nested records are not the message; without bytes fields, none is saved: "
            "use encode()");
        std::array<mava_tum_segment, message::most_segments> segments;
        std::uint32_t count = message::most_segments;
        const std::uint64_t in_buffer = call_codec(message::encode, &static_cast<const Derived &>(*this).c_record(),
            buffer.data(), buffer.size(), segments.data(), &count, std::uint32_t{MAVA_TUM_ALIAS});
        return gathered<Pair, message::most_segments>(segments, count, in_buffer <= buffer.size());
    }
    // The same, of a view or an editor.
    template <class Pair = mava_tum_segment, class Encoding = Derived>
    auto gather(span<std::uint8_t> buffer) const &&noexcept
    {
        static_assert(!Encoding::holds_record, "the segments refer to a record that ends with the statement");
        return static_cast<const encoding &>(*this).template gather<Pair>(buffer);
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

// Whether the same fields are present, with the same content, at every depth. Of records, views and editors of one
// message; an absent record equals only another one.
template <class Left, class Right, class = std::enable_if_t<std::is_same_v<view_of<Left>, view_of<Right>>>>
bool operator==(const encoding<Left> &left, const encoding<Right> &right) noexcept
{
    const view_of<Left> first = static_cast<const Left &>(left).view();
    const view_of<Right> second = static_cast<const Right &>(right).view();
    return first.has_value() == second.has_value() && first.has_fields_of(second);
}

// The opposite of operator==().
template <class Left, class Right, class = std::enable_if_t<std::is_same_v<view_of<Left>, view_of<Right>>>>
bool operator!=(const encoding<Left> &left, const encoding<Right> &right) noexcept
{
    return !(left == right);
}

} // namespace mava_tum::cpp

#endif
