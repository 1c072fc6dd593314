// The notes on the payload of a bytes field or a text.
#pragma once

#include "inspector/library/wire_event.h"

#include <cstdint>

namespace mava_tum_inspect
{

inline constexpr uint64_t ipv6_bytes = 16;

// `data` is the whole message; the value of `at` is inside it.
void add_payload_notes(occurrence &at, const uint8_t *data);

// Bytes of the text up to its NUL, if it has one.
uint64_t text_bytes(const uint8_t *text, uint64_t length);

} // namespace mava_tum_inspect
