// Construction and content of a span; the texts of the results.
#include "field_values.h"
#include "support/hex.h"

#include <array>
#include <set>

namespace mava_tum_test
{
namespace
{

TEST(cpp_span, takes_whatever_has_data_and_size)
{
    std::vector<std::uint8_t> vector = {1, 2, 3};
    const std::array<std::uint8_t, 2> array = {4, 5};
    const std::uint8_t plain[] = {6};
    EXPECT_EQ(tum::bytes_view(vector).size(), 3U);
    EXPECT_EQ(tum::bytes_view(array)[1], 5U);
    EXPECT_EQ(tum::bytes_view(plain).data(), plain);
    EXPECT_EQ(tum::bytes_view(tum::span<std::uint8_t>(vector)).size(), 3U);
    EXPECT_EQ(tum::bytes_of("ab")[0], 'a');
    EXPECT_TRUE(tum::bytes_view().empty());
}

TEST(cpp_span, takes_bytes_of_any_type)
{
    const std::string text = "abc";
    const std::vector<std::byte> bytes = {std::byte{1}, std::byte{2}};
    const std::vector<char> characters = {'d'};
    const std::byte plain[] = {std::byte{7}, std::byte{8}};
    EXPECT_EQ(tum::bytes_view(text)[2], 'c');
    EXPECT_EQ(tum::bytes_view(std::string_view(text)).size(), 3U);
    EXPECT_EQ(tum::bytes_view(bytes)[1], 2U);
    EXPECT_EQ(tum::bytes_view(characters)[0], 'd');
    EXPECT_EQ(tum::bytes_view(plain)[1], 8U);
    std::string written(2, ' ');
    const tum::span<std::uint8_t> writable = written;
    writable[1] = 'x';
    EXPECT_EQ(written, " x");
}

TEST(cpp_span, equals_what_has_equal_elements)
{
    const std::vector<std::uint8_t> bytes = {'a', 'b'};
    const std::string text = "ab";
    EXPECT_EQ(tum::bytes_view(bytes), tum::bytes_view(text));
    EXPECT_NE(tum::bytes_view(bytes), tum::bytes_view(text).first(1));
    EXPECT_NE(tum::bytes_view(bytes), tum::bytes_of("aB"));
}

static_assert(!std::is_constructible_v<tum::span<std::uint8_t>, const std::vector<std::uint8_t> &>,
    "elements that are const stay const");
static_assert(!std::is_constructible_v<tum::span<std::uint8_t>, const std::string &>);
static_assert(!std::is_constructible_v<tum::span<std::uint8_t>, std::string_view>);
static_assert(!std::is_constructible_v<tum::bytes_view, const char (&)[3]>, "the NUL of a literal is not a byte");
static_assert(!std::is_constructible_v<tum::bytes_argument, const char (&)[3]>);
static_assert(!std::is_constructible_v<tum::bytes_view, const std::vector<std::int8_t> &>);
static_assert(!std::is_constructible_v<tum::bytes_view, const std::vector<std::uint16_t> &>);
static_assert(!std::is_constructible_v<tum::bytes_view, const std::wstring &>);
static_assert(!std::is_constructible_v<tum::span<const std::string_view>, const std::string &>);
static_assert(!std::is_constructible_v<tum::bytes_view, int>);

TEST(cpp_result, is_the_code_of_the_c_functions_and_has_a_text_of_its_own)
{
    EXPECT_EQ(static_cast<int>(tum::result::ok), MAVA_TUM_OK);
    std::set<std::string_view> texts;
    for (const int code :
        {MAVA_TUM_OK, MAVA_TUM_TRUNCATED, MAVA_TUM_UNSUPPORTED_WIRE_TYPE, MAVA_TUM_WRONG_WIRE_TYPE, MAVA_TUM_NO_MEMORY})
        texts.insert(tum::text_of(static_cast<tum::result>(code)));
    EXPECT_EQ(texts.size(), 5U);
    EXPECT_EQ(texts.count("not a result"), 0U);
    EXPECT_EQ(tum::text_of(static_cast<tum::result>(17)), "not a result");
}

TEST(cpp_result, of_a_decode_says_what_is_wrong_with_the_bytes)
{
    tum::vlan_info vlan;
    EXPECT_EQ(vlan.decode(bytes_of("08")), tum::result::truncated);
    EXPECT_EQ(vlan.decode(bytes_of("1B")), tum::result::unsupported_wire_type);
    EXPECT_EQ(vlan.decode(bytes_of("0D 00 00 00 00")), tum::result::wrong_wire_type);
    EXPECT_EQ(vlan.decode({}), tum::result::ok);
}

} // namespace
} // namespace mava_tum_test
