// The inputs that are closest to the limits: runs of empty elements of the most expensive list, at its depth.
#pragma once

#include "model/message_tables.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace mava_tum_amplification
{

using wire_bytes = std::vector<uint8_t>;

// At most `length` bytes. Empty if the message never requests memory.
wire_bytes worst_wire(const mava_tum_model::message &of, std::size_t length);

// At most `length` bytes with a nested record twice. Empty if no nested record owns memory.
wire_bytes dropping_wire(const mava_tum_model::message &of, std::size_t length);

} // namespace mava_tum_amplification
