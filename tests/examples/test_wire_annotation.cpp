// The annotation of a whole session is compared in test_session_setup.cpp; here is what only odd bytes show.
#include "wire_annotation.h"

#include <gtest/gtest.h>
#include <vector>

namespace
{

const std::string heading = "byte  in hex                               field\n";

std::string annotate(const std::vector<uint8_t> &wire)
{
    const std::string text = examples::session_setup::annotate_wire(wire);
    EXPECT_EQ(text.substr(0, heading.size()), heading);
    return text.substr(heading.size());
}

} // namespace

TEST(wire_annotation, of_no_bytes_is_the_heading)
{
    EXPECT_EQ(annotate({}), "");
}

TEST(wire_annotation, shows_a_field_without_a_name)
{
    EXPECT_EQ(annotate({0xCA, 0x01, 0x02, 0xAA, 0xBB}),
        "0000  ca 01 02 aa bb                       25 (unknown): bytes aa:bb\n");
}

TEST(wire_annotation, shows_harmful_characters_of_a_text_in_hex)
{
    EXPECT_EQ(annotate({0x6A, 0x04, 0x12, 0x02, 0x1B, 0x41}),
        "0000  6a 04                                13 redirect: record of 4 bytes\n"
        "0002  12 02 1b 41                            2 text_2: text \"\\x1bA\"\n");
}

// One row per way in which bytes are no fields.
TEST(wire_annotation, ends_at_bytes_that_are_no_field)
{
    const std::string end = "no field: not the wire bytes of a session\n";
    EXPECT_EQ(annotate({0x08}), "0000  08                                   " + end);
    EXPECT_EQ(annotate({0x08, 0x80}), "0000  08 80                                " + end);
    EXPECT_EQ(annotate({0x0B, 0x00}), "0000  0b 00                                " + end);
    EXPECT_EQ(annotate({0x32, 0x02, 0x00}), "0000  32 02 00                             " + end);
    EXPECT_EQ(annotate({0x42, 0x03, 0x15, 0x01, 0x02}),
        "0000  42 03                                8 ipv4: record of 3 bytes\n"
        "0002  15 01 02                             " +
            end);
}

TEST(wire_annotation, of_a_nested_field_does_not_read_behind_its_record)
{
    // The varint inside ends with the record, although more bytes follow.
    EXPECT_EQ(annotate({0x42, 0x02, 0x08, 0x80, 0x01}),
        "0000  42 02                                8 ipv4: record of 2 bytes\n"
        "0002  08 80 01                             no field: not the wire bytes of a session\n");
}
