#include "sweeps/check_round_trip.h"

#include "support/guarded_buffer.h"
#include "support/recording_allocator.h"
#include "sweeps/expected_record.h"
#include "sweeps/expected_wire.h"
#include "sweeps/record_storage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace mava_tum_test
{

namespace
{

constexpr uint8_t fill = 0x5A;

// All bits of `flags` except the alias bit must be ignored.
uint32_t random_flags(bool alias, random_source &random)
{
    const uint32_t ignored = static_cast<uint32_t>(random()) & ~uint32_t{MAVA_TUM_ALIAS};
    return alias ? ignored | MAVA_TUM_ALIAS : ignored;
}

// No block is allocated after the first release, so that an address identifies one block.
std::vector<uint64_t> released_sizes(const recording_allocator &memory)
{
    std::map<const void *, uint64_t> sizes;
    for (const recording_allocator::call &call : memory.calls())
        sizes[call.block] = call.size;
    std::vector<uint64_t> released;
    for (const void *block : memory.released())
        released.push_back(sizes[block]);
    return released;
}

bool holds(guarded_buffer &buffer, const byte_vector &expected)
{
    return std::equal(expected.begin(), expected.end(), buffer.data(), buffer.data() + buffer.size());
}

void check_encode(const message &tested, const void *record, const expected_wire &wire, random_source &random)
{
    const std::size_t size = wire.bytes.size();
    const uint32_t flags = random_flags(false, random);
    EXPECT_EQ(tested.encode(record, nullptr, 0, nullptr, nullptr, flags), size);
    const std::size_t capacities[] = {
        size == 0 ? 0 : size - 1, size, size + 1, size + 1 + random() % 20000, random() % (size + 1)};
    for (const std::size_t capacity : capacities) {
        guarded_buffer buffer(capacity, fill);
        EXPECT_EQ(tested.encode(record, buffer.data(), capacity, nullptr, nullptr, flags), size);
        EXPECT_TRUE(holds(buffer, expected_buffer(wire, capacity, fill))) << "capacity " << capacity;
        EXPECT_TRUE(buffer.guards_intact()) << "capacity " << capacity;
    }
}

void check_decode(
    const message &tested, const record_value &sent, const expected_wire &wire, bool alias, random_source &random)
{
    page_end_buffer input(wire.bytes);
    record_storage record(tested, random);
    record_value expected = record.blank();
    allocation_plan plan;
    expect_decode(expected, sent, plan, alias);
    recording_allocator memory;
    const uint32_t flags = random_flags(alias, random);
    EXPECT_EQ(
        tested.decode(record.get(), input.data(), input.size(), recording_allocator::allocate, memory.context(), flags),
        MAVA_TUM_OK);
    EXPECT_TRUE(is_same_record(record.value(), expected));
    EXPECT_EQ(memory.requested_sizes(), plan.sizes);
    for (const mava_tum_bytes &field : tested.collect_bytes(record.get())) {
        const bool in_input = field.data >= input.data() && field.data + field.length <= input.data() + input.size();
        EXPECT_EQ(in_input, alias);
    }

    guarded_buffer again(wire.bytes.size());
    EXPECT_EQ(tested.encode(record.get(), again.data(), again.size(), nullptr, nullptr, 0), wire.bytes.size());
    EXPECT_TRUE(holds(again, wire.bytes)) << "what was received encodes differently";

    tested.free(record.get(), recording_allocator::release, memory.context(), flags);
    EXPECT_EQ(memory.outstanding_count(), 0u);
    EXPECT_EQ(released_sizes(memory), expect_free(expected, alias));
    EXPECT_TRUE(is_same_record(record.value(), expected)) << "after the free";
    const std::size_t released_count = memory.released().size();
    tested.free(record.get(), recording_allocator::release, memory.context(), flags);
    EXPECT_EQ(memory.released().size(), released_count) << "a second free releases again";
}

void check_duplicate(const message &tested, const record_value &original, record_storage &source,
    const expected_wire &wire, random_source &random)
{
    record_storage copy(tested, random);
    record_value expected = copy.blank();
    allocation_plan plan;
    expect_duplicate(expected, original, plan);
    recording_allocator memory;
    EXPECT_EQ(tested.duplicate(copy.get(), source.get(), recording_allocator::allocate, memory.context()), MAVA_TUM_OK);
    EXPECT_TRUE(is_same_record(copy.value(), expected));
    EXPECT_EQ(memory.requested_sizes(), plan.sizes);

    guarded_buffer again(wire.bytes.size());
    EXPECT_EQ(tested.encode(copy.get(), again.data(), again.size(), nullptr, nullptr, 0), wire.bytes.size());
    EXPECT_TRUE(holds(again, wire.bytes)) << "the duplicate encodes differently";

    tested.free(copy.get(), recording_allocator::release, memory.context(), random_flags(false, random));
    EXPECT_EQ(memory.outstanding_count(), 0u);
    EXPECT_EQ(released_sizes(memory), expect_free(expected, false));
    EXPECT_TRUE(is_same_record(copy.value(), expected)) << "after the free";
}

} // namespace

void check_round_trip(const message &tested, const record_value &value, random_source &random)
{
    record_storage source(tested, value);
    const expected_wire wire = wire_of(value);
    check_encode(tested, source.get(), wire, random);
    check_decode(tested, value, wire, false, random);
    check_decode(tested, value, wire, true, random);
    check_duplicate(tested, value, source, wire, random);
    EXPECT_TRUE(is_same_record(source.value(), value)) << "the source has changed";
}

} // namespace mava_tum_test
