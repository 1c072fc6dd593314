#include "output/output_file.h"

#include "bad_use.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

namespace mava_tum_cli
{

namespace
{

constexpr size_t flush_bytes = 64 * 1024;

mode_t mode_of_new_files()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

// A device or a pipe is written to, not replaced.
bool is_special_file(const std::string &path)
{
    struct stat status {
    };
    return stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode);
}

// The file that a symbolic link leads to is replaced, not the link.
std::string resolved(const std::string &path)
{
    char *real = realpath(path.c_str(), nullptr);
    std::string target = real != nullptr ? real : path;
    std::free(real);
    return target;
}

} // namespace

output_file::output_file(std::string path) : m_path(std::move(path))
{
    if (m_path.empty() || m_path == "-") {
        m_path = "standard output";
        m_fd = STDOUT_FILENO;
        return;
    }
    open_target();
    if (m_fd < 0)
        refuse("cannot write", errno);
}

void output_file::open_target()
{
    if (is_special_file(m_path)) {
        m_fd = open(m_path.c_str(), O_WRONLY | O_CLOEXEC);
        return;
    }
    m_path = resolved(m_path);
    m_temporary = m_path + ".XXXXXX";
    m_fd = mkostemp(m_temporary.data(), O_CLOEXEC);
    if (m_fd < 0)
        m_temporary.clear();
}

output_file::~output_file()
{
    if (m_fd > STDERR_FILENO)
        close(m_fd);
    if (!m_temporary.empty())
        unlink(m_temporary.c_str());
}

void output_file::refuse(const char *what, int error) const
{
    throw bad_use(fmt::format("{}: {}: {}; give another place with -o", m_path, what, std::strerror(error)));
}

void output_file::flush()
{
    size_t written = 0;
    while (written < m_waiting.size()) {
        const ssize_t count = ::write(m_fd, m_waiting.data() + written, m_waiting.size() - written);
        if (count >= 0)
            written += static_cast<size_t>(count);
        else if (errno != EINTR)
            refuse("cannot write", errno);
    }
    m_waiting.clear();
}

void output_file::write(std::string_view text)
{
    m_waiting += text;
    if (m_waiting.size() >= flush_bytes)
        flush();
}

void output_file::write(std::span<const uint8_t> bytes)
{
    write(std::string_view(reinterpret_cast<const char *>(bytes.data()), bytes.size()));
}

void output_file::commit()
{
    flush();
    if (m_temporary.empty())
        return;
    if (fchmod(m_fd, mode_of_new_files()) != 0 || rename(m_temporary.c_str(), m_path.c_str()) != 0)
        refuse("cannot give the file its name", errno);
    m_temporary.clear();
}

bool output_file::is_terminal() const
{
    return isatty(m_fd) != 0;
}

} // namespace mava_tum_cli
