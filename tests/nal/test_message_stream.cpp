// Messages on a stream: complete, in parts of any size, and with a length that is rejected.
#include "tum_nal/message_stream.h"

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{

using byte_vector = std::vector<uint8_t>;
constexpr uint32_t limit = 5;

const std::vector<byte_vector> messages = {{1, 2, 3, 4, 5}, {}, {0, 0, 0, 1}, {9}, {}, {6, 7}};

byte_vector stream_of(const std::vector<byte_vector> &contents)
{
    byte_vector bytes;
    for (const byte_vector &content : contents) {
        std::array<uint8_t, TUM_NAL_MESSAGE_LENGTH_BYTES> front{};
        tum_nal_message_stream_put_length(front.data(), static_cast<uint32_t>(content.size()));
        bytes.insert(bytes.end(), front.begin(), front.end());
        bytes.insert(bytes.end(), content.begin(), content.end());
    }
    return bytes;
}

class message_stream : public testing::Test
{
protected:
    message_stream()
    {
        tum_nal_message_stream_init(&stream, buffer.data(), limit);
    }

    // Passes a copy of the bytes, so that a read past them is detected, and keeps the messages. Returns the last
    // result.
    int32_t feed(const uint8_t *data, std::size_t size)
    {
        const byte_vector arrived(data, data + size);
        const uint8_t *bytes = arrived.data();
        uint64_t count = size;
        for (;;) {
            const uint8_t *message = nullptr;
            uint32_t length = 0;
            const int32_t result = tum_nal_message_stream_next(&stream, &bytes, &count, &message, &length);
            EXPECT_EQ(bytes + count, arrived.data() + size) << "what is left ends where it ended";
            if (result != TUM_NAL_MESSAGE_COMPLETE)
                return result;
            EXPECT_TRUE(length == 0 || message != nullptr);
            received.emplace_back(message, message + length);
        }
    }

    std::array<uint8_t, limit> buffer{};
    tum_nal_message_stream_t stream;
    std::vector<byte_vector> received;
};

TEST_F(message_stream, messages_come_back_in_order_and_empty_ones_too)
{
    const byte_vector bytes = stream_of(messages);
    EXPECT_EQ(feed(bytes.data(), bytes.size()), TUM_NAL_MESSAGE_INCOMPLETE);
    EXPECT_EQ(received, messages);
    EXPECT_TRUE(tum_nal_message_stream_may_end(&stream));
    EXPECT_EQ(buffer, (std::array<uint8_t, limit>{})) << "what arrives whole is not copied";
}

TEST_F(message_stream, two_cuts_anywhere_change_nothing)
{
    const byte_vector bytes = stream_of(messages);
    for (std::size_t first = 0; first <= bytes.size(); ++first) {
        for (std::size_t second = first; second <= bytes.size(); ++second) {
            received.clear();
            feed(bytes.data(), first);
            feed(bytes.data() + first, second - first);
            feed(bytes.data() + second, bytes.size() - second);
            ASSERT_EQ(received, messages) << "cut at " << first << " and " << second;
            ASSERT_TRUE(tum_nal_message_stream_may_end(&stream));
        }
    }
}

TEST_F(message_stream, one_byte_at_a_time_changes_nothing)
{
    for (const uint8_t byte : stream_of(messages))
        ASSERT_EQ(feed(&byte, 1), TUM_NAL_MESSAGE_INCOMPLETE);
    EXPECT_EQ(received, messages);
}

TEST_F(message_stream, may_end_between_messages_only)
{
    const byte_vector bytes = stream_of({{1, 2}, {3}});
    for (std::size_t size = 0; size <= bytes.size(); ++size) {
        tum_nal_message_stream_init(&stream, buffer.data(), limit);
        feed(bytes.data(), size);
        EXPECT_EQ(tum_nal_message_stream_may_end(&stream), size == 0 || size == 6 || size == bytes.size()) << size;
    }
}

TEST_F(message_stream, a_length_above_the_limit_is_refused_for_ever_and_nothing_of_it_is_read)
{
    const byte_vector bytes = {0, 0, 0, limit + 1, 1, 2, 3, 4, 5, 6, 0, 0, 0, 0};
    EXPECT_EQ(feed(bytes.data(), bytes.size()), TUM_NAL_MESSAGE_TOO_LONG);
    EXPECT_EQ(feed(bytes.data(), 1), TUM_NAL_MESSAGE_TOO_LONG);
    EXPECT_EQ(feed(nullptr, 0), TUM_NAL_MESSAGE_TOO_LONG);
    EXPECT_TRUE(received.empty());
    EXPECT_EQ(buffer, (std::array<uint8_t, limit>{}));
    EXPECT_FALSE(tum_nal_message_stream_may_end(&stream));
}

TEST_F(message_stream, the_largest_length_is_refused_too)
{
    const byte_vector bytes(5, 0xFF);
    EXPECT_EQ(feed(bytes.data(), bytes.size()), TUM_NAL_MESSAGE_TOO_LONG);
}

TEST_F(message_stream, nothing_may_come_without_an_address)
{
    const byte_vector bytes = stream_of({{1, 2, 3}});
    for (const uint8_t byte : bytes) {
        EXPECT_EQ(feed(nullptr, 0), TUM_NAL_MESSAGE_INCOMPLETE);
        feed(&byte, 1);
    }
    EXPECT_EQ(received, (std::vector<byte_vector>{{1, 2, 3}}));
}

TEST_F(message_stream, a_limit_of_zero_lets_empty_messages_through_and_needs_no_buffer)
{
    tum_nal_message_stream_init(&stream, nullptr, 0);
    const byte_vector bytes = {0, 0, 0, 0, 0, 0, 0, 1};
    EXPECT_EQ(feed(bytes.data(), bytes.size()), TUM_NAL_MESSAGE_TOO_LONG);
    EXPECT_EQ(received, (std::vector<byte_vector>{{}}));
}

TEST(message_stream_length, stands_in_4_bytes_big_endian)
{
    std::array<uint8_t, 6> front{0xEE, 0, 0, 0, 0, 0xEE};
    tum_nal_message_stream_put_length(front.data() + 1, 0x01020304);
    EXPECT_EQ(front, (std::array<uint8_t, 6>{0xEE, 1, 2, 3, 4, 0xEE}));
}

} // namespace
