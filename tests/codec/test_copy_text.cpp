// The one copy of a received text into an array.
#include "nal/bounded_text.h"
#include "support/guarded_buffer.h"

#include <gtest/gtest.h>

#include <string>

namespace mava_tum_test
{
namespace
{

// The array of 8 characters, filled with '#', after the copy.
std::string copied(std::size_t limit, const std::string &text)
{
    char array[8];
    std::memset(array, '#', sizeof array);
    // The text ends before an inaccessible page: looking beyond its NUL, or beyond the limit, stops the program.
    page_end_buffer placed(byte_vector(text.begin(), text.end()));
    mava_tum::copy_bounded_text(array, limit, reinterpret_cast<const char *>(placed.data()));
    return std::string(array, sizeof array);
}

const std::string nul(1, '\0');

TEST(bounded_text, a_text_that_fits_is_copied_with_its_nul_and_nothing_behind_it)
{
    EXPECT_EQ(copied(8, "abc" + nul), "abc" + nul + "####");
    EXPECT_EQ(copied(8, nul), nul + "#######");
    EXPECT_EQ(copied(8, "abcdefg" + nul), "abcdefg" + nul);
}

TEST(bounded_text, a_longer_text_is_cut_to_the_limit_less_one_and_not_read_beyond_it)
{
    EXPECT_EQ(copied(8, "abcdefg"), "abcdefg" + nul);
    EXPECT_EQ(copied(4, "abc"), "abc" + nul + "####");
    EXPECT_EQ(copied(1, ""), nul + "#######");
}

} // namespace
} // namespace mava_tum_test
