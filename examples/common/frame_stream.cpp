#include "frame_stream.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <string>
#include <unistd.h>

namespace examples
{

namespace
{

using frame_header = std::array<uint8_t, 4>;

void write_all(int fd, std::span<const uint8_t> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = write(fd, bytes.data(), bytes.size());
        if (written >= 0)
            bytes = bytes.subspan(static_cast<size_t>(written));
        else if (errno == EPIPE)
            throw stream_error("the reader has gone away (broken pipe)");
        else if (errno != EINTR)
            throw stream_error(std::string("cannot write: ") + std::strerror(errno));
    }
}

// Returns how many of `bytes` came before the stream's end.
size_t read_up_to(int fd, std::span<uint8_t> bytes)
{
    size_t total = 0;
    while (total < bytes.size()) {
        const ssize_t received = read(fd, bytes.data() + total, bytes.size() - total);
        if (received == 0)
            break;
        if (received > 0)
            total += static_cast<size_t>(received);
        else if (errno != EINTR)
            throw stream_error(std::string("cannot read: ") + std::strerror(errno));
    }
    return total;
}

std::string got_of(size_t got, size_t wanted)
{
    return std::to_string(got) + " of " + std::to_string(wanted) + " bytes";
}

} // namespace

void write_frame(int fd, std::span<const uint8_t> message)
{
    const auto length = static_cast<uint32_t>(message.size());
    const frame_header header = {static_cast<uint8_t>(length >> 24), static_cast<uint8_t>(length >> 16),
        static_cast<uint8_t>(length >> 8), static_cast<uint8_t>(length)};
    write_all(fd, header);
    write_all(fd, message);
}

bool read_frame(int fd, std::vector<uint8_t> &message)
{
    frame_header header{};
    const size_t header_bytes = read_up_to(fd, header);
    if (header_bytes == 0)
        return false;
    if (header_bytes < header.size())
        throw stream_error("the stream ends inside a frame's length, after " + got_of(header_bytes, header.size()));
    uint32_t length = 0;
    for (const uint8_t byte : header)
        length = length << 8 | byte;
    if (length > frame_limit_bytes)
        throw stream_error("a frame claims " + std::to_string(length) + " bytes, but " +
                           std::to_string(frame_limit_bytes) + " is the limit: this is no stream of our messages");
    message.resize(length);
    const size_t message_bytes = read_up_to(fd, message);
    if (message_bytes < length)
        throw stream_error("the stream ends inside a frame, after " + got_of(message_bytes, length));
    return true;
}

} // namespace examples
