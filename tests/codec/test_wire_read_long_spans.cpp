// Reads at the start of a span whose length does not fit a signed 64-bit number. Only its first bytes are accessible: a
// read beyond them would stop the program.
#include "codec/wire_read.h"
#include "support/guarded_buffer.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

class wire_read_long_spans : public testing::Test
{
protected:
    void SetUp() override
    {
        if (sizeof(uintptr_t) < sizeof(uint64_t))
            GTEST_SKIP() << "addresses have 32 bits: there is no such span";
    }

    // The ends of spans of 2^63 bytes and more, the last one as long as the address space allows.
    static std::vector<const uint8_t *> far_ends(const uint8_t *at)
    {
        const uint64_t start = reinterpret_cast<uintptr_t>(at);
        const uint64_t half = uint64_t{1} << 63;
        std::vector<const uint8_t *> ends;
        for (const uint64_t span : {half - 1, half, half + 1, half + 4, ~start})
            ends.push_back(reinterpret_cast<const uint8_t *>(static_cast<uintptr_t>(start + span)));
        return ends;
    }
};

TEST_F(wire_read_long_spans, a_fixed32_is_read)
{
    page_end_buffer input(bytes_of("01 02 03 84"));
    for (const uint8_t *end : far_ends(input.data())) {
        const auto found = mava_tum::read_fixed32(input.data(), end);
        EXPECT_EQ(found.next, input.data() + 4);
        EXPECT_EQ(found.value, 0x84030201u);
    }
}

TEST_F(wire_read_long_spans, a_payload_is_found)
{
    page_end_buffer input(bytes_of("02 AA BB"));
    for (const uint8_t *end : far_ends(input.data())) {
        const mava_tum::payload found = mava_tum::read_payload(input.data(), end);
        EXPECT_EQ(found.data, input.data() + 1);
        EXPECT_EQ(found.length, 2u);
    }
}

TEST_F(wire_read_long_spans, a_varint_is_read)
{
    page_end_buffer input(bytes_of("96 01"));
    for (const uint8_t *end : far_ends(input.data())) {
        const auto found = mava_tum::read_varint32(input.data(), end);
        EXPECT_EQ(found.next, input.data() + 2);
        EXPECT_EQ(found.value, 150u);
    }
}

} // namespace
} // namespace mava_tum_test
