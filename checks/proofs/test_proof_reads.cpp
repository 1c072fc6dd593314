// Does the proved C of the reads do the same as the library? Every input of up to 3 bytes, and longer ones at the
// edges: the same position, value and result, with the input directly before an inaccessible page.
#include "codec/array_run.h"
#include "codec/read_varint64.h"
#include "codec/skip_unknown_field.h"
#include "codec/wire_read.h"
#include "support/guarded_buffer.h"

extern "C" {
#include "proof_array_run.h"
#include "proof_read_varint64.h"
#include "proof_skip_unknown_field.h"
#include "proof_wire_read.h"
}

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace mava_tum_test
{

namespace
{

constexpr std::size_t longest_bytes = 64;

// An input that ends directly before an inaccessible page.
class input
{
public:
    void assign(const byte_vector &bytes)
    {
        length_ = bytes.size();
        std::copy(bytes.begin(), bytes.end(), end() - length_);
    }

    // `number` in little-endian order.
    void assign(uint32_t number, std::size_t length)
    {
        length_ = length;
        for (std::size_t i = 0; i < length; ++i)
            end()[static_cast<std::ptrdiff_t>(i) - static_cast<std::ptrdiff_t>(length)] =
                static_cast<uint8_t>(number >> 8 * i);
    }

    const uint8_t *begin()
    {
        return end() - length_;
    }

    uint8_t *end()
    {
        return memory_.data() + longest_bytes;
    }

    std::string hex()
    {
        return hex_of(begin(), length_);
    }

private:
    page_end_buffer memory_{longest_bytes};
    std::size_t length_ = 0;
};

template <class library_read, class proved_read>
bool same_varint(const library_read &expected, const proved_read &proved)
{
    return expected.next == proved.next && expected.value == proved.value;
}

bool same_lengths(const uint8_t *at, const uint8_t *end)
{
    const mava_tum::payload expected = mava_tum::read_payload(at, end);
    const payload proved = proof_read_payload(at, end);
    return expected.data == proved.data && expected.length == proved.length &&
           mava_tum::is_short_payload(at, end) == (proof_is_short_payload(at, end) != 0) &&
           same_varint(mava_tum::read_length_varint(at, end), proof_read_length_varint(at, end));
}

bool same_skips(const uint8_t *at, const uint8_t *end)
{
    for (uint32_t type = 0; type < 8; ++type) {
        const mava_tum::field_read expected =
            mava_tum::skip_unknown_field(static_cast<mava_tum::wire_type>(type), at, end);
        const field_read proved = proof_skip_unknown_field(type, at, end);
        if (expected.next != proved.next || expected.failure != proved.failure)
            return false;
    }
    return true;
}

bool same_payload(const mava_tum::payload &expected, const payload &proved)
{
    return expected.data == proved.data && expected.length == proved.length;
}

follower proved_name_of(mava_tum::run_position::follower answer)
{
    using library = mava_tum::run_position::follower;
    return answer == library::element       ? follower_element
           : answer == library::other_field ? follower_other_field
                                            : follower_truncated;
}

// One step of each kind, and the count.
bool same_runs(const uint8_t *at, const uint8_t *end, uint32_t field_number)
{
    mava_tum::run_position library{at, end, field_number};
    run_position transcription{at, end, field_number};
    if (proved_name_of(library.next()) != proof_run_next(&transcription) || library.at != transcription.at)
        return false;
    if (!same_payload(library.element(), proof_run_element(&transcription)) || library.at != transcription.at)
        return false;
    const auto ends_a_tag = [](uint8_t byte) { return byte < 0x80; };
    if (library.at != nullptr && std::any_of(library.at, end, ends_a_tag)) {
        library.step_over_tag();
        proof_run_step_over_tag(&transcription);
        if (library.at != transcription.at)
            return false;
    }
    const mava_tum::run_count expected = mava_tum::count_run(at, end, field_number);
    const run_count proved = proof_count_run(at, end, field_number);
    return expected.elements == proved.elements && expected.is_whole == proved.is_whole;
}

bool same_reads(const uint8_t *at, const uint8_t *end)
{
    if (at != end && !same_varint(mava_tum::read_started_varint32(at, end), proof_read_started_varint32(at, end)))
        return false;
    return same_varint(mava_tum::read_varint32(at, end), proof_read_varint32(at, end)) &&
           same_varint(mava_tum::read_fixed32(at, end), proof_read_fixed32(at, end)) &&
           same_varint(mava_tum::read_varint64(at, end), proof_read_varint64(at, end)) && same_lengths(at, end) &&
           same_skips(at, end) && same_runs(at, end, 1) && same_runs(at, end, 0);
}

// Also from each later byte.
void expect_same_reads(input &given, const byte_vector &bytes)
{
    given.assign(bytes);
    for (const uint8_t *at = given.begin(); at <= given.end(); ++at)
        ASSERT_TRUE(same_reads(at, given.end())) << given.hex() << " from " << at - given.begin();
}

byte_vector varint_in(uint64_t value, std::size_t width)
{
    byte_vector bytes(width, 0x80);
    for (std::size_t i = 0; i < width; ++i)
        bytes[i] = static_cast<uint8_t>((i < 10 ? value >> 7 * i & 0x7F : 0) | 0x80);
    bytes.back() &= 0x7F;
    return bytes;
}

TEST(proof_reads, the_proved_reads_are_those_of_the_library_for_every_input_of_up_to_3_bytes)
{
    input given;
    for (std::size_t length = 0; length <= 3; ++length) {
        const uint32_t step = length == 3 ? MAVA_TUM_WORK_DIVISOR : 1;
        for (uint32_t number = 0; number < 1u << 8 * length; number += step) {
            given.assign(number, length);
            ASSERT_TRUE(same_reads(given.begin(), given.end())) << given.hex();
        }
    }
}

TEST(proof_reads, the_proved_reads_are_those_of_the_library_for_every_value_of_each_byte_of_a_long_varint)
{
    input given;
    for (std::size_t width = 4; width <= 14; ++width) {
        for (std::size_t changed = 0; changed < width; ++changed) {
            for (uint32_t value = 0; value < 0x100; ++value) {
                for (const uint8_t others : {0x80, 0xAA, 0xFF}) {
                    byte_vector bytes(width, others);
                    bytes[changed] = static_cast<uint8_t>(value);
                    expect_same_reads(given, bytes);
                    bytes.push_back(0x01);
                    expect_same_reads(given, bytes);
                }
            }
        }
    }
}

TEST(proof_reads, the_proved_reads_are_those_of_the_library_for_lengths_around_what_is_left_and_around_2_to_the_32)
{
    input given;
    for (uint64_t left = 0; left <= 24; ++left) {
        for (std::size_t width = 1; width <= 12; ++width) {
            for (const uint64_t value : {left - 1, left, left + 1, uint64_t{0x7FFFFFFF}, uint64_t{0x80000000},
                     uint64_t{0xFFFFFFFE}, uint64_t{0xFFFFFFFF}, uint64_t{1} << 32, (uint64_t{1} << 32) + left,
                     (uint64_t{1} << 63) + left, ~uint64_t{0}}) {
                byte_vector bytes = varint_in(value, width);
                bytes.resize(bytes.size() + left, 0x2A);
                expect_same_reads(given, bytes);
            }
        }
    }
}

TEST(proof_reads, the_proved_runs_are_those_of_the_library_for_every_cut_of_arrays_with_any_field_behind_them)
{
    input given;
    for (std::size_t elements = 1; elements <= 5; ++elements) {
        for (uint32_t tag = 0; tag < 0x100; ++tag) {
            byte_vector bytes;
            for (std::size_t i = 0; i < elements; ++i) {
                bytes.insert(bytes.end(), i == 0 ? 0 : 1, 0x0A);
                bytes.push_back(static_cast<uint8_t>(i));
                bytes.insert(bytes.end(), i, 0x0A);
            }
            bytes.insert(bytes.end(), {static_cast<uint8_t>(tag), 0x02, 0x0A, 0x01});
            for (; !bytes.empty(); bytes.pop_back())
                expect_same_reads(given, bytes);
        }
    }
}

TEST(proof_reads, the_proved_reads_are_those_of_the_library_for_random_inputs)
{
    input given;
    std::mt19937_64 random(1);
    for (int i = 0; i < 100000; ++i) {
        byte_vector bytes(random() % 20);
        const uint64_t continuing_percent = random() % 101;
        for (uint8_t &byte : bytes)
            byte = static_cast<uint8_t>((random() & 0x7F) | (random() % 100 < continuing_percent ? 0x80 : 0));
        expect_same_reads(given, bytes);
    }
}

} // namespace

} // namespace mava_tum_test
