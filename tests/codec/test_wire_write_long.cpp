// Long messages: many blocks, long blocks, length prefixes of one to three bytes at several depths. Into large and
// short buffers, compared with the bytes of an independent builder.
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace mava_tum_test
{
namespace
{

// A session context with texts and bytes fields of about `size` bytes at every depth, as wire bytes. Blocks are filled
// with `filler`.
byte_vector context_with_blocks(std::size_t size, std::size_t entries, uint8_t filler)
{
    const auto block = [filler](std::size_t length) { return byte_vector(length, filler); };
    wire_builder session_data;
    session_data.length_delimited(3, wire_builder().varint(1, 1).length_delimited(5, block(size / 2)))
        .length_delimited(4, wire_builder().length_delimited(4, block(3)).length_delimited(19, block(size)))
        .length_delimited(5, block(size + 1))
        .length_delimited(6, block(size / 3))
        .length_delimited(8, block(1))
        .varint(11, 300);

    wire_builder wire;
    wire.varint(1, 1).length_delimited(6, block(size));
    wire.length_delimited(9, wire_builder().length_delimited(2, block(16)).length_delimited(6, block(size)));
    wire.length_delimited(10, session_data);
    for (std::size_t i = 0; i < entries; ++i)
        wire.length_delimited(11, wire_builder().varint(1, i).length_delimited(3, block(size / (i + 1))));
    wire.length_delimited(14, wire_builder().length_delimited(8, block(size)));
    wire.length_delimited(19, wire_builder().varint(1, 1500));
    for (std::size_t i = 0; i < entries; ++i)
        wire.length_delimited(24, wire_builder().length_delimited(3, block(16)).length_delimited(9, block(size)));
    return wire;
}

// The same with a filler that occurs in blocks only, so that every run of it is a block.
struct context_with_known_blocks {
    byte_vector wire;
    uint8_t filler = 0;

    context_with_known_blocks(std::size_t size, std::size_t entries)
    {
        for (uint8_t candidate = 0xD1; candidate != 0; ++candidate) {
            wire = context_with_blocks(size, entries, candidate);
            const byte_vector other = context_with_blocks(size, entries, 0x00);
            bool in_blocks_only = true;
            for (std::size_t i = 0; i < wire.size(); ++i)
                in_blocks_only &= wire[i] != candidate || other[i] != candidate;
            if (in_blocks_only) {
                filler = candidate;
                return;
            }
        }
    }

    // The bytes that an encode into `capacity` bytes writes: those below the capacity, except blocks that reach beyond
    // it.
    std::vector<bool> written(std::size_t capacity) const
    {
        std::vector<bool> expected(capacity, false);
        std::size_t i = 0;
        while (i < std::min(capacity, wire.size())) {
            std::size_t end = i + 1;
            while (wire[i] == filler && end < wire.size() && wire[end] == filler)
                ++end;
            for (; i < std::min(end, capacity); ++i)
                expected[i] = end <= capacity;
            i = end;
        }
        return expected;
    }
};

void expect_capacity(
    const mava_tum_session_context &record, const context_with_known_blocks &model, std::size_t capacity)
{
    const write_trace trace = encode_trace(record, capacity, model.wire.size());
    EXPECT_TRUE(trace.guards_intact) << capacity;
    const std::vector<bool> expected = model.written(capacity);
    EXPECT_EQ(trace.written, expected) << "capacity " << capacity << " of " << model.wire.size();
    for (std::size_t i = 0; i < capacity; ++i) {
        if (expected[i]) {
            ASSERT_EQ(trace.bytes[i], model.wire[i]) << "byte " << i << " of capacity " << capacity;
        }
    }
}

TEST(wire_write_long, a_long_message_is_written_as_its_builder_wrote_it)
{
    for (std::size_t size :
        {0u, 1u, 40u, 126u, 127u, 128u, 129u, 255u, 256u, 257u, 1000u, 4000u, 4096u, 16383u, 16384u, 70000u}) {
        for (std::size_t entries : {0u, 1u, 3u, 40u}) {
            const byte_vector wire = context_with_blocks(size, entries, 'x');
            decoded<mava_tum_session_context> got(wire);
            ASSERT_EQ(got.result, MAVA_TUM_OK);
            EXPECT_TRUE(encoded(got.record) == wire) << size << ", " << entries << " entries";
        }
    }
}

TEST(wire_write_long, every_capacity_receives_whole_bytes_and_whole_blocks_only)
{
    for (std::size_t size : {5u, 60u, 130u}) {
        const context_with_known_blocks model(size, 3);
        ASSERT_NE(model.filler, 0);
        decoded<mava_tum_session_context> got(model.wire);
        for (std::size_t capacity = 0; capacity <= model.wire.size() + 1; ++capacity)
            expect_capacity(got.record, model, capacity);
    }
}

TEST(wire_write_long, capacities_around_the_edges_of_long_blocks_receive_whole_blocks_only)
{
    for (std::size_t size : {700u, 5000u}) {
        const context_with_known_blocks model(size, 4);
        ASSERT_NE(model.filler, 0);
        decoded<mava_tum_session_context> got(model.wire);
        for (std::size_t i = 1; i < model.wire.size(); ++i) {
            const bool is_edge = (model.wire[i - 1] == model.filler) != (model.wire[i] == model.filler);
            if (!is_edge)
                continue;
            for (std::size_t capacity : {i - 1, i, i + 1})
                expect_capacity(got.record, model, capacity);
        }
    }
}

TEST(wire_write_long, an_array_of_many_elements_is_written_whole)
{
    wire_builder wire;
    for (uint64_t i = 0; i < 5000; ++i)
        wire.length_delimited(4, wire_builder().varint(1, i * i).text(2, std::string(i % 200, 'x')));
    decoded<mava_tum_sub_route> got(wire);
    ASSERT_EQ(got.record.ipv4_route_count, 5000u);
    EXPECT_TRUE(encoded(got.record) == wire.bytes());
}

} // namespace
} // namespace mava_tum_test
