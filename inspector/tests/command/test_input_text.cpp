// Hex and base64 as they are read and written.
#include "bad_use.h"
#include "input/digit_text.h"
#include "input/input_format.h"
#include "inspector/library/utf8_text.h"

#include <gtest/gtest.h>

#include <random>

namespace
{

using mava_tum_cli::bad_use;
using mava_tum_cli::byte_vector;

std::span<const uint8_t> characters(std::string_view text)
{
    return {reinterpret_cast<const uint8_t *>(text.data()), text.size()};
}

byte_vector hex(std::string_view text)
{
    return mava_tum_cli::bytes_of_hex(characters(text), "here");
}

byte_vector base64(std::string_view text)
{
    return mava_tum_cli::bytes_of_base64(characters(text), "here");
}

TEST(hex_text, is_read_however_it_is_spaced)
{
    const byte_vector expected = {0x00, 0xAB, 0x10};
    EXPECT_EQ(hex("00ab10"), expected);
    EXPECT_EQ(hex("00 AB\n10\n"), expected);
    EXPECT_EQ(hex("0x00, 0xab, 0x10"), expected);
    EXPECT_EQ(hex("00:ab:10"), expected);
    EXPECT_EQ(hex(" \n"), byte_vector{});
}

TEST(hex_text, a_digit_alone_is_refused_where_it_stands)
{
    for (const std::string_view text : {"1", "012", "0 1", "01\n2", "0x", "0x0x01"})
        EXPECT_THROW(hex(text), bad_use) << text;
    try {
        hex("01\n0g");
        FAIL();
    } catch (const bad_use &error) {
        EXPECT_TRUE(std::string(error.what()).starts_with("here: line 2, column 2: 'g'")) << error.what();
    }
}

TEST(base64_text, of_known_bytes_is_the_known_text)
{
    EXPECT_EQ(mava_tum_cli::base64_of_bytes(characters("")), "");
    EXPECT_EQ(mava_tum_cli::base64_of_bytes(characters("f")), "Zg==");
    EXPECT_EQ(mava_tum_cli::base64_of_bytes(characters("fo")), "Zm8=");
    EXPECT_EQ(mava_tum_cli::base64_of_bytes(characters("foobar")), "Zm9vYmFy");
}

TEST(base64_text, comes_back_from_both_alphabets_with_and_without_padding)
{
    std::mt19937 random(7);
    for (size_t length = 0; length < 70; ++length) {
        byte_vector bytes(length);
        for (uint8_t &byte : bytes)
            byte = static_cast<uint8_t>(random());
        std::string text = mava_tum_cli::base64_of_bytes(bytes);
        EXPECT_EQ(base64(text), bytes);
        std::replace(text.begin(), text.end(), '+', '-');
        std::replace(text.begin(), text.end(), '/', '_');
        text.erase(std::min(text.find('='), text.size()));
        EXPECT_EQ(base64(text + "\n"), bytes);
    }
}

TEST(base64_text, that_is_cut_or_goes_on_behind_its_end_is_refused)
{
    for (const std::string_view text : {"Z", "Zg=", "Zg===", "Zg==Zg==", "Zh==", "Zm9v=", "Zm9*"})
        EXPECT_THROW(base64(text), bad_use) << text;
}

TEST(utf8_text, longer_forms_and_halves_of_pairs_are_none)
{
    EXPECT_TRUE(mava_tum_inspect::is_plain_utf8("plain \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80"));
    for (const std::string_view text :
        {"\xFF", "\xC3", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\x80", "\xE2\x82"})
        EXPECT_FALSE(mava_tum_inspect::is_plain_utf8(text));
    EXPECT_FALSE(mava_tum_inspect::is_plain_utf8(std::string_view("\0", 1)));
    EXPECT_FALSE(mava_tum_inspect::is_plain_utf8("\xC2\x9B"));
}

TEST(utf8_text, characters_that_change_the_direction_are_told_from_their_neighbours)
{
    for (const auto &[text, code] : {std::pair{"\xD8\x9C", 0x061Cu}, {"\xE2\x80\x8E", 0x200E}, {"\xE2\x80\x8F", 0x200F},
             {"\xE2\x80\xAA", 0x202A}, {"\xE2\x80\xAE", 0x202E}, {"\xE2\x81\xA6", 0x2066}, {"\xE2\x81\xA9", 0x2069}})
        EXPECT_EQ(mava_tum_inspect::direction_control_at(text, 0).code, code);
    for (const std::string_view text : {"\xD8\x9B", "\xD8\x9D", "\xE2\x80\x8D", "\xE2\x80\x90", "\xE2\x80\xA9",
             "\xE2\x80\xAF", "\xE2\x81\xA5", "\xE2\x81\xAA", "a"})
        EXPECT_EQ(mava_tum_inspect::direction_control_at(text, 0).bytes, 0u);
}

} // namespace
