// The search for an input that requests more than its limit.
#pragma once

#include "amplification/asked_limit.h"
#include "amplification/measured_decode.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace mava_tum_amplification
{

struct searched_decode {
    const mava_tum_model::message *message = nullptr;
    std::function<memory_use(std::span<const uint8_t>)> measure;
};

searched_decode decoder_of(std::size_t message_index);

struct search_result {
    uint64_t inputs = 0;
    memory_ratio worst;        // of asked bytes
    std::string above_a_limit; // the first such input in hex; empty if there is none
};

// Every input of 1 to `most_bytes` bytes from `alphabet`.
search_result search(const searched_decode &of, std::span<const uint8_t> alphabet, std::size_t most_bytes);

std::vector<uint8_t> every_byte();

// The bytes that affect memory: the tags of all fields that own blocks, at every depth, and short lengths.
std::vector<uint8_t> bytes_that_matter(const mava_tum_model::message &of);

// The longest inputs from an alphabet whose number is at most `budget`.
std::size_t longest_within(uint64_t budget, std::size_t alphabet_bytes);

} // namespace mava_tum_amplification
