// Does the proved C of the exact path and the varints do the same as the library? Every capacity, values and payloads
// at the edges, positions that wrap around: the same position, and the same bytes in the buffer and around it.
#include "codec/exact_writer.h"
#include "codec/wire_write.h"
#include "support/guarded_buffer.h"

extern "C" {
#include "proof_exact_writer.h"
}

#include <gtest/gtest.h>

#include <functional>

namespace mava_tum_test
{

namespace
{

using library_writer = mava_tum::exact_writer;
using proved_writer = ::exact_writer;

// Fields 1, 15, 16 and the highest with two bytes.
constexpr mava_tum::field_tag tags[] = {
    make_field_tag(1, mava_tum::wire_type::varint),
    make_field_tag(15, mava_tum::wire_type::length_delimited),
    make_field_tag(16, mava_tum::wire_type::varint),
    make_field_tag(2047, mava_tum::wire_type::fixed32),
};

field_tag proved_tag(mava_tum::field_tag tag)
{
    return {tag.bytes, tag.length};
}

// The same calls for both.
struct script {
    std::function<void(library_writer &)> library;
    std::function<void(proved_writer &)> proved;
};

void expect_same(const script &calls, std::size_t capacity, uint64_t position)
{
    guarded_buffer expected(capacity);
    guarded_buffer proved(capacity);
    library_writer library = {expected.data(), capacity, mava_tum::output_mode::copy, {}, position};
    proved_writer transcription = {proved.data(), capacity, position};
    calls.library(library);
    calls.proved(transcription);
    ASSERT_EQ(transcription.position, library.position) << capacity << " bytes, from " << position;
    ASSERT_EQ(proved.content(), expected.content()) << capacity << " bytes, from " << position;
    ASSERT_TRUE(proved.guards_intact() && expected.guards_intact()) << capacity << " bytes, from " << position;
}

// From each position of a buffer, into each capacity, and from the positions where a sum wraps around.
void expect_same_everywhere(const script &calls, std::size_t longest_bytes)
{
    for (std::size_t capacity = 0; capacity <= longest_bytes + 1; ++capacity) {
        for (uint64_t position = 0; position <= capacity + 1; ++position) {
            expect_same(calls, capacity, position);
            expect_same(calls, capacity, ~position);
        }
    }
}

std::vector<uint64_t> edge_values()
{
    std::vector<uint64_t> values = {0, 1, ~uint64_t{0}};
    for (uint32_t bits = 1; bits < 64; ++bits)
        values.insert(values.end(), {(uint64_t{1} << bits) - 1, uint64_t{1} << bits, (uint64_t{1} << bits) + 1});
    return values;
}

TEST(proof_exact_writer, single_values_are_written_as_by_the_library)
{
    for (const uint64_t value : edge_values()) {
        const auto low = static_cast<uint32_t>(value);
        for (const mava_tum::field_tag tag : tags) {
            expect_same_everywhere(
                {[&](library_writer &writer) { writer.varint_field(tag, value); },
                    [&](proved_writer &writer) { proof_writer_varint_field(&writer, proved_tag(tag), value); }},
                12);
            expect_same_everywhere(
                {[&](library_writer &writer) { writer.fixed32_field(tag, low); },
                    [&](proved_writer &writer) { proof_writer_fixed32_field(&writer, proved_tag(tag), low); }},
                6);
        }
    }
}

TEST(proof_exact_writer, blocks_are_written_as_by_the_library)
{
    const byte_vector payload = bytes_of("C0 C1 C2 C3 C4 C5 C6 C7 C8 C9");
    for (const mava_tum::field_tag tag : tags) {
        for (std::size_t length = 0; length <= payload.size(); ++length) {
            for (const uint8_t *data : {payload.data(), static_cast<const uint8_t *>(nullptr)}) {
                expect_same_everywhere(
                    {[&](library_writer &writer) { writer.block(tag, data, length); },
                        [&](proved_writer &writer) { proof_writer_block(&writer, proved_tag(tag), data, length); }},
                    length + 6);
            }
        }
    }
}

TEST(proof_exact_writer, lengths_without_a_payload_are_counted_as_by_the_library)
{
    for (const uint64_t length : edge_values()) {
        expect_same_everywhere(
            {[&](library_writer &writer) { writer.block(tags[0], nullptr, length); },
                [&](proved_writer &writer) { proof_writer_block(&writer, proved_tag(tags[0]), nullptr, length); }},
            8);
    }
}

TEST(proof_exact_writer, a_nested_message_is_started_as_by_the_library)
{
    for (const uint64_t bytes : edge_values()) {
        bool expected = false;
        expect_same_everywhere({[&](library_writer &writer) { expected = writer.start_nested(tags[1], bytes); },
                                   [&](proved_writer &writer) {
                                       const bool proved = proof_writer_start_nested(&writer, proved_tag(tags[1]), bytes);
                                       EXPECT_EQ(proved, expected) << bytes;
                                   }},
            8);
    }
}

TEST(proof_exact_writer, a_nested_writer_has_the_rest_of_the_buffer_as_in_the_library)
{
    uint8_t buffer[8];
    for (uint64_t length = 0; length <= sizeof buffer; ++length) {
        for (uint64_t position : {uint64_t{0}, uint64_t{1}, length - 1, length, length + 1, ~uint64_t{0}}) {
            const library_writer library = {buffer, length, mava_tum::output_mode::copy, {}, position};
            const proved_writer transcription = {buffer, length, position};
            const library_writer expected = library.nested(mava_tum::output_mode::gather);
            const proved_writer proved = proof_writer_nested(&transcription);
            EXPECT_EQ(proved.buffer, expected.buffer) << length << ", " << position;
            EXPECT_EQ(proved.length, expected.length) << length << ", " << position;
            EXPECT_EQ(proved.position, expected.position) << length << ", " << position;
        }
    }
}

TEST(proof_exact_writer, varints_have_the_size_and_the_bytes_of_the_library)
{
    for (const uint64_t value : edge_values()) {
        ASSERT_EQ(proof_varint_bytes(value), mava_tum::varint_bytes(value)) << value;
        guarded_buffer expected(10);
        guarded_buffer proved(10);
        ASSERT_EQ(proof_store_varint(proved.data(), value) - proved.data(),
            mava_tum::store_varint(expected.data(), value) - expected.data())
            << value;
        ASSERT_EQ(proved.content(), expected.content()) << value;
    }
}

// All eight bytes of the word, also those after the varint.
TEST(proof_exact_writer, counters_are_put_as_by_the_library)
{
    for (const uint64_t value : edge_values()) {
        const auto counter = static_cast<uint32_t>(value);
        for (const mava_tum::field_tag tag : tags) {
            guarded_buffer expected(8);
            guarded_buffer proved(8);
            ASSERT_EQ(proof_put_counter(proved.data(), proved_tag(tag), counter) - proved.data(),
                mava_tum::put_counter(expected.data(), tag, counter) - expected.data())
                << counter;
            ASSERT_EQ(proved.content(), expected.content()) << counter;
        }
    }
}

} // namespace

} // namespace mava_tum_test
