// Text fields: always copied, always terminated, always released.
#include "support/record_calls.h"
#include "support/sparse_span.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using httpr_decode = decoded<mava_tum_subscriber_httpr>;
using l2tp_decode = decoded<mava_tum_l2tp_data>;


TEST(field_text, decode_copies_into_a_block_of_length_plus_1_and_terminates_it)
{
    httpr_decode got("12 03 61 62 63");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{4}));
    EXPECT_EQ(got.record.field_2, got.allocator.calls()[0].block);
    EXPECT_STREQ(got.record.field_2, "abc");
    EXPECT_EQ(got.allocator.calls()[0].context, got.allocator.context());
    EXPECT_EQ(got.present(), fields(2));
}

TEST(field_text, an_empty_text_is_a_block_of_one_byte)
{
    httpr_decode got("12 00");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{1}));
    EXPECT_STREQ(got.record.field_2, "");
    EXPECT_EQ(encoded_hex(got.record), "12 00");
}

TEST(field_text, decode_copies_with_the_alias_bit_too)
{
    l2tp_decode got("9A 01 03 61 62 63", {.flags = alias});
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{4}));
    EXPECT_STREQ(got.record.field_19, "abc");
}

TEST(field_text, decode_has_no_limit_but_the_input)
{
    httpr_decode got(wire_builder().text(2, std::string(100'000, 'x')));
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{100'001}));
    EXPECT_EQ(std::string(got.record.field_2), std::string(100'000, 'x'));
}

TEST(field_text, a_second_occurrence_is_refused_and_the_first_text_stays)
{
    for (const char *hex : {"12 01 61 12 01 62", "12 01 61 08 01 12 00"}) {
        httpr_decode got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << hex;
        EXPECT_STREQ(got.record.field_2, "a") << hex;
        EXPECT_EQ(got.allocator.calls().size(), 1u) << hex;
    }
}

TEST(field_text, decode_tests_wire_type_then_repetition_then_allocator_then_bounds)
{
    EXPECT_EQ(httpr_decode("12 01 61 10 00").result, MAVA_TUM_WRONG_WIRE_TYPE) << "a second one of wrong wire type";
    EXPECT_EQ(httpr_decode("10 00", {.allocator_given = false}).result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(httpr_decode("12 01 61 12").result, MAVA_TUM_TRUNCATED) << "a second one, cut";
    EXPECT_EQ(httpr_decode("12", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY) << "the length is not read";
    EXPECT_EQ(httpr_decode("12 7F", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(httpr_decode("12 7F 61", {.failing_call = 1}).result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(httpr_decode("12 01 61", {.failing_call = 1}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(l2tp_decode("9A 01 01 61", {.flags = alias, .allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
}

TEST(field_text, a_failed_allocation_stores_nothing_and_keeps_the_fields_before_it)
{
    decoded<mava_tum_subscriber_acl> got("08 07 12 01 61 1A 02 62 62 22 01 63", {.failing_call = 2});
    EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(got.record.field_1, 7u);
    EXPECT_STREQ(got.record.field_2, "a");
    EXPECT_EQ(got.record.field_3, nullptr);
    EXPECT_EQ(got.record.field_4, nullptr) << "decoding stopped";
    EXPECT_EQ(got.present(), fields(1, 2));
}

TEST(field_text, the_longest_length_asks_for_a_wrapped_size_and_copies_nothing)
{
    // 0xFFFFFFFF + 1 is 0 in 32 bits: the decoder requests 0 bytes, which cannot hold a text.
    constexpr uint64_t text_length = 0xFFFFFFFF;
    const byte_vector start = wire_builder().tag(2, wire_type::length_delimited).bare_varint(text_length);
    sparse_span wire(start.size() + text_length);
    if (wire.data() == nullptr)
        GTEST_SKIP() << "no 4 GiB of address space here";
    wire.put(0, start);

    for (std::size_t failing_call : {0u, 1u}) {
        recording_allocator allocator;
        allocator.allow_outstanding();
        allocator.fail_call(failing_call);
        mava_tum_subscriber_httpr record;
        fill_with_ones(record);
        EXPECT_EQ(mava_tum_subscriber_httpr_decode_ext(
                      &record, wire.data(), wire.size(), recording_allocator::allocate, allocator.context()),
            MAVA_TUM_NO_MEMORY);
        EXPECT_EQ(allocator.requested_sizes(), (std::vector<uint64_t>{0}));
        EXPECT_EQ(record.field_2, nullptr);
        EXPECT_EQ(own_bits(record), 0u);
    }
}

TEST(field_text, encode_needs_both_bit_and_pointer)
{
    std::string text = "abc";
    mava_tum_subscriber_httpr record{};
    mark_present(record, 2);
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u) << "bit without pointer";
    record.field_2 = text.data();
    EXPECT_EQ(encoded_hex(record), "12 03 61 62 63");
    record.presence_mask = 0;
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u) << "pointer without bit";
}

TEST(field_text, duplicate_copies_the_text_with_its_terminator_by_pointer_alone)
{
    std::string text = "abc";
    mava_tum_subscriber_acl source{};
    source.field_2 = text.data();
    mark_present(source, 3);
    duplicated<mava_tum_subscriber_acl> copy(source);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{4}));
    EXPECT_STREQ(copy.record.field_2, "abc") << "although its bit is clear";
    EXPECT_NE(copy.record.field_2, text.data());
    EXPECT_EQ(copy.record.field_3, nullptr);
    EXPECT_EQ(copy.present(), fields(3)) << "the bit of a null text is copied as it is";
}

TEST(field_text, duplicate_of_an_empty_text_is_a_block_of_one_byte)
{
    std::string text;
    mava_tum_subscriber_acl source{};
    source.field_5 = text.data();
    mark_present(source, 5);
    duplicated<mava_tum_subscriber_acl> copy(source);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{1}));
    EXPECT_STREQ(copy.record.field_5, "");
}

TEST(field_text, a_failed_duplicate_is_null_and_absent_and_the_rest_goes_on)
{
    std::string text = "abc";
    mava_tum_subscriber_acl source{};
    source.field_1 = 1;
    source.field_2 = text.data();
    source.field_3 = text.data();
    source.field_5 = text.data();
    mark_present(source, 1, 2, 3, 5);

    duplicated<mava_tum_subscriber_acl> copy(source, {.failing_call = 2});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_STREQ(copy.record.field_2, "abc");
    EXPECT_EQ(copy.record.field_3, nullptr);
    EXPECT_STREQ(copy.record.field_5, "abc");
    EXPECT_EQ(copy.present(), fields(1, 2, 5));

    duplicated<mava_tum_subscriber_acl> without(source, {.allocator_given = false});
    EXPECT_EQ(without.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(without.record.field_1, 1u);
    EXPECT_EQ(without.record.field_2, nullptr);
    EXPECT_EQ(without.record.field_5, nullptr);
    EXPECT_EQ(without.present(), fields(1));
}

TEST(field_text, free_releases_with_the_alias_bit_too_and_only_once)
{
    l2tp_decode got("9A 01 01 61", {.flags = alias});
    const void *block = got.record.field_19;
    got.free_now();
    EXPECT_EQ(got.allocator.released(), (std::vector<const void *>{block}));
    EXPECT_EQ(got.record.field_19, nullptr);
    EXPECT_EQ(got.present(), fields(19)) << "the bit stays";
    got.free_now();
    EXPECT_EQ(got.allocator.released().size(), 1u);
}

TEST(field_text, free_releases_a_text_whose_bit_is_clear)
{
    httpr_decode got("12 01 61");
    got.record.presence_mask = 0;
    got.free_now();
    EXPECT_EQ(got.allocator.outstanding_count(), 0u);
}

} // namespace
} // namespace mava_tum_test
