// How wire bytes are written down in a file.
#pragma once

#include "input/input_stream.h"

#include <functional>
#include <string_view>

namespace mava_tum_cli
{

enum class input_format { automatic, raw, hex, base64, frames, dump, c, capture };

std::string_view name_of(input_format format);

// Whether bytes can be what the command expects.
enum class plausibility {
    none,
    decodes,
    exact // and nothing in them is unknown or odd
};

// Decides between formats whose shape the input has.
using plausible_fn = std::function<plausibility(std::span<const uint8_t>)>;

// Finds the format of `stream` from its first 64 KiB, without taking them. Throws bad_use when more than one is
// possible.
input_format detect_format(input_stream &stream, const plausible_fn &plausible);

} // namespace mava_tum_cli
