// Records held inline in another record.
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using session_data_decode = decoded<mava_tum_session_data>;
using context_decode = decoded<mava_tum_session_context>;


TEST(field_record, decode_sees_exactly_its_own_span)
{
    session_data_decode got("52 02 08 07 48 09");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.vlan.field_1, 7u);
    EXPECT_EQ(own_bits(got.record.vlan), fields(1));
    EXPECT_EQ(got.record.field_9, 9u);
    EXPECT_EQ(got.present(), fields(9, 10));

    session_data_decode cut("52 01 08 07");
    EXPECT_EQ(cut.result, MAVA_TUM_TRUNCATED) << "the value lies outside of the record, though inside the message";
    EXPECT_EQ(cut.record.vlan.field_1, 0u);
}

TEST(field_record, an_unknown_field_that_passes_the_end_of_its_record_does_not_move_the_parent)
{
    // Inside: unknown field 3 has 8 bytes, of which none are left. The parent continues directly after its record.
    session_data_decode got("52 03 08 07 19 48 09");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.vlan.field_1, 7u);
    EXPECT_EQ(got.record.field_9, 9u);
    EXPECT_EQ(got.present(), fields(9, 10));
}

TEST(field_record, an_empty_record_is_present)
{
    session_data_decode got("52 00");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.present(), fields(10));
    EXPECT_EQ(own_bits(got.record.vlan), 0u);
    EXPECT_EQ(encoded_hex(got.record), "52 00");
}

TEST(field_record, a_failing_record_keeps_its_partial_values_and_its_bit_stays_clear)
{
    session_data_decode got("08 01 52 04 08 07 10 80 48 09");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.record.vlan.field_1, 7u);
    EXPECT_EQ(own_bits(got.record.vlan), fields(1));
    EXPECT_EQ(got.record.field_9, 0u) << "decoding stopped";
    EXPECT_EQ(got.present(), fields(1));
}

TEST(field_record, every_result_goes_up_unchanged_through_all_levels)
{
    // session_context > session_data > l2tp
    EXPECT_EQ(context_decode("52 05 22 03 9A 01 01").result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(context_decode("52 04 22 02 A3 01").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    EXPECT_EQ(context_decode("52 04 22 02 98 01").result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(context_decode("52 06 22 04 9A 01 01 61", {.failing_call = 1}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(context_decode("52 06 22 04 9A 01 01 61", {.flags = alias, .allocator_given = false}).result,
        MAVA_TUM_NO_MEMORY);
}

TEST(field_record, decode_tests_wire_type_then_bounds_before_it_touches_the_record)
{
    for (const char *hex : {"52 02 08 07 50 00", "52 02 08 07 55 00 00 00 00"}) {
        session_data_decode got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE) << hex;
        EXPECT_EQ(got.record.vlan.field_1, 7u) << hex;
        EXPECT_EQ(got.present(), fields(10)) << hex;
    }
    for (const char *hex : {"52 02 08 07 52", "52 02 08 07 52 80", "52 02 08 07 52 01", "52 02 08 07 52 7F 10 01"}) {
        session_data_decode got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << hex;
        EXPECT_EQ(got.record.vlan.field_1, 7u) << hex;
        EXPECT_EQ(got.record.vlan.field_2, 0u) << hex;
        EXPECT_EQ(got.present(), fields(10)) << hex;
    }
}

TEST(field_record, a_second_occurrence_that_fails_leaves_the_bit_of_the_first_and_its_own_partial_values)
{
    session_data_decode got("52 04 08 07 10 08 52 03 10 09 0D");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(got.record.vlan.field_1, 0u);
    EXPECT_EQ(got.record.vlan.field_2, 9u);
    EXPECT_EQ(own_bits(got.record.vlan), fields(2));
    EXPECT_EQ(got.present(), fields(10));
}

TEST(field_record, flags_and_allocator_reach_the_nested_decoder)
{
    session_data_decode aliased("1A 03 2A 01 AA", {.flags = alias, .allocator_given = false});
    EXPECT_EQ(aliased.result, MAVA_TUM_OK);
    EXPECT_EQ(aliased.record.ppp.field_5.data, aliased.wire.data() + 4);

    session_data_decode copied("1A 03 2A 01 AA");
    EXPECT_EQ(copied.allocator.requested_sizes(), (std::vector<uint64_t>{1}));
    EXPECT_EQ(copied.allocator.calls()[0].context, copied.allocator.context());

    session_data_decode missing("1A 03 2A 01 AA", {.allocator_given = false});
    EXPECT_EQ(missing.result, MAVA_TUM_NO_MEMORY);
}

TEST(field_record, encode_of_an_absent_record_without_content_writes_nothing)
{
    mava_tum_session_data record{};
    record.vlan.field_1 = 7; // a value without its bit is no content
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u);
}

TEST(field_record, encode_writes_the_length_of_its_content_at_every_depth)
{
    std::string text(200, 'x');
    mava_tum_session_context record{};
    mava_tum_l2tp_data &l2tp = record.session_data.l2tp;
    l2tp.field_19 = text.data();
    mark_present(l2tp, 19);
    // The text takes 204 bytes with its tag and length, l2tp 207 with its own, session data 210.
    const byte_vector wire = encoded(record);
    EXPECT_EQ(wire.size(), 210u);
    EXPECT_EQ(hex_of(wire.data(), 11), "52 CF 01 22 CC 01 9A 01 C8 01 78");
}

// No record has this length. The caller's lengths are still added in 64 bits, at every depth.
TEST(field_record, the_size_of_a_record_is_added_even_where_the_sum_wraps)
{
    mava_tum_session_context record{};
    mava_tum_session_data &session = record.session_data;
    session.ppp.field_5.length = 0 - uint64_t{20}; // 6 bytes more with its tag and length, and again 6 around it
    mark_present(session.ppp, 5);
    session.l2tp.field_4.length = 100; // 102, and again 2 around it
    mark_present(session.l2tp, 4);
    EXPECT_EQ(call_encode(session, nullptr, 0), 96u);
    EXPECT_EQ(call_encode(record, nullptr, 0), 98u);
}

TEST(field_record, encode_into_a_short_buffer_counts_on_inside_the_record)
{
    mava_tum_session_data record{};
    record.vlan.field_1 = 300;
    record.vlan.field_2 = 1;
    mark_present(record.vlan, 1, 2);
    record.field_11 = 5;
    mark_present(record, 11);
    const byte_vector whole = bytes_of("52 05 08 AC 02 10 01 58 05");
    EXPECT_EQ(encoded(record), whole);
    for (std::size_t capacity = 0; capacity <= whole.size() + 1; ++capacity) {
        const write_trace trace = encode_trace(record, capacity, whole.size());
        EXPECT_TRUE(trace.guards_intact);
        EXPECT_EQ(hex_of(trace), prefix_hex(whole, capacity));
    }
}

TEST(field_record, duplicate_copies_the_bit_whatever_came_of_the_record)
{
    byte_vector content = bytes_of("AA");
    mava_tum_session_data source{};
    source.ppp.field_1 = 1;
    source.ppp.field_5 = bytes_field(content);
    mark_present(source.ppp, 1, 5);
    mark_present(source, 3);
    source.field_11 = 11;
    duplicated<mava_tum_session_data> copy(source, {.allocator_given = false});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.record.ppp.field_1, 1u);
    EXPECT_EQ(copy.record.ppp.field_5.data, nullptr);
    EXPECT_EQ(own_bits(copy.record.ppp), fields(1));
    EXPECT_EQ(copy.record.field_11, 11u);
    EXPECT_EQ(copy.present(), fields(3));
}

TEST(field_record, duplicate_copies_an_absent_record_with_content)
{
    mava_tum_session_data source{};
    source.vlan.field_2 = 2;
    mark_present(source.vlan, 1);
    duplicated<mava_tum_session_data> copy(source);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.record.vlan.field_2, 2u);
    EXPECT_EQ(own_bits(copy.record.vlan), fields(1));
    EXPECT_EQ(copy.present(), 0u);
}

TEST(field_record, free_releases_what_an_absent_or_failed_record_holds)
{
    session_data_decode got("1A 06 2A 02 AA BB 08 80");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(got.present(), 0u);
    EXPECT_EQ(got.allocator.outstanding_count(), 1u);
    got.free_now();
    EXPECT_EQ(got.allocator.outstanding_count(), 0u);
}

} // namespace
} // namespace mava_tum_test
