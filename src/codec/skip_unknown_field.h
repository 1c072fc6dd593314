// The step over a field that a message does not know.
#pragma once

#include "codec/wire_read.h"
#include "codec/wire_types.h"

#include <cstdint>

namespace mava_tum
{

// `at` is the position after the tag. Steps that would pass `end` stop at it: what follows an unknown field that is
// truncated is the end of the message, with success.
field_read skip_unknown_field(wire_type type, const uint8_t *at, const uint8_t *end);

} // namespace mava_tum
