// Arrays of texts: encode, duplicate and free.
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <string>

namespace mava_tum_test
{
namespace
{


// Texts of one, two and three characters, and between them a null element of an earlier failure.
struct start_with_texts {
    std::array<std::string, 3> contents = {"a", "bc", "def"};
    std::array<char *, 4> slots = {contents[0].data(), contents[1].data(), nullptr, contents[2].data()};
    mava_tum_sess_svc_start record{};

    start_with_texts()
    {
        record.field_1 = 1;
        record.field_5 = slots.data();
        record.field_5_count = 4;
        mark_present(record, 1, 5);
    }
};

TEST(field_text_array, encode_needs_both_bit_and_count)
{
    const start_with_texts source;
    mava_tum_sess_svc_start record = source.record;
    record.presence_mask = 0;
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u) << "count without bit";
    mark_present(record, 5);
    record.field_5_count = 0;
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u) << "bit and pointer without count";
    record.field_5 = nullptr;
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u) << "bit alone";
    record.field_5 = source.record.field_5;
    record.field_5_count = 2;
    EXPECT_EQ(encoded_hex(record), "2A 01 61 2A 02 62 63") << "as many as the count says";
}

TEST(field_text_array, encode_writes_empty_texts_and_leaves_null_slots_out)
{
    std::string empty;
    start_with_texts source;
    EXPECT_EQ(encoded_hex(source.record), "08 01 2A 01 61 2A 02 62 63 2A 03 64 65 66");
    source.slots = {nullptr, empty.data(), empty.data(), nullptr};
    EXPECT_EQ(encoded_hex(source.record), "08 01 2A 00 2A 00");
    source.slots.fill(nullptr);
    EXPECT_EQ(encoded_hex(source.record), "08 01");
}

TEST(field_text_array, encode_into_a_short_buffer_leaves_out_a_text_that_does_not_fit_whole)
{
    const start_with_texts source;
    const byte_vector whole = bytes_of("08 01 2A 01 61 2A 02 62 63 2A 03 64 65 66");
    // Capacities that end inside a text of more than one character, and the number of bytes that are written.
    const std::map<std::size_t, std::size_t> cut_texts = {{8, 7}, {12, 11}, {13, 11}};
    for (std::size_t capacity = 0; capacity <= whole.size() + 1; ++capacity) {
        const auto cut = cut_texts.find(capacity);
        const std::size_t written = cut == cut_texts.end() ? whole.size() : cut->second;
        const write_trace trace = encode_trace(source.record, capacity, whole.size());
        EXPECT_TRUE(trace.guards_intact);
        EXPECT_EQ(hex_of(trace), prefix_hex(byte_vector(whole.data(), whole.data() + written), capacity)) << capacity;
    }
}

TEST(field_text_array, encode_writes_many_and_long_texts)
{
    std::vector<std::string> contents;
    for (std::size_t i = 0; i < 600; ++i)
        contents.push_back(std::string(i % 50 == 49 ? 20'000 + i : i, static_cast<char>('a' + i % 26)));
    std::vector<char *> slots;
    wire_builder expected;
    for (std::string &content : contents) {
        slots.push_back(content.data());
        expected.text(5, content);
    }
    mava_tum_sess_svc_start record{};
    record.field_5 = slots.data();
    record.field_5_count = 600;
    mark_present(record, 5);
    EXPECT_TRUE(encoded(record) == expected.bytes());

    decoded<mava_tum_sess_svc_start> got(expected);
    ASSERT_EQ(got.record.field_5_count, 600u);
    for (std::size_t i = 0; i < 600; ++i)
        ASSERT_EQ(contents[i], got.record.field_5[i]);
}

TEST(field_text_array, duplicate_obtains_the_pointers_and_then_each_text_that_there_is)
{
    const start_with_texts source;
    duplicated<mava_tum_sess_svc_start> copy(source.record);
    EXPECT_EQ(copy.result, MAVA_TUM_OK) << "a null slot is no failure";
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{4 * pointer_bytes, 2, 3, 4}));
    ASSERT_EQ(copy.record.field_5_count, 4u);
    EXPECT_TRUE(copy.allocator.is_outstanding(copy.record.field_5));
    EXPECT_EQ(copy.record.field_5[2], nullptr);
    for (std::size_t slot : {0u, 1u, 3u})
        EXPECT_TRUE(copy.allocator.is_outstanding(copy.record.field_5[slot])) << slot;
    EXPECT_EQ(encoded(copy.record), encoded(source.record));
    EXPECT_EQ(copy.present(), fields(1, 5));
}

TEST(field_text_array, duplicate_goes_by_the_count_alone)
{
    start_with_texts source;
    source.record.presence_mask = static_cast<uint8_t>(fields(1));
    duplicated<mava_tum_sess_svc_start> unmarked(source.record);
    EXPECT_EQ(unmarked.result, MAVA_TUM_OK);
    EXPECT_EQ(unmarked.record.field_5_count, 4u) << "copied, although its bit is clear";
    EXPECT_EQ(unmarked.present(), fields(1));

    source.record.field_5_count = 0; // the pointer remains
    source.record.presence_mask = static_cast<uint8_t>(fields(5));
    duplicated<mava_tum_sess_svc_start> empty(source.record, {.allocator_given = false});
    EXPECT_EQ(empty.result, MAVA_TUM_OK);
    EXPECT_EQ(empty.record.field_5, nullptr);
    EXPECT_EQ(empty.record.field_5_count, 0u);
    EXPECT_EQ(empty.present(), fields(5)) << "the bit is copied as it stands";
    EXPECT_TRUE(empty.allocator.calls().empty());
}

TEST(field_text_array, a_failed_duplicate_of_the_pointers_is_empty_and_absent)
{
    const start_with_texts source;
    for (bool allocator_given : {true, false}) {
        duplicated<mava_tum_sess_svc_start> copy(
            source.record, {.allocator_given = allocator_given, .failing_call = 1});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
        EXPECT_EQ(copy.allocator.calls().size(), allocator_given ? 1u : 0u) << "no text is asked for";
        EXPECT_EQ(copy.record.field_5, nullptr);
        EXPECT_EQ(copy.record.field_5_count, 0u);
        EXPECT_EQ(copy.record.field_1, 1u);
        EXPECT_EQ(copy.present(), fields(1));
    }
}

TEST(field_text_array, duplicate_asks_for_the_whole_size_of_an_array_above_4_gib)
{
    constexpr uint64_t count = (uint64_t{1} << 32) / pointer_bytes + 1;
    char *never_read = nullptr; // there is no block to copy it to
    mava_tum_sess_svc_start source{};
    source.field_5 = &never_read;
    source.field_5_count = static_cast<uint32_t>(count);
    mark_present(source, 5);
    duplicated<mava_tum_sess_svc_start> copy(source);
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{count * pointer_bytes}));
    EXPECT_EQ(copy.record.field_5_count, 0u);
    EXPECT_EQ(copy.present(), 0u);
}

TEST(field_text_array, a_failed_duplicate_of_a_text_leaves_its_slot_null_and_copies_the_others)
{
    const start_with_texts source;
    const char *contents[] = {"a", "bc", nullptr, "def"};
    const std::size_t slot_of_call[] = {0, 1, 3};
    for (std::size_t failing = 2; failing <= 4; ++failing) {
        duplicated<mava_tum_sess_svc_start> copy(source.record, {.failing_call = failing});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(copy.allocator.calls().size(), 4u) << "the remaining texts are copied";
        EXPECT_EQ(copy.present(), fields(1, 5)) << "array, count and bit stay";
        ASSERT_EQ(copy.record.field_5_count, 4u);
        for (std::size_t slot = 0; slot < 4; ++slot) {
            if (slot == slot_of_call[failing - 2] || contents[slot] == nullptr)
                EXPECT_EQ(copy.record.field_5[slot], nullptr) << failing << ", slot " << slot;
            else
                EXPECT_STREQ(copy.record.field_5[slot], contents[slot]) << failing;
        }
    }
}

TEST(field_text_array, free_releases_each_text_in_order_and_then_the_pointers)
{
    decoded<mava_tum_sess_svc_start> got("08 01 2A 01 61 2A 00 2A 01 62");
    ASSERT_EQ(got.result, MAVA_TUM_OK);
    char *const *slots = got.record.field_5;
    const std::vector<const void *> expected = {slots[0], slots[1], slots[2], slots};
    got.free_now();
    EXPECT_EQ(got.allocator.released(), expected);
    EXPECT_EQ(got.record.field_5, nullptr);
    EXPECT_EQ(got.record.field_5_count, 0u);
    EXPECT_EQ(got.record.field_1, 1u);
    EXPECT_EQ(got.present(), fields(1, 5)) << "bits stay";
    got.free_now();
    EXPECT_EQ(got.allocator.released().size(), expected.size());
}

TEST(field_text_array, free_skips_null_slots)
{
    const start_with_texts source;
    duplicated<mava_tum_sess_svc_start> copy(source.record);
    char *const *slots = copy.record.field_5;
    const std::vector<const void *> expected = {slots[0], slots[1], slots[3], slots};
    free_record(copy.record, copy.allocator);
    EXPECT_EQ(copy.allocator.released(), expected);
}

TEST(field_text_array, free_of_a_null_array_with_a_count_releases_nothing_and_zeroes_the_count)
{
    mava_tum_sess_svc_start record{};
    record.field_5_count = 3;
    recording_allocator allocator;
    free_record(record, allocator);
    EXPECT_TRUE(allocator.released().empty());
    EXPECT_EQ(record.field_5_count, 0u);
}

} // namespace
} // namespace mava_tum_test
