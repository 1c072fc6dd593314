// The 64-bit varint: every width at every distance from the end of the input, which is directly before an inaccessible
// page.
#include "codec/read_varint64.h"
#include "support/guarded_buffer.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

constexpr std::size_t longest_form = 13;
constexpr std::size_t farthest = 12;

// A varint of `width` bytes; each of its bytes has seven bits of `bits`.
byte_vector form_of(uint64_t bits, std::size_t width)
{
    byte_vector form(width);
    for (std::size_t i = 0; i < width; ++i) {
        const uint64_t group = i < 10 ? bits >> 7 * i : 0x55;
        form[i] = static_cast<uint8_t>(i + 1 < width ? group | 0x80 : group & 0x7F);
    }
    return form;
}

// The value of the bytes: seven bits each, one of the tenth byte, none of later ones.
uint64_t value_of(const byte_vector &form)
{
    uint64_t value = 0;
    for (std::size_t i = 0; i < form.size() && i < 10; ++i)
        value |= uint64_t{form[i] & 0x7Fu} << 7 * i;
    return value;
}

constexpr uint64_t patterns[] = {0, 1, 0x9E3779B97F4A7C15, 0xFFFFFFFFFFFFFFFF, 0x8102040810204081, 0x7FFFFFFFFFFFFFFF};

TEST(read_varint64, each_width_is_read_at_each_distance_from_the_end_of_the_input)
{
    for (const uint64_t bits : patterns) {
        for (std::size_t width = 1; width <= longest_form; ++width) {
            const byte_vector form = form_of(bits, width);
            for (std::size_t distance = 0; distance <= farthest; ++distance) {
                for (const uint8_t behind : {0x00, 0x7F, 0x80, 0xFF}) {
                    page_end_buffer input(joined({form, byte_vector(distance, behind)}));
                    const auto found = mava_tum::read_varint64(input.data(), input.data() + input.size());
                    ASSERT_EQ(found.next, input.data() + width)
                        << hex_of(form) << ", " << distance << " before the end";
                    ASSERT_EQ(found.value, value_of(form)) << hex_of(form) << ", " << distance << " before the end";
                }
            }
        }
    }
}

TEST(read_varint64, a_form_without_its_last_bytes_is_truncated)
{
    for (const uint64_t bits : patterns) {
        for (std::size_t width = 1; width <= longest_form; ++width) {
            const byte_vector form = form_of(bits, width);
            for (std::size_t kept = 0; kept < width; ++kept) {
                page_end_buffer input(byte_vector(form.begin(), form.begin() + static_cast<std::ptrdiff_t>(kept)));
                const auto found = mava_tum::read_varint64(input.data(), input.data() + input.size());
                ASSERT_EQ(found.next, nullptr) << kept << " bytes of " << hex_of(form);
            }
        }
    }
}

} // namespace
} // namespace mava_tum_test
