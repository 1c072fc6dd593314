// Does an encoder stay inside its buffer for every capacity, and always return the full size?
#include "support/guarded_buffer.h"
#include "sweeps/expected_wire.h"
#include "sweeps/message_list.h"
#include "sweeps/random_records.h"
#include "sweeps/record_storage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace mava_tum_test
{

namespace
{

constexpr uint32_t segment_capacity = 256;

class every_capacity : public testing::TestWithParam<message>
{
};

class every_capacity_for_long_records : public testing::TestWithParam<message>
{
};

// Messages without bytes fields have no gather mode: both modes have the same output.
wire_mode wire_mode_of(const message &tested, uint32_t flags)
{
    return flags == MAVA_TUM_ALIAS && holds_bytes(*tested.skeleton) ? wire_mode::gathered : wire_mode::copied;
}

testing::AssertionResult matches(guarded_buffer &buffer, const byte_vector &expected)
{
    for (std::size_t i = 0; i < expected.size(); ++i) {
        if (buffer.data()[i] != expected[i])
            return testing::AssertionFailure() << "byte " << i << " is " << hex_of(buffer.data() + i, 1)
                                               << ", expected " << hex_of(expected.data() + i, 1);
    }
    return testing::AssertionSuccess();
}

void check_capacity(const message &tested, const void *record, const expected_wire &wire, std::size_t capacity,
    uint32_t flags, bool with_segments)
{
    // Two fills: a byte that is wrongly written with the same value as the fill differs from the other fill.
    for (const uint8_t fill : {uint8_t{0x00}, uint8_t{0xFF}}) {
        guarded_buffer buffer(capacity, fill);
        std::array<mava_tum_segment, segment_capacity> segments{};
        uint32_t segment_count = segment_capacity;
        const uint64_t size = tested.encode(record, buffer.data(), capacity, with_segments ? segments.data() : nullptr,
            with_segments ? &segment_count : nullptr, flags);
        EXPECT_EQ(size, wire.bytes.size());
        EXPECT_TRUE(matches(buffer, expected_buffer(wire, capacity, fill)));
        EXPECT_TRUE(buffer.guards_intact());
        EXPECT_EQ(segment_count, with_segments ? wire.segment_count : segment_capacity);
    }
}

void check_every_capacity(const message &tested, const named_record &seed, uint32_t flags)
{
    record_storage record(tested, seed.value);
    const expected_wire wire = wire_of(seed.value, wire_mode_of(tested, flags));
    // The last one is one more than needed.
    const std::size_t end = wire.bytes.size() + 2;
    const std::size_t step = end > 2000 ? MAVA_TUM_WORK_DIVISOR : 1;
    for (std::size_t capacity = (end - 1) % step; capacity < end; capacity += step) {
        SCOPED_TRACE(
            seed.name + " record of " + std::to_string(wire.bytes.size()) + " bytes into " + std::to_string(capacity));
        check_capacity(tested, record.get(), wire, capacity, flags, false);
        check_capacity(tested, record.get(), wire, capacity, flags, true);
        if (testing::Test::HasFailure())
            return;
    }
}

void check_every_capacity(const message &tested, uint32_t flags)
{
    for (const named_record &seed : seeds_of(*tested.skeleton))
        check_every_capacity(tested, seed, flags);
}

TEST_P(every_capacity, is_kept_to_when_bytes_are_copied)
{
    check_every_capacity(GetParam(), 0);
}

TEST_P(every_capacity, is_kept_to_when_bytes_are_gathered)
{
    check_every_capacity(GetParam(), MAVA_TUM_ALIAS);
}

// Extends a field to several kilobytes on the wire, by many elements or by one block. Returns whether that is possible.
bool make_long(field_value &field)
{
    const std::size_t block_bytes = field.number % 2 == 0 ? 2500 : 9000;
    // 5 kB: each further kilobyte would add a thousand capacities.
    const auto count_for = [](std::size_t element_bytes) {
        return std::clamp<std::size_t>(5000 / element_bytes, 6, 40);
    };
    if (field.kind == field_kind::records) {
        field.records.resize(count_for(wire_of(field.records.front()).bytes.size()), field.records.front());
        field.integer = field.records.size();
    } else if (field.kind == field_kind::texts) {
        field.texts.back()->resize(block_bytes, 'x');
        field.texts.resize(40, field.texts.front());
        field.integer = field.texts.size();
    } else if (field.content) {
        field.content->resize(block_bytes, 'x');
        field.integer = field.kind == field_kind::bytes ? field.content->size() : 0;
    } else {
        return false;
    }
    return true;
}

// Long enough for an encoder that writes in several parts.
std::vector<named_record> long_records_of(const message &tested)
{
    const record_value full = full_record(*tested.skeleton);
    std::vector<named_record> records;
    for (std::size_t i = 0; i < full.fields.size(); ++i) {
        named_record record = {"long field " + std::to_string(full.fields[i].number), full};
        if (make_long(record.value.fields[i]))
            records.push_back(record);
    }
    return records;
}

TEST_P(every_capacity_for_long_records, is_kept_to)
{
    for (const named_record &record : long_records_of(GetParam()))
        check_every_capacity(GetParam(), record, 0);
}

TEST_P(every_capacity, is_not_needed_to_learn_the_size)
{
    const message &tested = GetParam();
    for (const named_record &seed : seeds_of(*tested.skeleton)) {
        SCOPED_TRACE(seed.name);
        record_storage record(tested, seed.value);
        for (const uint32_t flags : {uint32_t{0}, uint32_t{MAVA_TUM_ALIAS}}) {
            const expected_wire wire = wire_of(seed.value, wire_mode_of(tested, flags));
            EXPECT_EQ(tested.encode(record.get(), nullptr, 0, nullptr, nullptr, flags), wire.bytes.size());
            uint32_t segment_count = 0;
            EXPECT_EQ(tested.encode(record.get(), nullptr, 0, nullptr, &segment_count, flags), wire.bytes.size());
            EXPECT_EQ(segment_count, wire.segment_count);
        }
    }
}

struct gathered_segments {
    std::array<mava_tum_segment, segment_capacity> stored;
    uint32_t count;
};

gathered_segments gather(const message &tested, const void *record, guarded_buffer &buffer, uint32_t capacity)
{
    gathered_segments segments;
    segments.stored.fill({nullptr, 0xABABABAB});
    segments.count = capacity;
    tested.encode(record, buffer.data(), buffer.size(), segments.stored.data(), &segments.count, MAVA_TUM_ALIAS);
    return segments;
}

TEST_P(every_capacity, of_segments_is_kept_to_and_all_segments_are_counted)
{
    const message &tested = GetParam();
    for (const named_record &seed : seeds_of(*tested.skeleton)) {
        record_storage record(tested, seed.value);
        const expected_wire wire = wire_of(seed.value, wire_mode_of(tested, MAVA_TUM_ALIAS));
        guarded_buffer buffer(wire.bytes.size());
        const gathered_segments all = gather(tested, record.get(), buffer, segment_capacity);
        ASSERT_LE(all.count, segment_capacity) << seed.name;
        for (uint32_t capacity = 0; capacity <= all.count + 1; ++capacity) {
            SCOPED_TRACE(seed.name + " record, room for " + std::to_string(capacity) + " segments");
            const gathered_segments some = gather(tested, record.get(), buffer, capacity);
            EXPECT_EQ(some.count, wire.segment_count);
            for (uint32_t i = 0; i < segment_capacity; ++i) {
                const bool stored = i < capacity && i < all.count;
                EXPECT_EQ(some.stored[i].data, stored ? all.stored[i].data : nullptr) << "segment " << i;
                EXPECT_EQ(some.stored[i].length, stored ? all.stored[i].length : 0xABABABAB) << "segment " << i;
            }
        }
    }
}

bool lies_in(const mava_tum_segment &segment, guarded_buffer &buffer)
{
    const uintptr_t start = reinterpret_cast<uintptr_t>(buffer.data());
    const uintptr_t position = reinterpret_cast<uintptr_t>(segment.data);
    return position >= start && position + segment.length <= start + buffer.size();
}

TEST_P(every_capacity, gathers_each_bytes_field_from_the_record_itself_in_wire_order)
{
    const message &tested = GetParam();
    for (const named_record &seed : seeds_of(*tested.skeleton)) {
        SCOPED_TRACE(seed.name);
        record_storage record(tested, seed.value);
        guarded_buffer buffer(wire_of(seed.value).bytes.size());
        const gathered_segments segments = gather(tested, record.get(), buffer, segment_capacity);
        std::vector<mava_tum_bytes> outside;
        for (uint32_t i = 0; i < segments.count; ++i) {
            if (!lies_in(segments.stored[i], buffer))
                outside.push_back({const_cast<uint8_t *>(segments.stored[i].data), segments.stored[i].length});
        }
        const std::vector<mava_tum_bytes> expected = tested.collect_bytes(record.get());
        ASSERT_EQ(outside.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i) {
            EXPECT_EQ(outside[i].data, expected[i].data) << "bytes field " << i;
            EXPECT_EQ(outside[i].length, expected[i].length) << "bytes field " << i;
        }
    }
}

bool can_be_long(const message &tested)
{
    return !long_records_of(tested).empty();
}

INSTANTIATE_TEST_SUITE_P(of, every_capacity, testing::ValuesIn(all_messages()), name_of_message);
INSTANTIATE_TEST_SUITE_P(
    of, every_capacity_for_long_records, testing::ValuesIn(messages_where(can_be_long)), name_of_message);

} // namespace

} // namespace mava_tum_test
