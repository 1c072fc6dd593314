#include "output/output_file.h"

#include "bad_use.h"
#include "output/output_place.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

namespace mava_tum_cli
{

output_file::output_file(std::string path) : m_path(std::move(path)), m_fd(open_place())
{
    if (m_fd < 0)
        refuse("cannot write", errno);
}

int output_file::open_place()
{
    if (m_path.empty() || m_path == "-") {
        m_path = "standard output";
        return fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
    }
    const output_place place = place_of(m_path);
    switch (place.kind) {
    case place_kind::descriptor:
        return fcntl(place.number, F_DUPFD_CLOEXEC, 0);
    case place_kind::special:
        return open(place.path.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC);
    case place_kind::file:
        return m_pending.emplace(place.path).fd();
    case place_kind::refused:
        errno = place.number;
    }
    return -1;
}

output_file::~output_file()
{
    if (!m_pending)
        close(m_fd);
}

void output_file::refuse(const char *what, int error) const
{
    throw bad_use(fmt::format("{}: {}: {}; give another place with -o", m_path, what, std::strerror(error)));
}

void output_file::hand_on(std::string &waiting)
{
    size_t written = 0;
    while (written < waiting.size()) {
        const ssize_t count = ::write(m_fd, waiting.data() + written, waiting.size() - written);
        if (count >= 0)
            written += static_cast<size_t>(count);
        else if (errno != EINTR)
            refuse("cannot write", errno);
    }
    waiting.clear();
}

void output_file::commit()
{
    flush();
    if (m_pending && !m_pending->publish())
        refuse("cannot write", errno);
}

bool output_file::is_terminal() const
{
    return isatty(m_fd) != 0;
}

} // namespace mava_tum_cli
