#include "model/check_encode.h"

#include "model/model.h"

#include <algorithm>
#include <cstring>
#include <sstream>
#include <vector>

namespace mava_tum_model
{

namespace
{

constexpr uint8_t untouched = 0xEE;
constexpr std::size_t guard_bytes = 16;
constexpr uint32_t most_segments = 64;

// A buffer between guard bytes. All calls use the same memory.
struct guarded_output {
    std::vector<uint8_t> memory;

    uint8_t *prepare(uint64_t capacity)
    {
        memory.assign(capacity + 2 * guard_bytes, untouched);
        return memory.data() + guard_bytes;
    }
};

std::string hex_number(uint64_t value)
{
    std::ostringstream text;
    text << std::hex << "0x" << value;
    return text.str();
}

std::string difference(const std::string &what, uint64_t expected, uint64_t actual)
{
    return what + ": expected " + hex_number(expected) + ", actual " + hex_number(actual);
}

std::string compare_bytes(const guarded_output &library, const guarded_output &model)
{
    if (library.memory == model.memory)
        return {};
    const auto [at, expected] = std::mismatch(library.memory.begin(), library.memory.end(), model.memory.begin());
    const std::ptrdiff_t position = at - library.memory.begin() - static_cast<std::ptrdiff_t>(guard_bytes);
    return difference("byte " + std::to_string(position) + " of the buffer", *expected, *at);
}

std::string compare_segments(
    const mava_tum_segment *actual, const model_segment *expected, uint32_t stored, const uint8_t *buffer)
{
    for (uint32_t index = 0; index < stored; ++index) {
        const std::string name = "segment " + std::to_string(index);
        if (actual[index].length != expected[index].length)
            return difference(name + " length", expected[index].length, actual[index].length);
        const bool may_be_any = !expected[index].exact && buffer != nullptr;
        if (actual[index].data != expected[index].data && !may_be_any)
            return difference(name + " data", reinterpret_cast<uintptr_t>(expected[index].data),
                reinterpret_cast<uintptr_t>(actual[index].data));
    }
    return {};
}

} // namespace

std::string check_encode(
    const message &of, const library_message &library, const uint8_t *record, const encode_case &checked)
{
    static thread_local guarded_output library_output;
    static thread_local guarded_output model_output;
    mava_tum_segment segments[most_segments];
    model_segment model_segments[most_segments];
    std::memset(segments, untouched, sizeof segments);
    for (uint32_t index = 0; index < most_segments; ++index)
        model_segments[index] = {segments[index].data, segments[index].length, true};

    const bool counted = checked.segment_capacity != no_count;
    uint8_t *buffer = library_output.prepare(checked.capacity);
    encode_output output = {model_output.prepare(checked.capacity), buffer, checked.capacity, model_segments, nullptr};
    if (checked.without_buffer)
        buffer = nullptr, output.buffer = nullptr, output.claimed_buffer = nullptr;
    uint32_t library_count = checked.segment_capacity;
    uint32_t model_count = checked.segment_capacity;
    if (counted)
        output.segment_count = &model_count;
    if (checked.without_segments)
        output.segments = nullptr;

    const uint64_t actual = library.encode(record, buffer, checked.capacity,
        checked.without_segments ? nullptr : segments, counted ? &library_count : nullptr, checked.flags);
    const uint64_t expected = model_encode(of, record, output, checked.flags);
    if (expected != actual)
        return difference("result", expected, actual);
    if (model_count != library_count)
        return difference("segment_count", model_count, library_count);
    const std::string bytes = compare_bytes(library_output, model_output);
    // All of them: segments above the count must be unchanged.
    return bytes.empty() ? compare_segments(segments, model_segments, most_segments, buffer) : bytes;
}

namespace
{

encode_case some_case(uint64_t size, random_source &random)
{
    encode_case chosen;
    const uint64_t capacities[] = {0, 1, size, size + 1, size == 0 ? 0 : size - 1, random.below(size + 2),
        random.below(size + 2), size + random.below(40)};
    chosen.capacity = capacities[random.below(std::size(capacities))];
    chosen.without_buffer = chosen.capacity == 0 && random.one_in(2);
    chosen.flags = static_cast<uint32_t>(random.one_in(8) ? random.next() : random.below(2));
    if (random.one_in(2)) {
        chosen.segment_capacity =
            static_cast<uint32_t>(random.one_in(2) ? random.below(6) : random.below(most_segments));
        chosen.without_segments = random.one_in(8);
    }
    return chosen;
}

std::string describe(const encode_case &checked)
{
    std::ostringstream text;
    text << " (capacity " << checked.capacity << (checked.without_buffer ? ", no buffer" : "") << ", flags "
         << checked.flags;
    if (checked.segment_capacity != no_count)
        text << ", segment capacity " << checked.segment_capacity << (checked.without_segments ? ", no segments" : "");
    text << ")";
    return text.str();
}

} // namespace

std::string check_encodes(
    const message &of, const library_message &library, const uint8_t *record, random_source &random, int rounds)
{
    // Each case compares the model's size; here it only selects capacities.
    const uint64_t size = std::min<uint64_t>(model_encode(of, record, {}, 0), 1 << 20);
    for (int round = 0; round < rounds; ++round) {
        const encode_case chosen = some_case(size, random);
        const std::string found = check_encode(of, library, record, chosen);
        if (!found.empty())
            return found + describe(chosen);
    }
    return {};
}

} // namespace mava_tum_model
