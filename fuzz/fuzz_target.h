// What a target is made of: the question (fuzz_<question>.cpp), the mutator, and an engine or replay_main.cpp.
#pragma once

#include "model/message_tables.h"

#include <cstddef>
#include <cstdint>

namespace mava_tum_fuzz
{

// The message whose wire follows the eight bytes that start each input.
const mava_tum_model::message &message_of_input(uint8_t first_byte);

} // namespace mava_tum_fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size);
