// Messages on a file descriptor, each in a frame: behind its length, as tum_nal/message_stream.h puts it. Works on
// pipes, sockets and files alike.
#ifndef EXAMPLES_FRAME_STREAM_H
#define EXAMPLES_FRAME_STREAM_H

#include "tum_nal/message_stream.h"

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

// The stream ended inside a frame.
class truncated_stream : public stream_error
{
public:
    using stream_error::stream_error;
};

// A session has at most some 9 kB; a longer frame is none of ours, and its length is not to be trusted.
inline constexpr uint32_t frame_limit_bytes = 64 * 1024;

// SIGPIPE must be ignored, so that a reader that has gone away is a stream_error and not the end of this process.
void write_frame(int fd, std::span<const uint8_t> message);

class frame_reader
{
public:
    explicit frame_reader(int fd);
    frame_reader(const frame_reader &) = delete; // of one stream there is one reader, which may be ahead of its caller
    frame_reader &operator=(const frame_reader &) = delete;

    // Waits for the next message, which is good until the next call. False at the end of the stream. Throws
    // truncated_stream if the stream ends inside a frame, stream_error for other faults.
    bool next(std::span<const uint8_t> &message);

private:
    void wait_for_bytes();

    int m_fd;
    std::vector<uint8_t> m_message, m_block;
    tum_nal_message_stream_t m_stream;
    const uint8_t *m_bytes = nullptr; // of the block, those that are not taken yet
    uint64_t m_count = 0;
};

} // namespace examples

#endif
