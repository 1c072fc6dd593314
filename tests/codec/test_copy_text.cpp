// The copies of texts out of char arrays and into them, compared with a copy byte by byte.
#include "codec/copy_text.h"
#include "support/guarded_buffer.h"

#include <gtest/gtest.h>

#include <utility>

namespace mava_tum_test
{
namespace
{

// No byte of it is zero, and neighbours differ.
byte_vector text_of(std::size_t length)
{
    byte_vector text(length);
    for (std::size_t i = 0; i < length; ++i)
        text[i] = static_cast<uint8_t>(1 + (i * 37 + 0x7F) % 255);
    return text;
}

// ---- out of an array ----

// The length that is found: none if the NUL is after the last whole step, or after a short block.
template <std::size_t Size>
std::size_t expected_length(std::size_t length)
{
    const std::size_t limit = std::min<std::size_t>(Size, mava_tum::short_block_bytes);
    return length < limit / mava_tum::text_step_bytes * mava_tum::text_step_bytes ? length : Size;
}

// Every text that fits the array, with non-zero bytes after its NUL. The array ends at an inaccessible page.
template <std::size_t Size>
void expect_each_text_of_an_array()
{
    page_end_buffer memory(Size);
    auto &array = *reinterpret_cast<char(*)[Size]>(memory.data());
    for (std::size_t length = 0; length < Size; ++length) {
        byte_vector content = text_of(Size);
        content[length] = 0;
        std::memcpy(array, content.data(), Size);
        guarded_buffer copy(std::min<std::size_t>(length, mava_tum::short_block_bytes) + 2 * mava_tum::text_step_bytes);
        const uint64_t found = mava_tum::copy_array_text(copy.data(), array);
        ASSERT_EQ(found, expected_length<Size>(length)) << length << " in " << Size;
        ASSERT_TRUE(copy.guards_intact()) << length << " in " << Size;
        if (found != Size) {
            ASSERT_EQ(hex_of(copy.data(), length), hex_of(content.data(), length)) << length << " in " << Size;
        }
    }
}

template <std::size_t... Index>
void expect_each_text_of_all_arrays(std::index_sequence<Index...>)
{
    (expect_each_text_of_an_array<Index + 1>(), ...);
}

TEST(copy_text, a_text_of_each_length_is_copied_out_of_an_array_of_each_size)
{
    expect_each_text_of_all_arrays(std::make_index_sequence<130>{});
}

TEST(copy_text, in_an_array_without_a_nul_none_is_found)
{
    char array[48];
    std::memset(array, 'x', sizeof array);
    uint8_t copy[128];
    EXPECT_EQ(mava_tum::copy_array_text(copy, array), sizeof array);
}

// ---- into an array ----

// Everything before the first NUL, then zeros.
byte_vector cut_at_nul(const byte_vector &text)
{
    byte_vector kept(text.size(), 0);
    std::copy(text.begin(), std::find(text.begin(), text.end(), 0), kept.begin());
    return kept;
}

// Page-aligned memory behind an inaccessible page.
class page_start_buffer
{
public:
    page_start_buffer()
    {
        mapping_ = static_cast<uint8_t *>(
            ::mmap(nullptr, 2 * page_bytes_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        if (mapping_ == MAP_FAILED || ::mprotect(mapping_, page_bytes_, PROT_NONE) != 0)
            throw std::runtime_error("no page");
    }
    page_start_buffer(const page_start_buffer &) = delete;
    page_start_buffer &operator=(const page_start_buffer &) = delete;

    ~page_start_buffer()
    {
        ::munmap(mapping_, 2 * page_bytes_);
    }

    uint8_t *data()
    {
        return mapping_ + page_bytes_;
    }

private:
    std::size_t page_bytes_ = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    uint8_t *mapping_;
};

// Text and array are each once directly before and once directly after an inaccessible page.
class text_copies
{
public:
    void expect(const byte_vector &text)
    {
        const std::size_t length = text.size();
        const byte_vector expected = cut_at_nul(text);
        check(expected, copied(array_start_.data(), place(text_start_.data(), text), length));
        check(expected,
            copied(array_end_.data() + longest_ - length, place(text_end_.data() + longest_ - length, text), length));
    }

private:
    static uint8_t *place(uint8_t *at, const byte_vector &text)
    {
        std::copy(text.begin(), text.end(), at);
        return at;
    }

    static byte_vector copied(uint8_t *array, const uint8_t *text, std::size_t length)
    {
        std::memset(array, 0, length);
        mava_tum::copy_text_into_array(reinterpret_cast<char *>(array), text, static_cast<uint32_t>(length));
        return byte_vector(array, array + length);
    }

    static void check(const byte_vector &expected, const byte_vector &actual)
    {
        ASSERT_EQ(hex_of(actual), hex_of(expected));
    }

    static constexpr std::size_t longest_ = 130;
    page_start_buffer text_start_, array_start_;
    page_end_buffer text_end_{longest_}, array_end_{longest_};
};

TEST(copy_text, a_text_of_each_length_is_copied_whole_into_an_array)
{
    text_copies copies;
    for (std::size_t length = 0; length <= 130; ++length)
        copies.expect(text_of(length));
}

TEST(copy_text, a_text_is_cut_at_its_nul_wherever_that_stands_and_zeros_follow)
{
    text_copies copies;
    for (std::size_t length = 1; length <= 130; ++length) {
        for (std::size_t nul = 0; nul < length; ++nul) {
            byte_vector text = text_of(length);
            text[nul] = 0;
            copies.expect(text);
        }
    }
}

TEST(copy_text, of_two_nuls_the_first_cuts)
{
    text_copies copies;
    for (std::size_t length = 2; length <= 40; ++length) {
        for (std::size_t first = 0; first + 1 < length; ++first) {
            byte_vector text = text_of(length);
            text[first] = 0;
            text[length - 1] = 0;
            copies.expect(text);
        }
    }
}

// The search for a NUL in a word also reports 0x80 and 0x01 after a NUL.
TEST(copy_text, bytes_of_1_and_0x80_are_no_nul)
{
    text_copies copies;
    for (const uint8_t byte : {0x01, 0x7F, 0x80, 0x81, 0xFF}) {
        for (std::size_t length = 0; length <= 130; ++length)
            copies.expect(byte_vector(length, byte));
    }
}

} // namespace
} // namespace mava_tum_test
