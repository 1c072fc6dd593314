// One record through the library's encoder and the model's, into the same capacity.
#pragma once

#include "model/library_calls.h"
#include "model/message_tables.h"
#include "model/random_source.h"

#include <cstdint>
#include <string>

namespace mava_tum_model
{

constexpr uint32_t no_count = ~uint32_t{0};

struct encode_case {
    uint64_t capacity = 0;
    bool without_buffer = false; // null; the capacity is then 0
    uint32_t flags = 0;
    uint32_t segment_capacity = no_count; // no_count: `segment_count` is null
    bool without_segments = false;        // `segments` is null although there is a count
};

// Empty if both returned the same, wrote the same bytes, none outside the buffer, and the same segments.
std::string check_encode(
    const message &of, const library_message &library, const uint8_t *record, const encode_case &checked);

// `rounds` capacities and segment capacities, selected at random near the limits.
std::string check_encodes(
    const message &of, const library_message &library, const uint8_t *record, random_source &random, int rounds);

} // namespace mava_tum_model
