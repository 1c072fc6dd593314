// Deliberate differences from the official protobuf runtime in varints and unknown fields. Each test shows both sides:
// ours is lenient, except for groups.
#include "interop/peer_record.h"
#include "interop_schema.pb.h"
#include "mava_tum.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{

namespace
{

TEST(interop_departures, a_cut_unknown_field_ends_the_message_where_the_runtime_refuses_it)
{
    // Field 1, then unknown field 3: a text with a length of 127, a fixed64 and a fixed32, all with too few bytes.
    for (const char *wire : {"08 07  1A 7F 41", "08 07  19 01 02", "08 07  19", "08 07  1D 01", "08 07  1D"}) {
        SCOPED_TRACE(wire);
        decoded<mava_tum_subscriber_v4> ours(wire);
        EXPECT_EQ(ours.result, MAVA_TUM_OK);
        EXPECT_EQ(ours.present(), fields(1));
        EXPECT_EQ(ours.record.field_1, 7u);

        mava_tum_interop::subscriber_v4 theirs;
        EXPECT_FALSE(peer_accepts(theirs, wire));
    }
}

TEST(interop_departures, a_varint_of_more_than_ten_bytes_is_cut_where_the_runtime_refuses_it)
{
    const char *wire = "08 87 80 80 80 80 80 80 80 80 80 80 00";
    decoded<mava_tum_subscriber_v4> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_OK);
    EXPECT_EQ(ours.record.field_1, 7u);

    mava_tum_interop::subscriber_v4 theirs;
    EXPECT_FALSE(peer_accepts(theirs, wire));
}

TEST(interop_departures, a_64_bit_varint_of_more_than_ten_bytes_is_cut_where_the_runtime_refuses_it)
{
    const char *wire = "10 87 80 80 80 80 80 80 80 80 80 80 00";
    decoded<mava_tum_session_data> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_OK);
    EXPECT_EQ(ours.record.field_2, 7u);

    mava_tum_interop::session_data theirs;
    EXPECT_FALSE(peer_accepts(theirs, wire));
}

TEST(interop_departures, a_tag_of_more_than_five_bytes_is_cut_where_the_runtime_refuses_it)
{
    const char *wire = "88 80 80 80 80 00 05";
    decoded<mava_tum_subscriber_v4> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_OK);
    EXPECT_EQ(ours.record.field_1, 5u);

    mava_tum_interop::subscriber_v4 theirs;
    EXPECT_FALSE(peer_accepts(theirs, wire));
}

TEST(interop_departures, a_length_of_more_than_five_bytes_is_cut_where_the_runtime_refuses_it)
{
    const char *wire = "12 81 80 80 80 80 00 41";
    decoded<mava_tum_subscriber_httpr> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_OK);
    EXPECT_STREQ(ours.record.field_2, "A");

    mava_tum_interop::subscriber_httpr theirs;
    EXPECT_FALSE(peer_accepts(theirs, wire));
}

TEST(interop_departures, field_number_0_is_unknown_where_the_runtime_refuses_it)
{
    const char *wire = "00 00  08 07";
    decoded<mava_tum_subscriber_v4> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_OK);
    EXPECT_EQ(ours.record.field_1, 7u);

    mava_tum_interop::subscriber_v4 theirs;
    EXPECT_FALSE(peer_accepts(theirs, wire));
}

TEST(interop_departures, an_unknown_group_is_refused_where_the_runtime_skips_it)
{
    const char *wire = "1B 1C  08 07";
    decoded<mava_tum_subscriber_v4> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    EXPECT_EQ(ours.present(), 0u);

    mava_tum_interop::subscriber_v4 theirs;
    EXPECT_TRUE(peer_accepts(theirs, wire));
    EXPECT_EQ(theirs.field_1(), 7u);
}

// No difference: numbers wider than their field arrive with the same value on both sides.
TEST(interop_departures, do_not_include_a_number_wider_than_its_field)
{
    struct row {
        const char *wire;
        uint32_t value;
    };
    for (const row &wide : {row{"08 FF FF FF FF FF FF FF FF FF 01", 0xFFFFFFFF}, row{"08 87 80 80 80 70", 7},
             row{"08 87 80 80 80 80 01", 7}}) {
        SCOPED_TRACE(wide.wire);
        decoded<mava_tum_subscriber_v4> ours(wide.wire);
        EXPECT_EQ(ours.result, MAVA_TUM_OK);
        EXPECT_EQ(ours.record.field_1, wide.value);

        mava_tum_interop::subscriber_v4 theirs;
        EXPECT_TRUE(peer_accepts(theirs, wide.wire));
        EXPECT_EQ(theirs.field_1(), wide.value);
    }
}

} // namespace

} // namespace mava_tum_test
