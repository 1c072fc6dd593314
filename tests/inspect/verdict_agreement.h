// The walk against the library: for any bytes, both say the same about result, presence and memory.
#pragma once

#include "inspect/message_table.h"

#include <cstdint>
#include <string>

namespace mava_tum_test
{

struct comparison {
    int32_t result = 0;     // the library's
    std::string difference; // empty if both agree; otherwise with the input in hex
};

// Once copying bytes fields and once aliasing them, with an allocator that never fails.
comparison compare_with_library(
    const mava_tum_inspect::message_description &message, const uint8_t *data, uint64_t length);

struct agreement {
    uint64_t inputs = 0;
    uint64_t results[5] = {}; // how often each result of the library, by -result
    std::string difference;   // empty: none
};

// `rounds` inputs for each of the 40 messages: seeds and random messages, with up to five structural changes each, and
// bytes without any order. The same `seed` makes the same inputs.
agreement compare_many(uint64_t rounds, uint64_t seed);

} // namespace mava_tum_test
