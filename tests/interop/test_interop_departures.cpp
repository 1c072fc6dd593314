// Deliberate differences from the official protobuf runtime in known fields. Each test shows both sides.
#include "interop/peer_record.h"
#include "interop_schema.pb.h"
#include "mava_tum.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{

namespace
{

TEST(interop_departures, a_second_nested_record_replaces_the_first_where_the_runtime_merges_them)
{
    // subscriber_v4 twice: first its field 1, then its field 2.
    const char *wire = "42 02 08 07  42 05 15 01 02 03 04";
    decoded<mava_tum_session_context> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_OK);
    EXPECT_EQ(own_bits(ours.record.subscriber_v4), fields(2));
    EXPECT_EQ(ours.record.subscriber_v4.field_1, 0u);
    EXPECT_EQ(ours.record.subscriber_v4.ipv4_address, 0x04030201u);

    mava_tum_interop::session_context theirs;
    EXPECT_TRUE(peer_accepts(theirs, wire));
    EXPECT_EQ(theirs.subscriber_v4().field_1(), 7u);
    EXPECT_EQ(theirs.subscriber_v4().ipv4_address(), 0x04030201u);
}

TEST(interop_departures, a_known_field_of_another_wire_type_is_refused_where_the_runtime_takes_it_for_unknown)
{
    for (const char *wire : {"0D 01 02 03 04", "0A 01 41", "09 01 02 03 04 05 06 07 08", "10 05"}) {
        SCOPED_TRACE(wire);
        decoded<mava_tum_subscriber_v4> ours(wire);
        EXPECT_EQ(ours.result, MAVA_TUM_WRONG_WIRE_TYPE);

        mava_tum_interop::subscriber_v4 theirs;
        EXPECT_TRUE(peer_accepts(theirs, wire));
        EXPECT_FALSE(theirs.has_field_1() || theirs.has_ipv4_address());
        EXPECT_FALSE(theirs.unknown_fields().empty());
    }
}

TEST(interop_departures, a_nested_field_of_another_wire_type_fails_the_whole_message_where_the_runtime_goes_on)
{
    const char *wire = "42 05 0D 01 02 03 04  38 05";
    decoded<mava_tum_session_context> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(ours.present(), 0u);

    mava_tum_interop::session_context theirs;
    EXPECT_TRUE(peer_accepts(theirs, wire));
    EXPECT_TRUE(theirs.has_subscriber_v4());
    EXPECT_EQ(theirs.field_7(), 5u);
}

TEST(interop_departures, a_later_list_entry_counts_whatever_its_wire_type_where_the_runtime_takes_it_for_unknown)
{
    const char *wire = "5A 02 08 01  58 02 08 02";
    decoded<mava_tum_session_context> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_OK);
    ASSERT_EQ(ours.record.qos_count, 2u);
    EXPECT_EQ(ours.record.qos[0].field_1, 1u);
    EXPECT_EQ(ours.record.qos[1].field_1, 2u);
    EXPECT_EQ(ours.record.field_1, 0u);

    // The runtime reads 58 02 as an unknown varint and 08 02 as field 1 of the session.
    mava_tum_interop::session_context theirs;
    EXPECT_TRUE(peer_accepts(theirs, wire));
    EXPECT_EQ(theirs.qos_size(), 1);
    EXPECT_EQ(theirs.field_1(), 2u);
    EXPECT_FALSE(theirs.unknown_fields().empty());
}

TEST(interop_departures, a_list_in_two_runs_is_refused_where_the_runtime_appends)
{
    // A known field between the runs, then an unknown one.
    for (const char *wire : {"22 02 08 01  18 07  22 02 08 02", "22 02 08 01  38 07  22 02 08 02"}) {
        SCOPED_TRACE(wire);
        decoded<mava_tum_sub_route> ours(wire);
        EXPECT_EQ(ours.result, MAVA_TUM_TRUNCATED);
        ASSERT_EQ(ours.record.ipv4_route_count, 1u);
        EXPECT_EQ(ours.record.ipv4_routes[0].field_1, 1u);

        mava_tum_interop::sub_route theirs;
        EXPECT_TRUE(peer_accepts(theirs, wire));
        ASSERT_EQ(theirs.ipv4_routes_size(), 2);
        EXPECT_EQ(theirs.ipv4_routes(1).field_1(), 2u);
    }
}

TEST(interop_departures, a_list_of_texts_in_two_runs_is_refused_where_the_runtime_appends)
{
    const char *wire = "2A 01 41  10 07  2A 01 42";
    decoded<mava_tum_sess_svc_start> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(ours.present(), fields(2, 5));
    ASSERT_EQ(ours.record.field_5_count, 1u);
    EXPECT_STREQ(ours.record.field_5[0], "A");

    mava_tum_interop::sess_svc_start theirs;
    EXPECT_TRUE(peer_accepts(theirs, wire));
    ASSERT_EQ(theirs.field_5_size(), 2);
    EXPECT_EQ(theirs.field_5(1), "B");
}

TEST(interop_departures, a_later_text_of_a_list_counts_whatever_its_wire_type_where_the_runtime_takes_it_for_unknown)
{
    const char *wire = "2A 01 41  28 02 08 02";
    decoded<mava_tum_sess_svc_start> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_OK);
    ASSERT_EQ(ours.record.field_5_count, 2u);
    EXPECT_STREQ(ours.record.field_5[1], "\x08\x02");
    EXPECT_EQ(ours.present(), fields(5));

    // The runtime reads 28 02 as an unknown varint and 08 02 as field 1.
    mava_tum_interop::sess_svc_start theirs;
    EXPECT_TRUE(peer_accepts(theirs, wire));
    EXPECT_EQ(theirs.field_5_size(), 1);
    EXPECT_EQ(theirs.field_1(), 2u);
    EXPECT_FALSE(theirs.unknown_fields().empty());
}

TEST(interop_departures, a_second_text_is_refused_where_the_runtime_takes_the_last)
{
    const char *wire = "12 01 41  12 01 42";
    decoded<mava_tum_subscriber_httpr> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_TRUNCATED);
    EXPECT_STREQ(ours.record.field_2, "A");

    mava_tum_interop::subscriber_httpr theirs;
    EXPECT_TRUE(peer_accepts(theirs, wire));
    EXPECT_EQ(theirs.field_2(), "B");
}

TEST(interop_departures, a_second_bytes_field_is_refused_where_the_runtime_takes_the_last)
{
    // The first one is empty and also counts.
    const char *wire = "12 00  12 01 42";
    for (const uint32_t flags : {uint32_t{0}, uint32_t{MAVA_TUM_ALIAS}}) {
        decoded<mava_tum_subscriber_v6> ours(wire, {.flags = flags});
        EXPECT_EQ(ours.result, MAVA_TUM_TRUNCATED);
        EXPECT_EQ(ours.present(), fields(2));
        EXPECT_EQ(ours.record.field_2.length, 0u);
    }
    mava_tum_interop::subscriber_v6 theirs;
    EXPECT_TRUE(peer_accepts(theirs, wire));
    EXPECT_EQ(theirs.field_2(), "B");
}

TEST(interop_departures, a_nul_ends_a_text_for_the_next_sender_where_the_runtime_keeps_the_rest)
{
    const char *wire = "12 03 41 00 42";
    decoded<mava_tum_subscriber_httpr> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_OK);
    EXPECT_EQ(encoded_hex(ours.record), "12 01 41");

    mava_tum_interop::subscriber_httpr theirs;
    EXPECT_TRUE(peer_accepts(theirs, wire));
    const std::string again = theirs.SerializeAsString();
    EXPECT_EQ(byte_vector(again.begin(), again.end()), bytes_of(wire));
}

// No difference: of several numbers, both sides keep the last.
TEST(interop_departures, do_not_include_a_second_number)
{
    const char *wire = "08 01  08 02";
    decoded<mava_tum_subscriber_v4> ours(wire);
    EXPECT_EQ(ours.result, MAVA_TUM_OK);
    EXPECT_EQ(ours.record.field_1, 2u);

    mava_tum_interop::subscriber_v4 theirs;
    EXPECT_TRUE(peer_accepts(theirs, wire));
    EXPECT_EQ(theirs.field_1(), 2u);
}

} // namespace

} // namespace mava_tum_test
