// One decode adapter while calloc fails.
#pragma once

#include "injection/injection.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace mava_tum_injection
{

// Empty if all of this holds: calloc was asked for the sizes that the model predicts under the same failure; every
// block was freed, once; every byte of the application record is what the model makes of the fields that it kept.
std::string inject_adapter(std::size_t adapter_index, std::span<const uint8_t> wire, const injection &failing_call);

// No failure, then every call that the decode makes failing, once and for ever.
void fail_adapter(std::size_t adapter_index, std::span<const uint8_t> wire, injection_tally &tally);

} // namespace mava_tum_injection
