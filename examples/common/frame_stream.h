// Messages on a stream of bytes. Protobuf messages do not say where they end, so each travels in a frame:
//
//   +-----------------------------+-------------------+
//   | length, 4 bytes, big-endian | `length` bytes    |  next frame ...
//   +-----------------------------+-------------------+
//
// The stream may end between two frames only. Works on pipes, sockets and files alike.
#ifndef EXAMPLES_FRAME_STREAM_H
#define EXAMPLES_FRAME_STREAM_H

#include <cstdint>
#include <span>
#include <stdexcept>
#include <vector>

namespace examples
{

// The stream broke. what() says how.
class stream_error : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// A session has at most some 9 kB; a longer frame is none of ours, and its length is not to be trusted.
inline constexpr uint32_t frame_limit_bytes = 64 * 1024;

// SIGPIPE must be ignored, so that a reader that has gone away is a stream_error and not the end of this process.
void write_frame(int fd, std::span<const uint8_t> message);

// False at the end of the stream. `message` keeps its memory from call to call.
bool read_frame(int fd, std::vector<uint8_t> &message);

} // namespace examples

#endif
