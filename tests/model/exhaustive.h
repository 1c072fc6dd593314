// Every input of a given length through one message, and every capacity for every seed. Fast enough for hundreds of
// millions: a decode that requests no memory is first compared with one memcmp.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace mava_tum_model
{

struct exhaustive_range {
    std::size_t message_index = 0;
    std::size_t length = 0; // of each input, at most 8
    uint32_t flags = 0;
    uint64_t first = 0; // inputs are little-endian numbers of `length` bytes
    uint64_t end = 0;
};

struct exhaustive_result {
    uint64_t inputs = 0;
    std::string difference; // empty if there is none
};

uint64_t inputs_of_length(std::size_t length);

exhaustive_result check_inputs(const exhaustive_range &range);

// Each seed record of the message into each capacity from 0 to its size and one more, copied and gathered.
exhaustive_result check_capacities(std::size_t message_index);

} // namespace mava_tum_model
