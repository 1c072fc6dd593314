// The one test of the layer that needs C++20.
#include "mava_tum/cpp/span.hpp"

#include <gtest/gtest.h>

#include <span>
#include <vector>

namespace tum = mava_tum::cpp;

TEST(cpp_span, converts_from_and_to_the_span_of_the_standard_library)
{
    const std::vector<std::uint8_t> bytes = {1, 2, 3};
    const tum::bytes_view ours = std::span<const std::uint8_t>(bytes);
    const std::span<const std::uint8_t> theirs = ours;
    EXPECT_EQ(theirs.data(), bytes.data());
    EXPECT_EQ(theirs.size(), 3U);
}
