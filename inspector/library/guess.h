// Which of the messages can these bytes be?
#pragma once

#include "mava_tum_inspect.h"

#include <cstdint>
#include <span>

namespace mava_tum_inspect
{

// As mava_tum_inspect_guess.
uint32_t guess_messages(const uint8_t *data, uint64_t length, std::span<mava_tum_inspect_candidate> candidates);

} // namespace mava_tum_inspect
