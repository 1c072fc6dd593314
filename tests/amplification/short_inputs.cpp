#include "amplification/short_inputs.h"

#include "support/hex.h"
#include "support/wire_builder.h"

#include <algorithm>
#include <set>

namespace mava_tum_amplification
{

namespace
{

using namespace mava_tum_model;

bool is_above(uint64_t memory, uint64_t wire, const memory_ratio &limit)
{
    return limit < memory_ratio{memory, wire};
}

// The next number in the base of the alphabet. False after the last one.
bool next_input(std::vector<std::size_t> &digits, std::span<const uint8_t> alphabet, std::vector<uint8_t> &wire)
{
    for (std::size_t i = 0; i < digits.size(); ++i) {
        digits[i] = digits[i] + 1 == alphabet.size() ? 0 : digits[i] + 1;
        wire[i] = alphabet[digits[i]];
        if (digits[i] != 0)
            return true;
    }
    return false;
}

void collect_tags(const message &of, std::set<uint8_t> &bytes)
{
    for (const field &member : of.fields) {
        if (asked_limit(member).memory == 0)
            continue;
        const auto tag = mava_tum_test::wire_builder().tag(member.number, mava_tum_test::wire_type::length_delimited);
        bytes.insert(tag.bytes().begin(), tag.bytes().end());
        if (member.nested != nullptr)
            collect_tags(*member.nested, bytes);
    }
}

} // namespace

searched_decode decoder_of(std::size_t message_index)
{
    return {all_messages()[message_index],
        [=](std::span<const uint8_t> wire) { return measure_decoder(message_index, wire); }};
}

search_result search(const searched_decode &of, std::span<const uint8_t> alphabet, std::size_t most_bytes)
{
    search_result result;
    const memory_ratio asked = asked_limit(*of.message);
    const memory_ratio dropped = dropped_limit(*of.message);
    for (std::size_t length = 1; length <= most_bytes; ++length) {
        std::vector<std::size_t> digits(length, 0);
        std::vector<uint8_t> wire(length, alphabet.front());
        do {
            const memory_use use = of.measure(wire);
            ++result.inputs;
            if (use.blocks == 0)
                continue;
            result.worst = std::max(result.worst, memory_ratio{use.asked_bytes, length});
            if (is_above(use.asked_bytes, length, asked) || is_above(use.dropped_bytes, length, dropped) ||
                use.blocks > block_limit(length)) {
                result.above_a_limit = mava_tum_test::hex_of(wire);
                return result;
            }
        } while (next_input(digits, alphabet, wire));
    }
    return result;
}

std::vector<uint8_t> every_byte()
{
    std::vector<uint8_t> bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes.push_back(static_cast<uint8_t>(byte));
    return bytes;
}

std::vector<uint8_t> bytes_that_matter(const message &of)
{
    std::set<uint8_t> bytes = {0, 1, 2, 4};
    collect_tags(of, bytes);
    return {bytes.begin(), bytes.end()};
}

std::size_t longest_within(uint64_t budget, std::size_t alphabet_bytes)
{
    std::size_t length = 0;
    for (uint64_t inputs = alphabet_bytes; inputs <= budget; inputs *= alphabet_bytes)
        ++length;
    return length;
}

} // namespace mava_tum_amplification
