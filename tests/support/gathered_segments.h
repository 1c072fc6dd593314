// One encode in gather mode, its segments as text.
#pragma once

#include "support/record_calls.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace mava_tum_test
{

struct gathered_segments {
    guarded_buffer buffer;
    std::vector<mava_tum_segment> list;
    uint32_t count;
    uint64_t size;

    template <class record_type>
    explicit gathered_segments(const record_type &record, uint32_t capacity = 64)
        : buffer(call_encode(record, nullptr, 0, nullptr, nullptr, MAVA_TUM_ALIAS)), list(capacity), count(capacity)
    {
        size = call_encode(record, buffer.data(), buffer.size(), list.data(), &count, MAVA_TUM_ALIAS);
        EXPECT_EQ(size, buffer.size()) << "the size pass and the real pass differ";
        EXPECT_TRUE(buffer.guards_intact());
    }

    std::string bytes_in_buffer() const
    {
        return hex_of(buffer.content());
    }

    // "2+4" for four bytes of the buffer from offset 2, the bytes in hex for a segment anywhere else.
    std::vector<std::string> stored()
    {
        std::vector<std::string> texts;
        for (std::size_t i = 0; i < list.size() && i < count; ++i) {
            const mava_tum_segment &segment = list[i];
            const bool in_buffer = segment.data >= buffer.data() && segment.data < buffer.data() + buffer.size();
            texts.push_back(in_buffer
                                ? std::to_string(segment.data - buffer.data()) + "+" + std::to_string(segment.length)
                                : hex_of(segment.data, segment.length));
        }
        return texts;
    }
};

} // namespace mava_tum_test
