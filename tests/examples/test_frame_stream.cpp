// Length-prefixed messages on a pipe. test_session_setup.cpp tests the errors for malformed streams.
#include "frame_stream.h"

#include <array>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{

class frame_stream : public testing::Test
{
protected:
    frame_stream()
    {
        EXPECT_EQ(pipe(m_ends.data()), 0);
    }

    ~frame_stream() override
    {
        close_writing_end();
        close(m_ends[0]);
    }

    void close_writing_end()
    {
        if (m_ends[1] >= 0)
            close(m_ends[1]);
        m_ends[1] = -1;
    }

    std::array<int, 2> m_ends{-1, -1};
};

} // namespace

TEST_F(frame_stream, the_length_goes_in_front_in_4_bytes_big_endian)
{
    const std::vector<uint8_t> message(258, 0xAB);
    examples::write_frame(m_ends[1], message);
    std::array<uint8_t, 262> raw{};
    ASSERT_EQ(read(m_ends[0], raw.data(), raw.size()), 262);
    EXPECT_EQ((std::vector<uint8_t>(raw.begin(), raw.begin() + 4)), (std::vector<uint8_t>{0, 0, 1, 2}));
    EXPECT_EQ((std::vector<uint8_t>(raw.begin() + 4, raw.end())), message);
}

TEST_F(frame_stream, frames_come_back_in_order_and_empty_ones_too)
{
    const std::vector<uint8_t> first = {1, 2, 3}, empty, last = {4};
    for (const std::vector<uint8_t> &message : {first, empty, last})
        examples::write_frame(m_ends[1], message);
    close_writing_end();
    examples::frame_reader reader(m_ends[0]);
    std::span<const uint8_t> message;
    for (const std::vector<uint8_t> &expected : {first, empty, last}) {
        ASSERT_TRUE(reader.next(message));
        EXPECT_EQ(std::vector<uint8_t>(message.begin(), message.end()), expected);
    }
    EXPECT_FALSE(reader.next(message));
}

TEST_F(frame_stream, a_frame_of_exactly_the_limit_is_read)
{
    // Only the length: it is accepted, and the missing rest is an error.
    const std::array<uint8_t, 5> head = {0, 1, 0, 0, 0xAB};
    ASSERT_EQ(write(m_ends[1], head.data(), head.size()), 5);
    close_writing_end();
    examples::frame_reader reader(m_ends[0]);
    std::span<const uint8_t> message;
    try {
        reader.next(message);
        FAIL() << "a frame without its end was read";
    } catch (const examples::stream_error &error) {
        EXPECT_STREQ(error.what(), "the stream ends inside a frame, after 1 of 65536 bytes");
    }
}
