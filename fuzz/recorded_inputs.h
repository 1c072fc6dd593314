// Inputs in files, with the C library only: under the memory sanitizer, the C++ runtime is not instrumented, so the
// output of its streams would count as uninitialised.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace mava_tum_fuzz
{

// The inputs of a packed file, NAME.packed; any other file is one input. Stops the program, with a message, if the file
// cannot be read or unpacked.
std::vector<std::vector<uint8_t>> read_inputs(const std::string &path);

// Stops the program, with a message, if the file cannot be written.
void write_file(const std::string &path, std::span<const uint8_t> bytes);

} // namespace mava_tum_fuzz
