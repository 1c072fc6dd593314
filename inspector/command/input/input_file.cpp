// The file, pipe or terminal behind an input_stream.
#include "input/input_stream.h"

#include "bad_use.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fmt/format.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace mava_tum_cli
{

namespace
{

std::string advice_for(int error)
{
    switch (error) {
    case ENOENT:
        return "check the path, or give - to read standard input";
    case EACCES:
        return "check the permissions of the file and of its folders";
    default:
        return "give another file";
    }
}

int open_for_reading(const std::string &path)
{
    if (path == "-")
        return STDIN_FILENO;
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        const int error = errno;
        throw bad_use(fmt::format("{}: cannot open: {}; {}", path, std::strerror(error), advice_for(error)));
    }
    return fd;
}

// Whether a read would wait. A regular file never does, nor does the end of a pipe.
bool would_wait(int fd)
{
    pollfd asked{fd, POLLIN, 0};
    return poll(&asked, 1, 0) == 0;
}

} // namespace

input_stream::input_stream(const std::string &path)
    : m_name(path == "-" ? "standard input" : path), m_fd(open_for_reading(path))
{
    struct stat status {
    };
    if (fstat(m_fd, &status) != 0)
        return;
    if (S_ISDIR(status.st_mode))
        throw bad_use(fmt::format("{}: is a folder; give a file in it", m_name));
    if (S_ISREG(status.st_mode))
        m_size_bytes = static_cast<uint64_t>(status.st_size);
}

input_stream::~input_stream()
{
    if (m_fd > STDERR_FILENO)
        close(m_fd);
}

size_t input_stream::read_block(uint64_t offset, std::span<uint8_t> block)
{
    ssize_t received = -1;
    do {
        if (m_before_waiting && would_wait(m_fd))
            m_before_waiting();
        received = ::read(m_fd, block.data(), block.size());
    } while (received < 0 && errno == EINTR);
    if (received < 0)
        throw bad_use(
            fmt::format("{}: cannot read at byte {}: {}; try a copy of it", m_name, offset, std::strerror(errno)));
    m_progress.update(m_position, m_size_bytes);
    return static_cast<size_t>(received);
}

} // namespace mava_tum_cli
