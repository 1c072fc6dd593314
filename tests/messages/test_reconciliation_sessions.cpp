// rec_sess_req and rec_sess_resp: batches of session states.
#include "support/expect_ownership.h"
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using request_decode = decoded<mava_tum_rec_sess_req>;
using request_copy = duplicated<mava_tum_rec_sess_req>;
using response_decode = decoded<mava_tum_rec_sess_resp>;

constexpr uint64_t state_bytes = sizeof(mava_tum_rec_session_state);

TEST(rec_sess_req, schema_is_three_varints_an_array_and_two_texts)
{
    using record_type = mava_tum_rec_sess_req;
    expect_schema<record_type>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 02"},
        {3, wire_type::length_delimited, "1A 02 08 01 1A 00 1A 02 18 03"},
        {4, wire_type::length_delimited, "22 01 61"},
        {5, wire_type::length_delimited, "2A 02 62 63"},
        {6, wire_type::varint, "30 06"},
    });
    expect_full_width(1, &record_type::field_1);
    expect_full_width(2, &record_type::field_2);
    expect_full_width(6, &record_type::field_6);
}

TEST(rec_sess_req, decode_stores_each_value_in_its_own_member)
{
    request_decode got("08 01 10 02 1A 0B 08 0A 10 80 80 80 80 80 01 18 0C 1A 02 08 0D 22 01 61 2A 01 62 30 06");
    ASSERT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.record.field_2, 2u);
    ASSERT_EQ(got.record.field_3_count, 2u);
    EXPECT_EQ(got.record.field_3[0].field_1, 10u);
    EXPECT_EQ(got.record.field_3[0].field_2, uint64_t{1} << 35);
    EXPECT_EQ(got.record.field_3[0].field_3, 12u);
    EXPECT_EQ(got.record.field_3[0].presence_mask, fields(1, 2, 3));
    EXPECT_EQ(got.record.field_3[1].field_1, 13u);
    EXPECT_EQ(got.record.field_3[1].presence_mask, fields(1)) << "the codec zeroes the array";
    EXPECT_STREQ(got.record.field_4, "a");
    EXPECT_STREQ(got.record.field_5, "b");
    EXPECT_EQ(got.record.field_6, 6u);
}

TEST(rec_sess_req, three_states_are_one_array_obtained_in_one_call)
{
    request_decode got("1A 02 08 01 1A 02 08 02 1A 02 08 03");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_3_count, 3u);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{3 * state_bytes}));
}

TEST(rec_sess_req, decode_refuses_a_second_run_after_another_field)
{
    request_decode got("1A 02 08 01 08 07 1A 02 08 02");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    ASSERT_EQ(got.record.field_3_count, 1u);
    EXPECT_EQ(got.record.field_3[0].field_1, 1u);
    EXPECT_EQ(got.record.field_1, 7u);
    EXPECT_EQ(got.present(), fields(1, 3));
}

TEST(rec_sess_req, a_state_with_a_field_of_wrong_wire_type_fails_the_whole_message)
{
    request_decode got("08 01 1A 02 08 05 1A 04 08 06 12 00 30 06");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    ASSERT_EQ(got.record.field_3_count, 2u) << "the array stays attached";
    EXPECT_EQ(got.record.field_3[1].field_1, 6u);
    EXPECT_EQ(got.present(), fields(1));
    EXPECT_EQ(request_decode("1A 01 08").result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(request_decode("1A 01 24").result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE);
}

TEST(rec_sess_req, decode_takes_more_states_than_any_batch_has)
{
    wire_builder wire;
    for (uint32_t i = 0; i < 500; ++i)
        wire.length_delimited(3, wire_builder().varint(2, uint64_t{i} << 32));
    request_decode got(wire);
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    ASSERT_EQ(got.record.field_3_count, 500u);
    for (uint32_t i = 0; i < 500; ++i)
        ASSERT_EQ(got.record.field_3[i].field_2, uint64_t{i} << 32);
    EXPECT_TRUE(encoded(got.record) == wire.bytes());
}

TEST(rec_sess_req, array_and_texts_are_allocated_and_released_whatever_the_flags)
{
    expect_flags_are_ignored<mava_tum_rec_sess_req>("1A 02 08 01 22 01 61 2A 02 62 63 30 06");
}

TEST(rec_sess_req, each_allocation_that_fails_ends_the_decode_at_its_field)
{
    const char *wire = "08 01 10 02 1A 00 1A 00 22 01 61 2A 02 62 63 30 06";
    const uint32_t before[] = {fields(1, 2), fields(1, 2, 3), fields(1, 2, 3, 4)};
    EXPECT_EQ(request_decode(wire).allocator.requested_sizes(), (std::vector<uint64_t>{2 * state_bytes, 2, 3}));
    for (std::size_t failing = 1; failing <= 3; ++failing) {
        request_decode got(wire, {.failing_call = failing});
        EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(got.present(), before[failing - 1]) << failing;
        EXPECT_EQ(got.allocator.outstanding_count(), failing - 1);
    }
    request_decode without("08 01 1A 00", {.allocator_given = false});
    EXPECT_EQ(without.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(without.present(), fields(1));
}

TEST(rec_sess_req, each_text_may_occur_once)
{
    for (const char *hex : {"22 01 61 22 01 62", "2A 01 61 2A 01 62", "22 00 2A 00 22 00"})
        EXPECT_EQ(request_decode(hex).result, MAVA_TUM_TRUNCATED) << hex;
}

TEST(rec_sess_req, encode_writes_states_by_bit_and_count)
{
    mava_tum_rec_session_state states[2] = {};
    mava_tum_rec_sess_req record{};
    record.field_3 = states;
    mark_present(record, 1, 3);
    EXPECT_EQ(encoded_hex(record), "08 00") << "nothing for count 0";
    record.field_3_count = 2;
    EXPECT_EQ(encoded_hex(record), "08 00 1A 00 1A 00");
    mark_present(states[1], 2);
    states[1].field_2 = 300;
    EXPECT_EQ(encoded_hex(record), "08 00 1A 00 1A 03 10 AC 02");
}

TEST(rec_sess_req, duplicate_goes_on_after_each_failure)
{
    request_decode source("08 01 1A 03 10 AC 02 1A 00 22 01 61 2A 02 62 63 30 06");
    const uint32_t all = fields(1, 3, 4, 5, 6);
    request_copy whole(source.record);
    EXPECT_EQ(whole.result, MAVA_TUM_OK);
    EXPECT_EQ(whole.allocator.requested_sizes(), (std::vector<uint64_t>{2 * state_bytes, 2, 3}));
    EXPECT_EQ(encoded(whole.record), encoded(source.record));
    EXPECT_EQ(whole.record.field_3[1].presence_mask, 0u) << "the codec zeroes the array of a copy";
    for (uint32_t failing = 1; failing <= 3; ++failing) {
        request_copy copy(source.record, {.failing_call = failing});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(copy.allocator.calls().size(), 3u) << failing;
        EXPECT_EQ(copy.present(), all & ~fields(failing + 2)) << "fields 3, 4, 5 in turn";
        EXPECT_EQ(copy.record.field_6, 6u) << failing;
        EXPECT_EQ(copy.record.field_3_count, failing == 1 ? 0u : 2u);
        EXPECT_EQ(copy.record.field_3 == nullptr, failing == 1);
    }
    request_copy without(source.record, {.allocator_given = false});
    EXPECT_EQ(without.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(without.present(), fields(1, 6));
}

TEST(rec_sess_req, free_releases_the_array_and_then_the_texts)
{
    request_decode got("2A 01 62 1A 00 1A 00 22 01 61");
    const std::vector<const void *> expected = {got.record.field_3, got.record.field_4, got.record.field_5};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
    EXPECT_EQ(got.record.field_3, nullptr);
    EXPECT_EQ(got.record.field_3_count, 0u);
    EXPECT_EQ(got.present(), fields(3, 4, 5));
}

TEST(rec_sess_req, output_is_one_segment)
{
    expect_output_is_one_segment(request_decode("08 01 1A 02 08 01 22 01 61").record);
}

TEST(rec_sess_resp, schema_is_three_varints_and_an_array)
{
    using record_type = mava_tum_rec_sess_resp;
    expect_schema<record_type>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::length_delimited, "12 02 08 01 12 00"},
        {3, wire_type::varint, "18 AC 02"},
        {4, wire_type::varint, "20 FF FF FF FF 0F"},
    });
    expect_full_width(1, &record_type::field_1);
    expect_full_width(3, &record_type::field_3);
    expect_full_width(4, &record_type::field_4);
    expect_flags_are_ignored<record_type>("12 02 08 01 12 00 18 AC 02");
    expect_output_is_one_segment(response_decode("12 02 08 01 12 00").record);
}

TEST(rec_sess_resp, spare_bits_of_the_mask_write_nothing)
{
    mava_tum_rec_sess_resp record{};
    record.presence_mask = 0xFF;
    EXPECT_EQ(encoded_hex(record), "08 00 18 00 20 00") << "and an empty array writes nothing";
}

TEST(rec_sess_resp, a_second_run_is_refused_and_a_second_scalar_wins)
{
    response_decode got("18 01 12 00 18 02 12 00");
    EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(got.record.field_2_count, 1u);
    EXPECT_EQ(got.record.field_3, 2u);
    EXPECT_EQ(got.present(), fields(2, 3));
}

TEST(rec_sess_resp, duplicate_without_memory_loses_the_array_only)
{
    response_decode source("08 01 12 02 08 05 18 03 20 04");
    duplicated<mava_tum_rec_sess_resp> copy(source.record, {.failing_call = 1});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.record.field_2, nullptr);
    EXPECT_EQ(copy.record.field_2_count, 0u);
    EXPECT_EQ(encoded_hex(copy.record), "08 01 18 03 20 04");
    EXPECT_EQ(copy.present(), fields(1, 3, 4));

    mava_tum_rec_sess_resp empty{};
    mark_present(empty, 2);
    duplicated<mava_tum_rec_sess_resp> bit_only(empty, {.allocator_given = false});
    EXPECT_EQ(bit_only.result, MAVA_TUM_OK);
    EXPECT_EQ(bit_only.present(), fields(2));
}

} // namespace
} // namespace mava_tum_test
