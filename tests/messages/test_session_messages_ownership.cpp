// session_context: duplicate and free.
#include "support/full_session_context.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using context_decode = decoded<mava_tum_session_context>;
using context_copy = duplicated<mava_tum_session_context>;

constexpr uint32_t every_field = all_own_bits<mava_tum_session_context>;

// The sizes that a duplicate requests if call number `failing` fails: a missing array has no elements to copy.
std::vector<uint64_t> sizes_of_a_duplicate(std::size_t failing)
{
    std::vector<uint64_t> sizes;
    uint32_t missing_array = 0;
    const std::vector<allocation_row> &rows = full_session_context_allocations();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].field == missing_array)
            continue;
        sizes.push_back(rows[i].size);
        if (i + 1 == failing && rows[i].array)
            missing_array = rows[i].field;
    }
    return sizes;
}

TEST(session_context, duplicate_copies_everything_in_schema_order)
{
    for (uint32_t flags : {0u, alias}) {
        context_decode source(full_session_context(), {.flags = flags});
        context_copy copy(source.record);
        EXPECT_EQ(copy.result, MAVA_TUM_OK);
        EXPECT_EQ(copy.allocator.requested_sizes(), sizes_of_a_duplicate(0));
        EXPECT_EQ(copy.present(), every_field);
        EXPECT_EQ(hex_of(encoded(copy.record)), hex_of(full_session_context()));
        for (const void *block : full_session_context_blocks(copy.record))
            EXPECT_TRUE(copy.allocator.is_outstanding(block)) << "a copy owns all it points to";
    }
}

TEST(session_context, duplicate_loses_exactly_what_could_not_be_copied)
{
    context_decode source(full_session_context());
    const std::vector<allocation_row> &rows = full_session_context_allocations();
    for (std::size_t failing = 1; failing <= rows.size(); ++failing) {
        const allocation_row &row = rows[failing - 1];
        context_copy copy(source.record, {.failing_call = failing});
        EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY) << failing;
        EXPECT_EQ(copy.allocator.requested_sizes(), sizes_of_a_duplicate(failing)) << failing;
        // Bits of nested records are always copied; a field of the record itself that failed loses its bit.
        const bool own_field = row.field == 6 || row.array;
        EXPECT_EQ(copy.present(), own_field ? every_field & ~fields(row.field) : every_field) << failing;
        EXPECT_EQ(copy.record.field_7, 7u);
        EXPECT_EQ(copy.record.acct.field_1, 22u) << failing;
    }
}

TEST(session_context, duplicate_without_an_allocator_keeps_the_scalars_of_all_depths)
{
    context_decode source(full_session_context());
    context_copy copy(source.record, {.allocator_given = false});
    EXPECT_EQ(copy.result, MAVA_TUM_NO_MEMORY);
    EXPECT_EQ(copy.present(), every_field & ~fields(6, 11, 23, 24));
    EXPECT_EQ(copy.record.field_6.length, 0u);
    EXPECT_EQ(copy.record.qos, nullptr);
    EXPECT_EQ(copy.record.qos_count, 0u);
    EXPECT_EQ(copy.record.route_ipv6, nullptr);
    EXPECT_EQ(copy.record.route_ipv6_count, 0u);
    EXPECT_EQ(copy.record.subscriber_v4.field_1, 8u);
    EXPECT_EQ(copy.record.session_data.field_1, 101u);
    EXPECT_EQ(copy.record.session_data.vlan.field_1, 103u);
    EXPECT_EQ(own_bits(copy.record.subscriber_v6), 0u);
    EXPECT_EQ(own_bits(copy.record.li), 0u);
}

TEST(session_context, duplicate_of_empty_arrays_and_an_empty_field_6_copies_their_bits)
{
    mava_tum_session_context source{};
    mark_present(source, 6, 11, 23, 24);
    context_copy copy(source, {.allocator_given = false});
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.present(), fields(6, 11, 23, 24));
    EXPECT_EQ(copy.record.qos, nullptr);
    EXPECT_EQ(copy.record.field_6.data, nullptr);
}

TEST(session_context, field_6_in_alias_mode_is_borrowed_not_released_and_copied_by_duplicate)
{
    context_decode got("32 02 AA BB", {.flags = alias});
    EXPECT_EQ(got.record.field_6.data, got.wire.data() + 2);
    context_copy copy(got.record);
    EXPECT_EQ(copy.allocator.requested_sizes(), (std::vector<uint64_t>{2}));
    EXPECT_EQ(hex_of(content_of(copy.record.field_6)), "AA BB");
    EXPECT_TRUE(copy.allocator.is_outstanding(copy.record.field_6.data));

    got.free_now();
    EXPECT_TRUE(got.allocator.released().empty());
    EXPECT_EQ(got.record.field_6.data, got.wire.data() + 2);
}

// Blocks in the order of their release: schema order, each element's blocks before its array.
std::vector<const void *> release_order(const mava_tum_session_context &record, uint32_t flags)
{
    const std::vector<const void *> blocks = full_session_context_blocks(record);
    const std::vector<allocation_row> &rows = full_session_context_allocations();
    std::vector<const void *> order;
    const void *array = nullptr;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].array)
            array = blocks[i];
        else if (!rows[i].bytes || (flags & alias) == 0)
            order.push_back(blocks[i]);
        const bool last_of_field = i + 1 == rows.size() || rows[i + 1].field != rows[i].field;
        if (last_of_field && array != nullptr) {
            order.push_back(array);
            array = nullptr;
        }
    }
    return order;
}

TEST(session_context, free_releases_in_schema_order_with_elements_before_their_array_and_once)
{
    for (uint32_t flags : {0u, alias}) {
        context_decode got(full_session_context(), {.flags = flags});
        const std::vector<const void *> expected = release_order(got.record, flags);
        EXPECT_EQ(expected.size(), flags == 0 ? 19u : 13u);
        got.free_now();
        EXPECT_EQ(got.allocator.released(), expected) << "flags " << flags;
        EXPECT_EQ(got.allocator.outstanding_count(), 0u);
        got.free_now();
        EXPECT_EQ(got.allocator.released().size(), expected.size()) << "flags " << flags;
    }
}

TEST(session_context, free_zeroes_pointers_and_array_counts_and_nothing_else)
{
    context_decode got(full_session_context());
    const uint32_t mask = got.record.presence_mask;
    got.free_now();
    EXPECT_EQ(got.record.field_6.data, nullptr);
    EXPECT_EQ(got.record.field_6.length, 1u);
    EXPECT_EQ(got.record.qos, nullptr);
    EXPECT_EQ(got.record.qos_count, 0u);
    EXPECT_EQ(got.record.route_ipv4, nullptr);
    EXPECT_EQ(got.record.route_ipv4_count, 0u);
    EXPECT_EQ(got.record.route_ipv6, nullptr);
    EXPECT_EQ(got.record.route_ipv6_count, 0u);
    EXPECT_EQ(got.record.acl.field_2, nullptr);
    EXPECT_EQ(got.record.session_data.field_6.length, 6u);
    EXPECT_EQ(got.record.acct.field_1, 22u);
    EXPECT_EQ(got.record.presence_mask, mask);
    EXPECT_EQ(own_bits(got.record.session_data.l2tp), fields(19));
}

TEST(session_context, decode_drops_what_the_record_pointed_to_before)
{
    recording_allocator allocator;
    allocator.allow_outstanding();
    mava_tum_session_context record{};
    const byte_vector first = bytes_of("32 02 AA BB");
    EXPECT_EQ(mava_tum_session_context_decode_ext(
                  &record, first.data(), first.size(), recording_allocator::allocate, allocator.context(), 0),
        MAVA_TUM_OK);
    EXPECT_EQ(
        mava_tum_session_context_decode_ext(&record, nullptr, 0, recording_allocator::allocate, allocator.context(), 0),
        MAVA_TUM_OK);
    EXPECT_EQ(record.field_6.data, nullptr);
    EXPECT_EQ(allocator.outstanding_count(), 1u);
}

} // namespace
} // namespace mava_tum_test
