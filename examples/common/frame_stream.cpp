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

constexpr size_t block_bytes = 16 * 1024;

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

[[noreturn]] void refuse_end(const tum_nal_message_stream_t &stream)
{
    const bool has_length = stream.length_bytes == TUM_NAL_MESSAGE_LENGTH_BYTES;
    throw truncated_stream(std::string("the stream ends inside a frame") + (has_length ? "" : "'s length") +
                           ", after " + std::to_string(has_length ? stream.received : stream.length_bytes) + " of " +
                           std::to_string(has_length ? stream.length : uint32_t{TUM_NAL_MESSAGE_LENGTH_BYTES}) +
                           " bytes");
}

} // namespace

void write_frame(int fd, std::span<const uint8_t> message)
{
    std::array<uint8_t, TUM_NAL_MESSAGE_LENGTH_BYTES> length{};
    tum_nal_message_stream_put_length(length.data(), static_cast<uint32_t>(message.size()));
    write_all(fd, length);
    write_all(fd, message);
}

frame_reader::frame_reader(int fd) : m_fd(fd), m_message(frame_limit_bytes), m_block(block_bytes)
{
    tum_nal_message_stream_init(&m_stream, m_message.data(), frame_limit_bytes);
}

void frame_reader::wait_for_bytes()
{
    ssize_t received = -1;
    while ((received = read(m_fd, m_block.data(), m_block.size())) < 0) {
        if (errno != EINTR)
            throw stream_error(std::string("cannot read: ") + std::strerror(errno));
    }
    m_bytes = m_block.data();
    m_count = static_cast<uint64_t>(received);
}

bool frame_reader::next(std::span<const uint8_t> &message)
{
    const uint8_t *found = nullptr;
    uint32_t length = 0;
    int32_t result = 0;
    while ((result = tum_nal_message_stream_next(&m_stream, &m_bytes, &m_count, &found, &length)) ==
           TUM_NAL_MESSAGE_INCOMPLETE) {
        wait_for_bytes();
        if (m_count == 0 && tum_nal_message_stream_may_end(&m_stream))
            return false;
        if (m_count == 0)
            refuse_end(m_stream);
    }
    if (result == TUM_NAL_MESSAGE_TOO_LONG)
        throw stream_error("a frame claims " + std::to_string(m_stream.length) + " bytes, but " +
                           std::to_string(frame_limit_bytes) + " is the limit: this is no stream of our messages");
    message = std::span(found, length);
    return true;
}

} // namespace examples
