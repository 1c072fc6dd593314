// subscriber_route_resp: the answer to a batch of routes.
#include "support/expect_ownership.h"
#include "support/expect_schema.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using route_answer_decode = decoded<mava_tum_subscriber_route_resp>;
using route_answer_copy = duplicated<mava_tum_subscriber_route_resp>;

TEST(subscriber_route_resp, schema_is_two_varints_and_two_texts)
{
    using record_type = mava_tum_subscriber_route_resp;
    expect_schema<record_type>({
        {1, wire_type::varint, "08 01"},
        {2, wire_type::varint, "10 FF FF FF FF 0F"},
        {3, wire_type::length_delimited, "1A 01 61"},
        {4, wire_type::length_delimited, "22 00"},
    });
    expect_full_width(1, &record_type::field_1);
    expect_full_width(2, &record_type::field_2);
}

TEST(subscriber_route_resp, decode_stores_each_value_in_its_own_member)
{
    route_answer_decode got("08 01 10 02 1A 01 61 22 02 62 63");
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.record.field_2, 2u);
    EXPECT_STREQ(got.record.field_3, "a");
    EXPECT_STREQ(got.record.field_4, "bc");
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2, 3}));
}

TEST(subscriber_route_resp, decode_of_an_empty_span_resets_the_record_and_keeps_the_spare_bits)
{
    route_answer_decode got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.field_1 | got.record.field_2, 0u);
    EXPECT_EQ(got.record.field_3, nullptr);
    EXPECT_EQ(got.record.field_4, nullptr);
    EXPECT_EQ(got.record.presence_mask, 0xF0u);
}

TEST(subscriber_route_resp, decode_refuses_a_second_occurrence_of_either_text_and_keeps_the_first)
{
    route_answer_decode third("1A 01 61 08 01 1A 01 62 10 02");
    EXPECT_EQ(third.result, MAVA_TUM_TRUNCATED);
    EXPECT_STREQ(third.record.field_3, "a");
    EXPECT_EQ(third.present(), fields(1, 3));
    EXPECT_EQ(route_answer_decode("22 00 1A 00 22 00").result, MAVA_TUM_TRUNCATED);
}

TEST(subscriber_route_resp, each_allocation_that_fails_ends_the_decode_at_its_text)
{
    const char *wire = "08 01 1A 01 61 22 01 62 10 02";
    EXPECT_EQ(route_answer_decode(wire, {.failing_call = 1}).present(), fields(1));
    route_answer_decode got(wire, {.failing_call = 2});
    EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(got.record.field_4, nullptr);
    EXPECT_EQ(got.present(), fields(1, 3));
    EXPECT_EQ(route_answer_decode("08 01 10 02", {.allocator_given = false}).result, MAVA_TUM_OK);
    EXPECT_EQ(route_answer_decode("22 7F", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
}

TEST(subscriber_route_resp, duplicate_loses_exactly_the_text_that_could_not_be_copied)
{
    route_answer_decode source("08 01 10 02 1A 01 61 22 02 62 63");
    route_answer_copy first(source.record, {.failing_call = 1});
    EXPECT_EQ(first.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(first.record.field_3, nullptr);
    EXPECT_EQ(encoded_hex(first.record), "08 01 10 02 22 02 62 63");
    EXPECT_EQ(first.present(), fields(1, 2, 4));
    route_answer_copy second(source.record, {.failing_call = 2});
    EXPECT_EQ(second.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(second.present(), fields(1, 2, 3));
    route_answer_copy whole(source.record);
    EXPECT_EQ(whole.result, MAVA_TUM_OK);
    EXPECT_EQ(whole.allocator.requested_sizes(), (std::vector<uint64_t>{2, 3}));
    EXPECT_EQ(encoded(whole.record), encoded(source.record));
}

TEST(subscriber_route_resp, free_releases_field_3_and_then_field_4)
{
    route_answer_decode got("22 01 62 1A 01 61");
    const std::vector<const void *> expected = {got.record.field_3, got.record.field_4};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
    EXPECT_EQ(got.record.field_3, nullptr);
    EXPECT_EQ(got.record.field_4, nullptr);
    EXPECT_EQ(got.present(), fields(3, 4));
}

TEST(subscriber_route_resp, output_is_one_segment)
{
    expect_output_is_one_segment(route_answer_decode("08 01 1A 01 61").record);
}

} // namespace
} // namespace mava_tum_test
