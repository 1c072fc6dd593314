// The inputs that come closest to the limits: in memory, and in steps for each byte.
#pragma once

#include "model/message_tables.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace mava_tum_amplification
{

using wire_bytes = std::vector<uint8_t>;

// ---- in memory: runs of empty elements, as deep as the dearest of them stands ----

// At most `length` bytes. Empty if the message never requests memory.
wire_bytes worst_wire(const mava_tum_model::message &of, std::size_t length);

// At most `length` bytes with a nested record twice. Empty if no nested record owns memory.
wire_bytes dropping_wire(const mava_tum_model::message &of, std::size_t length);

// ---- in steps: the same few bytes again and again ----

struct repeated_bytes {
    std::string name;
    std::vector<uint8_t> bytes;
};

// Each field in its shortest form; all fields that may be repeated, backwards, so that each needs its own round;
// over-long tags; unknown fields; and a varint and a tag without an end.
std::vector<repeated_bytes> inputs_full_of_steps(const mava_tum_model::message &of);

std::vector<uint8_t> repeat(const std::vector<uint8_t> &bytes, std::size_t length);

} // namespace mava_tum_amplification
