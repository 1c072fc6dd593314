// The parts of a target: the question (fuzz_<question>.cpp), the mutator, and an engine or replay_main.cpp.
#pragma once

#include "model/message_tables.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace mava_tum_fuzz
{

// The message whose wire follows the eight bytes that start each input.
const mava_tum_model::message &message_of_input(uint8_t first_byte);

// The engine checks one operation after the decode in each execution; a replay also checks all of them.
enum class depth { one_part, every_part };

// Stops the program with a description if the library differs from the model. Returns false if the input is no case.
bool check_input(std::span<const uint8_t> bytes, depth how);

} // namespace mava_tum_fuzz
