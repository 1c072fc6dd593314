// Messages in frames, one after another, so that a file of any size takes the memory of one message:
//
//   +-----------------------------+-------------------+
//   | length, 4 bytes, big-endian | `length` bytes    |  next frame ...
//   +-----------------------------+-------------------+
//
// The stream may end between two frames only.
#pragma once

#include "input/input_stream.h"

#include <array>

namespace mava_tum_cli
{

inline constexpr size_t frame_header_bytes = 4;
// A first byte of zero, which no message has, tells frames from a message: longer ones are none of ours.
inline constexpr uint32_t frame_limit_bytes = 0x00FFFFFF;

using frame_header = std::array<uint8_t, frame_header_bytes>;

frame_header frame_header_of(uint32_t length);
uint32_t frame_length_of(std::span<const uint8_t, frame_header_bytes> header);

// Takes the next frame; false at the end. `message` keeps its memory from call to call. Throws bad_use that names the
// frame and the byte where it begins. `number` counts frames from 1.
bool read_frame(input_stream &stream, uint64_t number, byte_vector &message);

} // namespace mava_tum_cli
