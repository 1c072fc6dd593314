// The annotation of unusual bytes; test_session_setup.cpp compares that of a whole session.
#include "catalogue.h"
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

using examples::session_setup::wire_content;
using mava_tum_catalogue::address_kind;
using mava_tum_catalogue::field_kind;

wire_content content_of(const mava_tum_catalogue::field &field)
{
    if (field.address != address_kind::none)
        return field.address == address_kind::ipv4 ? wire_content::ipv4 : wire_content::ipv6;
    switch (field.kind) {
    case field_kind::varint:
        return wire_content::number;
    case field_kind::bytes:
        return wire_content::bytes;
    case field_kind::text:
        return wire_content::text;
    default:
        return wire_content::record;
    }
}

void expect_names_of(
    const mava_tum_catalogue::message &message, std::span<const examples::session_setup::wire_field> names)
{
    ASSERT_EQ(names.size(), message.fields.size()) << message.name;
    for (size_t i = 0; i < names.size(); ++i) {
        const mava_tum_catalogue::field &field = message.fields[i];
        EXPECT_EQ(names[i].number, field.number) << message.name;
        EXPECT_STREQ(names[i].name, field.name) << message.name;
        if (field.nested != nullptr)
            expect_names_of(*field.nested, names[i].fields);
        else
            EXPECT_EQ(names[i].content, content_of(field)) << message.name << "." << field.name;
    }
}

} // namespace

TEST(wire_annotation, names_fields_as_the_members_of_the_codec_records)
{
    expect_names_of(*mava_tum_catalogue::find_message("session_context"), examples::session_setup::session_fields());
}

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
        "0000  6a 04                                13 httpr: record of 4 bytes\n"
        "0002  12 02 1b 41                            2 field_2: text \"\\x1bA\"\n");
}

// One row per kind of malformed bytes.
TEST(wire_annotation, ends_at_bytes_that_are_no_field)
{
    const std::string end = "no field: not the wire bytes of a session\n";
    EXPECT_EQ(annotate({0x08}), "0000  08                                   " + end);
    EXPECT_EQ(annotate({0x08, 0x80}), "0000  08 80                                " + end);
    EXPECT_EQ(annotate({0x0B, 0x00}), "0000  0b 00                                " + end);
    EXPECT_EQ(annotate({0x32, 0x02, 0x00}), "0000  32 02 00                             " + end);
    EXPECT_EQ(annotate({0x42, 0x03, 0x15, 0x01, 0x02}),
        "0000  42 03                                8 subscriber_v4: record of 3 bytes\n"
        "0002  15 01 02                             " +
            end);
}

TEST(wire_annotation, of_a_nested_field_does_not_read_behind_its_record)
{
    // The varint inside ends with the record, although more bytes follow.
    EXPECT_EQ(annotate({0x42, 0x02, 0x08, 0x80, 0x01}),
        "0000  42 02                                8 subscriber_v4: record of 2 bytes\n"
        "0002  08 80 01                             no field: not the wire bytes of a session\n");
}
