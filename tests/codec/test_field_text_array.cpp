// Arrays of texts: decoding. One run of elements becomes one array of pointers and one block for each text.
#include "support/expect_ownership.h"
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>

namespace mava_tum_test
{
namespace
{

using start_decode = decoded<mava_tum_sess_svc_start>;


void expect_no_texts(const start_decode &got, const char *hex)
{
    EXPECT_EQ(got.record.field_5, nullptr) << hex;
    EXPECT_EQ(got.record.field_5_count, 0u) << hex;
    EXPECT_EQ(got.present() & fields(5), 0u) << hex;
}

TEST(field_text_array, one_run_becomes_a_block_of_pointers_and_then_a_block_for_each_text)
{
    start_decode got("08 01 2A 01 61 2A 00 2A 03 62 63 64 20 04");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{3 * pointer_bytes, 2, 1, 4}));
    ASSERT_EQ(got.record.field_5_count, 3u);
    const std::vector<recording_allocator::call> &calls = got.allocator.calls();
    EXPECT_EQ(static_cast<void *>(got.record.field_5), calls[0].block);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(got.record.field_5[i], calls[i + 1].block) << i;
    for (const recording_allocator::call &call : calls)
        EXPECT_EQ(call.context, got.allocator.context());
    EXPECT_STREQ(got.record.field_5[0], "a");
    EXPECT_STREQ(got.record.field_5[1], "");
    EXPECT_STREQ(got.record.field_5[2], "bcd");
    EXPECT_EQ(got.present(), fields(1, 4, 5));
}

TEST(field_text_array, a_single_entry_is_an_array_of_one)
{
    start_decode got("2A 02 61 62");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{pointer_bytes, 3}));
    ASSERT_EQ(got.record.field_5_count, 1u);
    EXPECT_STREQ(got.record.field_5[0], "ab");
    EXPECT_EQ(got.present(), fields(5));
}

TEST(field_text_array, a_run_of_any_length_has_one_block_of_pointers)
{
    wire_builder wire;
    std::vector<uint64_t> sizes = {3000 * pointer_bytes};
    for (uint32_t i = 0; i < 3000; ++i) {
        wire.text(5, std::to_string(i));
        sizes.push_back(std::to_string(i).size() + 1);
    }
    start_decode got(wire);
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), sizes);
    ASSERT_EQ(got.record.field_5_count, 3000u);
    for (uint32_t i = 0; i < 3000; ++i)
        ASSERT_EQ(std::to_string(i), got.record.field_5[i]);
}

TEST(field_text_array, texts_are_copied_whatever_the_flags)
{
    expect_flags_are_ignored<mava_tum_sess_svc_start>("2A 01 61 2A 00 2A 03 62 63 64");
}

TEST(field_text_array, a_nul_inside_a_text_is_copied_and_every_block_ends_with_one)
{
    start_decode got("2A 03 61 00 62 2A 02 FF 80");
    ASSERT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2 * pointer_bytes, 4, 3}));
    EXPECT_EQ(hex_of(reinterpret_cast<const uint8_t *>(got.record.field_5[0]), 4), "61 00 62 00");
    EXPECT_EQ(hex_of(reinterpret_cast<const uint8_t *>(got.record.field_5[1]), 3), "FF 80 00");
}

TEST(field_text_array, the_wire_type_of_the_first_entry_is_looked_at)
{
    for (const char *hex : {"28 00", "29", "2B", "2C", "2D 00 00 00 00", "2E", "2F"}) {
        start_decode got(hex);
        EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE) << hex;
        expect_no_texts(got, hex);
        EXPECT_TRUE(got.allocator.calls().empty()) << hex;
    }
}

TEST(field_text_array, tags_and_lengths_inside_a_run_may_be_over_long)
{
    // The tag of field 5 as one byte, three, five with surplus bits, seven; the last length in three bytes.
    start_decode got("2A 01 61 AA 80 00 01 62 AA 80 80 80 70 01 63 AA 80 80 80 80 80 00 81 80 00 64");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(encoded_hex(got.record), "2A 01 61 2A 01 62 2A 01 63 2A 01 64");
}

TEST(field_text_array, a_defect_in_any_entry_of_a_run_fails_before_anything_is_allocated)
{
    const char *inputs[] = {
        "2A",                         // length missing
        "2A 80",                      // length cut
        "2A 01",                      // content missing
        "2A 03 61 62",                // content cut
        "2A 01 61 2A",                // second length missing
        "2A 01 61 2A 80 80",          // second length cut
        "2A 01 61 2A 05 62",          // second content overruns
        "2A 01 61 2A FF FF FF FF 0F", // by far
        "2A 01 61 AA",                // second tag cut
        "2A 01 61 AA 80",             // second tag cut later
        "2A 01 61 A0",                // the next tag is another field's, but cut
        "2A 01 61 28",                // an entry of another wire type, its length missing
        "2A 01 61 2A 00 2D 02 61",    // an entry of another wire type, its content cut
    };
    for (const char *hex : inputs) {
        start_decode got(joined({bytes_of("10 07"), bytes_of(hex)}));
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << hex;
        expect_no_texts(got, hex);
        EXPECT_TRUE(got.allocator.calls().empty()) << hex;
        EXPECT_EQ(got.present(), fields(2)) << hex << ": what came before it stays";
    }
}

TEST(field_text_array, a_second_run_is_refused_even_after_nothing_but_an_unknown_field)
{
    for (const char *between : {"10 07", "30 05", "32 00", "00 00", "35 00 00 00 00"}) {
        start_decode got(joined({bytes_of("2A 01 61 2A 01 62"), bytes_of(between), bytes_of("2A 01 63")}));
        EXPECT_EQ(got.result, MAVA_TUM_TRUNCATED) << between;
        ASSERT_EQ(got.record.field_5_count, 2u) << between;
        EXPECT_STREQ(got.record.field_5[1], "b") << between;
        EXPECT_NE(got.present() & fields(5), 0u) << between << ": the first run stays";
        EXPECT_EQ(got.allocator.calls().size(), 3u) << between;
    }
}

TEST(field_text_array, decode_tests_wire_type_then_repetition_then_allocator_then_bounds)
{
    EXPECT_EQ(start_decode("28", {.allocator_given = false}).result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(start_decode("2A 00 08 01 28").result, MAVA_TUM_WRONG_WIRE_TYPE) << "a second run of wrong wire type";
    EXPECT_EQ(start_decode("2A 00 08 01 2A 7F", {.failing_call = 3}).result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(start_decode("2A 7F", {.allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(start_decode("2A", {.flags = MAVA_TUM_ALIAS, .allocator_given = false}).result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(start_decode("2A 7F", {.failing_call = 1}).result, MAVA_TUM_TRUNCATED);
    EXPECT_EQ(start_decode("2A 00", {.failing_call = 1}).result, MAVA_TUM_NO_MEMORY);
}

TEST(field_text_array, a_failed_allocation_of_the_pointers_leaves_the_field_empty_and_absent)
{
    start_decode got("08 07 2A 01 61 2A 01 62 20 01", {.failing_call = 1});
    EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(got.allocator.requested_sizes(), (std::vector<uint64_t>{2 * pointer_bytes}));
    expect_no_texts(got, "two texts");
    EXPECT_EQ(got.present(), fields(1)) << "decoding stopped";
}

TEST(field_text_array, a_failed_allocation_of_a_text_leaves_the_array_attached_and_later_slots_null)
{
    const char *contents[] = {"a", "bc", "def"};
    for (std::size_t failing = 2; failing <= 4; ++failing) {
        start_decode got("08 07 2A 01 61 2A 02 62 63 2A 03 64 65 66 20 01", {.failing_call = failing});
        EXPECT_EQ(got.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(got.allocator.calls().size(), failing) << "decoding stopped";
        EXPECT_EQ(got.allocator.calls().back().size, failing) << "length + 1";
        ASSERT_NE(got.record.field_5, nullptr) << failing;
        ASSERT_EQ(got.record.field_5_count, 3u) << failing;
        for (std::size_t slot = 0; slot < 3; ++slot) {
            if (slot + 2 < failing)
                EXPECT_STREQ(got.record.field_5[slot], contents[slot]) << failing;
            else
                EXPECT_EQ(got.record.field_5[slot], nullptr) << failing << ", slot " << slot;
        }
        EXPECT_EQ(got.present(), fields(1)) << failing;
        got.free_now();
        EXPECT_EQ(got.allocator.outstanding_count(), 0u) << failing;
    }
}

TEST(field_text_array, a_run_inside_a_nested_record_ends_with_its_span)
{
    decoded<mava_tum_rec_sess_replay_resp> got("1A 03 2A 01 61 1A 06 2A 01 62 2A 01 63 2A 01 64");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE) << "field 5 of the parent is a varint";
    ASSERT_EQ(got.record.field_3_count, 2u);
    EXPECT_EQ(got.record.field_3[0].field_5_count, 1u);
    ASSERT_EQ(got.record.field_3[1].field_5_count, 2u);
    EXPECT_STREQ(got.record.field_3[1].field_5[1], "c");

    decoded<mava_tum_rec_sess_replay_resp> cut("1A 03 2A 02 61 1A 00");
    EXPECT_EQ(cut.result, MAVA_TUM_TRUNCATED) << "the second byte would lie in the parent";
    EXPECT_EQ(cut.record.field_3[0].field_5, nullptr);
}

} // namespace
} // namespace mava_tum_test
