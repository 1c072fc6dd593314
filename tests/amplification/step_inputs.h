// Inputs that make a decoder work hard for each byte: the same few bytes again and again.
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

// Each field in its shortest form; all fields that may occur again, backwards, so that each of them needs a round of
// its own; tags in a longer form than they need; fields that nobody knows; and, once at least, a varint and a tag
// without an end.
std::vector<repeated_bytes> inputs_full_of_steps(const mava_tum_model::message &of);

std::vector<uint8_t> repeat(const std::vector<uint8_t> &bytes, std::size_t length);

} // namespace mava_tum_amplification
