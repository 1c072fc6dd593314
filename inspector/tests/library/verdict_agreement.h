// Compares the walk with the library: for any bytes, both must agree on result, presence and memory.
#pragma once

#include "inspector/library/message_table.h"
#include "model/random_source.h"
#include "model/wire_maker.h"

#include <cstdint>
#include <string>
#include <vector>

namespace mava_tum_test
{

struct comparison {
    int32_t result = 0;     // the library's
    std::string difference; // empty if both agree; otherwise with the input in hex
};

// With and without the alias bit, with an allocator that never fails. Then without one, and with one that fails at a
// call: these may only change the result to MAVA_TUM_NO_MEMORY.
comparison compare_with_library(
    const mava_tum_inspect::message_description &message, const uint8_t *data, uint64_t length);

// Some input for the message: a seed or a random message with up to five structural changes, or random bytes.
mava_tum_model::wire_bytes some_input(const mava_tum_model::message &of,
    const std::vector<mava_tum_model::wire_bytes> &seeds, mava_tum_model::random_source &random);

struct agreement {
    uint64_t inputs = 0;
    uint64_t results[5] = {}; // how often each result of the library, by -result
    std::string difference;   // empty: none
};

// `rounds` inputs for each of the 40 messages. The same `seed` makes the same inputs.
agreement compare_many(uint64_t rounds, uint64_t seed);

} // namespace mava_tum_test
