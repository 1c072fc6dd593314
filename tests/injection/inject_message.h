// Decode and duplicate of one message with a failing allocator, in the library and in the model: result, every member,
// the calls of the allocator with their sizes, the outstanding blocks; then the same after the free.
#pragma once

#include "injection/injection.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace mava_tum_injection
{

// Empty if the library did what the model predicts.
std::string inject_decode(
    std::size_t message_index, std::span<const uint8_t> wire, uint32_t flags, const injection &failing_call);

// `source` is a record of the message.
std::string inject_duplicate(std::size_t message_index, const uint8_t *source, const injection &failing_call);

// No failure, then each call of the operation fails, once or from then on.
void fail_decode(std::size_t message_index, std::span<const uint8_t> wire, uint32_t flags, injection_tally &tally);

// The source is the decoded `wire`, up to its fault; `seed` may change it as only a caller can.
void fail_duplicate(std::size_t message_index, std::span<const uint8_t> wire, uint64_t seed, injection_tally &tally);

} // namespace mava_tum_injection
