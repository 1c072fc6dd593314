// A packed file of inputs:
//
//   +-----------------------------+-----------------+
//   | length, 4 bytes, big-endian | `length` bytes  |  next input ...
//   +-----------------------------+-----------------+
//
// The file ends between two inputs, and has at least one.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace mava_tum_fuzz
{

struct unpacked_inputs {
    std::vector<std::span<const uint8_t>> inputs; // parts of the file; none if the file is refused
    const char *fault = nullptr;                  // why the file is refused, null if it is not
};

unpacked_inputs unpack_inputs(std::span<const uint8_t> file);
void pack_input(std::vector<uint8_t> &file, std::span<const uint8_t> input);

} // namespace mava_tum_fuzz
