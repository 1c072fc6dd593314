// rec_sess_replay_req: whole sessions once more. The answer: test_reconciliation_replay_resp.cpp.
#include "support/expect_ownership.h"
#include "support/expect_schema.h"
#include "support/full_session_context.h"
#include "support/gathered_segments.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

#include <array>

namespace mava_tum_test
{
namespace
{

using replay_decode = decoded<mava_tum_rec_sess_replay_req>;
using replay_copy = duplicated<mava_tum_rec_sess_replay_req>;

constexpr uint64_t context_bytes = sizeof(mava_tum_session_context);

// Two complete sessions and a text at the end.
byte_vector full_replay()
{
    return wire_builder()
        .varint(1, 1)
        .varint(2, 2)
        .varint(3, 3)
        .length_delimited(4, full_session_context())
        .length_delimited(4, full_session_context())
        .varint(5, 5)
        .text(6, "abc");
}

// The sizes that a decode and a duplicate request.
std::vector<uint64_t> full_replay_sizes(bool with_bytes)
{
    std::vector<uint64_t> sizes = {2 * context_bytes};
    for (int session = 0; session < 2; ++session)
        for (const allocation_row &row : full_session_context_allocations())
            if (with_bytes || !row.bytes)
                sizes.push_back(row.size);
    sizes.push_back(4);
    return sizes;
}

TEST(rec_sess_replay_req, schema_is_four_varints_an_array_and_a_text)
{
    using record_type = mava_tum_rec_sess_replay_req;
    expect_schema<record_type>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 02"},
        {3, wire_type::varint, "18 03"},
        {4, wire_type::length_delimited, "22 02 08 01 22 00 22 03 32 01 AA"},
        {5, wire_type::varint, "28 05"},
        {6, wire_type::length_delimited, "32 01 61"},
    });
    expect_full_width(1, &record_type::field_1);
    expect_full_width(2, &record_type::field_2);
    expect_full_width(3, &record_type::field_3);
    expect_full_width(5, &record_type::field_5);
}

TEST(rec_sess_replay_req, decode_stores_each_value_in_its_own_member)
{
    replay_decode got(full_replay());
    ASSERT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.record.field_2, 2u);
    EXPECT_EQ(got.record.field_3, 3u);
    ASSERT_EQ(got.record.field_4_count, 2u);
    for (uint32_t i = 0; i < 2; ++i)
        EXPECT_EQ(hex_of(encoded(got.record.field_4[i])), hex_of(full_session_context()));
    EXPECT_EQ(got.record.field_4[0].presence_mask, 0xFFFFFFu) << "the codec zeroes the array";
    EXPECT_EQ(got.record.field_5, 5u);
    EXPECT_STREQ(got.record.field_6, "abc");
    EXPECT_TRUE(encoded(got.record) == full_replay());
}

TEST(rec_sess_replay_req, flags_reach_the_sessions)
{
    replay_decode copied(full_replay());
    EXPECT_EQ(copied.allocator.requested_sizes(), full_replay_sizes(true));
    replay_decode aliased(full_replay(), {.flags = alias});
    EXPECT_EQ(aliased.allocator.requested_sizes(), full_replay_sizes(false));

    replay_decode small("22 03 32 01 AA 22 04 32 02 BB CC", {.flags = alias});
    EXPECT_EQ(small.record.field_4[0].field_6.data, small.wire.data() + 4);
    EXPECT_EQ(small.record.field_4[1].field_6.data, small.wire.data() + 9);
    small.free_now();
    EXPECT_EQ(small.allocator.released().size(), 1u) << "the array alone";
}

TEST(rec_sess_replay_req, each_allocation_that_fails_leaves_everything_before_it_to_free)
{
    const std::size_t calls = full_replay_sizes(true).size();
    for (std::size_t failing = 1; failing <= calls; ++failing) {
        replay_decode got(full_replay(), {.failing_call = failing});
        EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(got.record.field_4_count, failing == 1 ? 0u : 2u) << failing;
        EXPECT_EQ(got.present(), failing == calls ? fields(1, 2, 3, 4, 5) : fields(1, 2, 3)) << failing;
        EXPECT_EQ(got.allocator.outstanding_count(), failing - 1);
        got.free_now();
        EXPECT_EQ(got.allocator.outstanding_count(), 0u) << failing;
    }
}

TEST(rec_sess_replay_req, results_come_up_unchanged_from_four_levels_down)
{
    // Replay, session context, session data, l2tp.
    EXPECT_EQ(replay_decode("22 06 52 04 22 02 0D 00").result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(replay_decode("22 06 52 04 22 02 A3 01").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
    EXPECT_EQ(replay_decode("22 05 52 03 22 01 08 28 05").result, MAVA_TUM_TRUNCATED);
    const char *with_text = "22 09 52 07 22 05 9A 01 02 61 62";
    EXPECT_EQ(replay_decode(with_text).result, MAVA_TUM_OK);
    EXPECT_EQ(replay_decode(with_text, {.failing_call = 2}).result, MAVA_TUM_NO_MEMORY);
}

TEST(rec_sess_replay_req, a_second_run_of_sessions_is_refused)
{
    replay_decode got("22 02 08 01 22 00 28 05 22 00");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    ASSERT_EQ(got.record.field_4_count, 2u);
    EXPECT_EQ(got.record.field_4[0].field_1, 1u);
    EXPECT_EQ(got.present(), fields(4, 5));
    EXPECT_EQ(replay_decode("32 01 61 32 01 62").result, MAVA_TUM_TRUNCATED) << "nor a second text";
}

TEST(rec_sess_replay_req, a_failing_session_leaves_the_array_attached_and_the_bit_clear)
{
    replay_decode got("08 01 22 03 32 01 AA 22 07 62 03 12 01 61 5D 00 22 00 28 05");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    ASSERT_EQ(got.record.field_4_count, 3u);
    EXPECT_EQ(hex_of(content_of(got.record.field_4[0].field_6)), "AA");
    EXPECT_STREQ(got.record.field_4[1].acl.field_2, "a");
    EXPECT_EQ(got.record.field_4[2].presence_mask, 0u);
    EXPECT_EQ(got.present(), fields(1));
    EXPECT_EQ(got.allocator.outstanding_count(), 3u);
}

TEST(rec_sess_replay_req, encode_of_sessions_is_by_bit_and_count)
{
    std::array<mava_tum_session_context, 2> sessions{};
    mava_tum_rec_sess_replay_req record{};
    record.field_4 = sessions.data();
    record.field_4_count = 2;
    mark_present(record, 1);
    EXPECT_EQ(encoded_hex(record), "08 00");
    mark_present(record, 4);
    EXPECT_EQ(encoded_hex(record), "08 00 22 00 22 00");
    record.field_4_count = 0;
    EXPECT_EQ(encoded_hex(record), "08 00");
}

TEST(rec_sess_replay_req, duplicate_of_borrowed_sessions_owns_everything)
{
    replay_decode source(full_replay(), {.flags = alias});
    replay_copy copy(source.record);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.allocator.requested_sizes(), full_replay_sizes(true));
    EXPECT_TRUE(encoded(copy.record) == full_replay());
    EXPECT_TRUE(copy.allocator.is_outstanding(copy.record.field_4));
    EXPECT_TRUE(copy.allocator.is_outstanding(copy.record.field_4[1].field_6.data));
}

TEST(rec_sess_replay_req, duplicate_keeps_the_slots_of_sessions_that_fail)
{
    replay_decode source("22 0B 62 03 12 01 61 6A 04 12 02 62 63 22 05 62 03 12 01 64 28 05 32 01 65");
    ASSERT_EQ(source.result, MAVA_TUM_OK);
    replay_copy copy(source.record, {.failing_call = 2});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{2 * context_bytes, 2, 3, 2, 2}));
    ASSERT_EQ(copy.record.field_4_count, 2u);
    EXPECT_EQ(copy.record.field_4[0].acl.field_2, nullptr);
    EXPECT_STREQ(copy.record.field_4[0].httpr.field_2, "bc") << "the session continues";
    EXPECT_EQ(own_bits(copy.record.field_4[0]), fields(12, 13));
    EXPECT_STREQ(copy.record.field_4[1].acl.field_2, "d") << "the next one, too";
    EXPECT_EQ(copy.present(), fields(4, 5, 6));

    replay_copy no_array(source.record, {.failing_call = 1});
    EXPECT_EQ(no_array.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(no_array.allocator.requested_sizes(), (std::vector<uint64_t>{2 * context_bytes, 2}));
    EXPECT_EQ(no_array.record.field_4, nullptr);
    EXPECT_EQ(no_array.record.field_4_count, 0u);
    EXPECT_STREQ(no_array.record.field_6, "e");
    EXPECT_EQ(no_array.present(), fields(5, 6));

    replay_copy no_text(source.record, {.failing_call = 5});
    EXPECT_EQ(no_text.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(no_text.present(), fields(4, 5));
}

TEST(rec_sess_replay_req, free_releases_session_by_session_and_borrowed_bytes_never)
{
    // Two sessions with a bytes field, one qos entry with a text, and an access list with a text each.
    const char *session = "22 0D 32 01 AA 5A 03 1A 01 62 62 03 12 01 61";
    for (uint32_t flags : {0u, alias}) {
        replay_decode got(joined({bytes_of(session), bytes_of(session), bytes_of("32 01 65")}), {.flags = flags});
        ASSERT_EQ(got.result, MAVA_TUM_OK);
        std::vector<const void *> expected;
        for (uint32_t i = 0; i < 2; ++i) {
            const mava_tum_session_context &context = got.record.field_4[i];
            if (flags == 0)
                expected.push_back(context.field_6.data);
            for (const void *block : {static_cast<const void *>(context.qos[0].field_3),
                     static_cast<const void *>(context.qos), static_cast<const void *>(context.acl.field_2)})
                expected.push_back(block);
        }
        expected.push_back(got.record.field_4);
        expected.push_back(got.record.field_6);
        got.free_now();
        EXPECT_EQ(got.allocator.released(), expected) << "flags " << flags;
        EXPECT_EQ(got.record.field_4, nullptr);
        EXPECT_EQ(got.record.field_4_count, 0u);
        EXPECT_EQ(got.record.field_6, nullptr);
        EXPECT_EQ(got.present(), fields(4, 6));
    }
}

// A session with a bytes field, and one with a bytes field two levels deeper.
struct replay_with_bytes {
    byte_vector own = bytes_of("AA BB");
    byte_vector nested = bytes_of("CC");
    std::array<mava_tum_session_context, 2> sessions{};
    mava_tum_rec_sess_replay_req record{};

    replay_with_bytes()
    {
        sessions[0].field_6 = bytes_field(own);
        mark_present(sessions[0], 6);
        sessions[1].session_data.ppp.field_5 = bytes_field(nested);
        mark_present(sessions[1].session_data.ppp, 5);
        sessions[1].field_7 = 7;
        mark_present(sessions[1], 7);
        record.field_1 = 1;
        record.field_4 = sessions.data();
        record.field_4_count = 2;
        record.field_5 = 5;
        mark_present(record, 1, 4, 5);
    }
};

const std::vector<std::string> segments_of_the_replay = {
    "4+2", "AA BB", // the first session and its bytes field
    "14+2", "CC",   // ppp and its bytes field
    "12+4",         // session data
    "8+8",          // the second session
    "0+18",         // the replay itself
};

TEST(rec_sess_replay_req, gathered_bytes_of_sessions_are_segments_and_no_length_counts_them)
{
    const replay_with_bytes source;
    gathered_segments got(source.record);
    EXPECT_EQ(got.bytes_in_buffer(), "08 01 22 02 32 02 22 08 38 07 52 04 1A 02 2A 01 28 05");
    EXPECT_EQ(got.stored(), segments_of_the_replay);
    EXPECT_EQ(got.list[1].data, source.own.data());
    EXPECT_EQ(got.list[3].data, source.nested.data());
    EXPECT_EQ(call_encode(source.record, nullptr, 0), 21u) << "in copy mode the contents count";
}

TEST(rec_sess_replay_req, gathered_segments_are_counted_past_the_capacity)
{
    const replay_with_bytes source;
    for (uint32_t capacity = 0; capacity < segments_of_the_replay.size(); ++capacity) {
        gathered_segments got(source.record, capacity);
        EXPECT_EQ(got.count, segments_of_the_replay.size()) << capacity;
        EXPECT_EQ(got.stored(), std::vector<std::string>(segments_of_the_replay.begin(),
                                    segments_of_the_replay.begin() + static_cast<std::ptrdiff_t>(capacity)));
    }
}

TEST(rec_sess_replay_req, gathering_without_a_buffer_counts_the_same_segments)
{
    const replay_with_bytes source;
    std::array<mava_tum_segment, 7> segments{};
    uint32_t count = 7;
    EXPECT_EQ(call_encode(source.record, nullptr, 0, segments.data(), &count, alias), 18u);
    EXPECT_EQ(count, 7u);
    EXPECT_EQ(segments[1].data, source.own.data());
    EXPECT_EQ(segments[3].data, source.nested.data());
    for (std::size_t in_buffer : {0u, 2u, 4u, 5u, 6u})
        EXPECT_EQ(segments[in_buffer].data, nullptr) << in_buffer;
    EXPECT_EQ(segments[6].length, 18u);
}

TEST(rec_sess_replay_req, copy_mode_is_one_segment_whatever_is_nested)
{
    const replay_with_bytes source;
    expect_output_is_one_segment(source.record);
}

} // namespace
} // namespace mava_tum_test
