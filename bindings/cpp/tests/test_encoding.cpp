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

TEST(cpp_encoding, fills_containers_and_buffers_of_bytes_of_any_type)
{
    std::string text = "what it held before";
    response().encode_to(text);
    EXPECT_EQ(tum::bytes_view(text), tum::bytes_view(response_wire));
    std::vector<std::byte> bytes;
    response().encode_to(bytes);
    EXPECT_EQ(tum::bytes_view(bytes), tum::bytes_view(response_wire));
    std::byte buffer[6];
    EXPECT_TRUE(response().encode(buffer));
    EXPECT_EQ(tum::bytes_view(buffer), tum::bytes_view(response_wire));

    tum::rec_resp decoded;
    for (const tum::bytes_view wire : {tum::bytes_view(text), tum::bytes_view(bytes), tum::bytes_view(buffer)}) {
        ASSERT_EQ(decoded.decode(wire), tum::result::ok);
        EXPECT_EQ(decoded, response());
    }
    EXPECT_EQ(decoded.decode(text), tum::result::ok);
    EXPECT_EQ(decoded.decode(std::string(text)), tum::result::ok);
    EXPECT_EQ(decoded.decode(bytes), tum::result::ok);
    EXPECT_EQ(decoded.decode(buffer), tum::result::ok);
}

TEST(cpp_encoding, of_an_empty_record_is_complete_and_has_no_bytes)
{
    EXPECT_TRUE(tum::rec_resp().encode(tum::span<std::uint8_t>()));
    EXPECT_TRUE(tum::rec_resp().encode().empty());
}

} // namespace
} // namespace mava_tum_test
