// Wire bytes of a record: into large and small buffers, and into containers.
#include "field_values.h"
#include "support/hex.h"

#include <memory_resource>

namespace mava_tum_test
{
namespace
{

tum::rec_resp response()
{
    tum::rec_resp made;
    made.set_field_1(1);
    EXPECT_EQ(made.set_field_2("no"), tum::result::ok);
    return made;
}

const auto response_wire = bytes_of("08 01 12 02 6E 6F");

TEST(cpp_encoding, tells_the_size_without_a_buffer)
{
    EXPECT_EQ(response().encoded_size(), 6U);
}

TEST(cpp_encoding, fills_a_buffer_that_is_large_enough)
{
    std::uint8_t buffer[8] = {};
    const tum::encoded outcome = response().encode(buffer);
    EXPECT_TRUE(outcome);
    EXPECT_EQ(outcome.size, 6U);
    EXPECT_EQ(std::vector<std::uint8_t>(buffer, buffer + 6), response_wire);
    EXPECT_TRUE(response().encode(tum::span<std::uint8_t>(buffer).first(6)));
}

TEST(cpp_encoding, says_that_a_buffer_is_too_small_and_how_large_it_should_be)
{
    std::uint8_t buffer[5] = {};
    const tum::encoded outcome = response().encode(buffer);
    EXPECT_FALSE(outcome);
    EXPECT_FALSE(outcome.complete);
    EXPECT_EQ(outcome.size, 6U);
}

TEST(cpp_encoding, gives_a_container_exactly_the_message)
{
    std::pmr::vector<std::uint8_t> wire(100, std::uint8_t{0xEE});
    response().encode_to(wire);
    EXPECT_TRUE(std::equal(wire.begin(), wire.end(), response_wire.begin(), response_wire.end()));
    EXPECT_EQ(response().encode(), response_wire);
}

TEST(cpp_encoding, of_an_empty_record_is_complete_and_has_no_bytes)
{
    EXPECT_TRUE(tum::rec_resp().encode(tum::span<std::uint8_t>()));
    EXPECT_TRUE(tum::rec_resp().encode().empty());
}

} // namespace
} // namespace mava_tum_test
