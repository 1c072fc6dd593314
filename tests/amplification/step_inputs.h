// Inputs that are expensive for a decoder: a few bytes, repeated.
#pragma once

#include "model/message_tables.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace mava_tum_amplification
{

struct repeated_bytes {
    std::string name;
    std::vector<uint8_t> bytes;
};

// Each field in its shortest form; all fields that may be repeated, backwards, so that each needs its own round;
// over-long tags; unknown fields; and a varint and a tag without an end.
std::vector<repeated_bytes> inputs_full_of_steps(const mava_tum_model::message &of);

std::vector<uint8_t> repeat(const std::vector<uint8_t> &bytes, std::size_t length);

} // namespace mava_tum_amplification
