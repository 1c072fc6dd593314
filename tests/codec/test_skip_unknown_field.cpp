// The skip of unknown fields: its length and its errors. tests/leniency tests that it may pass the end for fixed-width
// and length-delimited values.
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using v4_decode = decoded<mava_tum_subscriber_v4>;

TEST(skip_unknown_field, steps_exactly_over_a_value_of_each_wire_type)
{
    const char *unknown_fields[] = {
        "18 05",                               // varint, one byte
        "18 FF FF FF FF 0F",                   // varint, five bytes
        "18 80 80 80 80 80 80 80 80 80 01",    // varint, ten bytes
        "18 80 80 80 80 80 80 80 80 80 80 00", // varint, eleven bytes
        "19 01 02 03 04 05 06 07 08",          // fixed64
        "1A 00",                               // length-delimited, empty
        "1A 03 08 63 08",                      // length-delimited, content that looks like a field
        "1A 83 80 80 80 F0 00 AA BB CC",       // length-delimited, over-long length truncated to 3
        "1D 01 02 03 04",                      // fixed32
        "80 01 05",                            // field 16
        "C0 3E 05",                            // field 1000
    };
    for (const char *unknown : unknown_fields) {
        v4_decode got(joined({bytes_of(unknown), bytes_of("08 07"), bytes_of(unknown), bytes_of("15 01 00 00 00")}));
        EXPECT_EQ(got.result, MAVA_TUM_OK) << unknown;
        EXPECT_EQ(got.record.field_1, 7u) << unknown;
        EXPECT_EQ(got.record.ipv4_address, 1u) << unknown;
        EXPECT_EQ(got.present(), fields(1, 2)) << unknown;
    }
}

TEST(skip_unknown_field, may_end_the_message_exactly)
{
    for (const char *hex : {"18 05", "19 01 02 03 04 05 06 07 08", "1A 02 AA BB", "1D 01 02 03 04"}) {
        v4_decode got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_OK) << hex;
        EXPECT_EQ(got.present(), 0u) << hex;
    }
}

TEST(skip_unknown_field, tests_every_byte_of_a_varint_against_the_end)
{
    for (const char *hex : {"18", "18 80", "18 80 80 80 80", "18 80 80 80 80 80", "18 80 80 80 80 80 80 80 80 80 80"}) {
        v4_decode got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << hex;
    }
}

TEST(skip_unknown_field, tests_every_byte_of_a_length_against_the_end)
{
    for (const char *hex : {"1A", "1A 80", "1A 80 80 80 80", "1A 80 80 80 80 80 80"}) {
        v4_decode got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << hex;
    }
}

TEST(skip_unknown_field, refuses_groups_and_undefined_wire_types)
{
    for (const char *hex : {"1B", "1C", "1E", "1F", "1B 08 07", "83 01", "03", "04", "06", "07"}) {
        v4_decode got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE) << hex;
        EXPECT_EQ(got.present(), 0u) << hex;
    }
}

TEST(skip_unknown_field, leaves_what_was_decoded_before_a_refused_field)
{
    v4_decode got("08 07 1F 15 01 00 00 00");
    EXPECT_EQ(got.result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    EXPECT_EQ(got.record.field_1, 7u);
    EXPECT_EQ(got.present(), fields(1));
}

TEST(skip_unknown_field, is_not_asked_about_a_known_field)
{
    // Wire types 3, 4, 6 and 7 on a known field are a wrong wire type, not an unsupported one.
    for (const char *hex : {"0B", "0C", "0E", "0F", "13", "14", "16", "17", "09 01 02 03 04 05 06 07 08", "0A 00"}) {
        v4_decode got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE) << hex;
        EXPECT_EQ(got.present(), 0u) << hex;
    }
}

TEST(skip_unknown_field, passes_the_results_of_nested_records_up)
{
    decoded<mava_tum_session_context> refused("52 03 22 01 A3 28 05");
    EXPECT_EQ(refused.result, MAVA_TUM_TRUNCATED) << "A3 is a tag that goes on beyond its record";

    decoded<mava_tum_session_context> unsupported("52 05 22 03 A3 01 00 28 05");
    EXPECT_EQ(unsupported.result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    EXPECT_EQ(unsupported.record.feature_mask, 0u);
    EXPECT_EQ(unsupported.present(), 0u);
}

} // namespace
} // namespace mava_tum_test
