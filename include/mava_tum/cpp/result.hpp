// The codec's result codes as a type of their own, with a text for each.
#ifndef MAVA_TUM_CPP_RESULT_HPP
#define MAVA_TUM_CPP_RESULT_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/codec_contract.h"

#include <cstdint>
#include <string_view>

namespace mava_tum::cpp
{

// What each means in full: codec_contract.h.
enum class [[nodiscard]] result : std::int32_t{
    ok = MAVA_TUM_OK,                                       // all was done
    truncated = MAVA_TUM_TRUNCATED,                         // cut, or a second run of a field that comes once
    unsupported_wire_type = MAVA_TUM_UNSUPPORTED_WIRE_TYPE, // of an unknown field
    wrong_wire_type = MAVA_TUM_WRONG_WIRE_TYPE,             // of a known field
    no_memory = MAVA_TUM_NO_MEMORY,                         // a block was refused
};

// A sentence for a log. It is valid until the program ends.
constexpr std::string_view text_of(result code) noexcept
{
    switch (code) {
    case result::ok:
        return "ok";
    case result::truncated:
        return "truncated: the input ends inside a field, or a field that comes once came again";
    case result::unsupported_wire_type:
        return "unsupported wire type: an unknown field cannot be skipped";
    case result::wrong_wire_type:
        return "wrong wire type: a known field has another wire type than its own";
    case result::no_memory:
        return "no memory: a block was refused";
    }
    return "not a result";
}

} // namespace mava_tum::cpp

#endif
