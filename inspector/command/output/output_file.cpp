#include "output/output_file.h"

#include "bad_use.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <fmt/format.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace mava_tum_cli
{

namespace
{

enum class place_kind {
    descriptor, // one that is open already: /dev/stdout, /dev/fd/3
    special,    // a device or a pipe, to be written to as it is
    file,       // a regular file, or one that is still to be made
    refused,
};

struct output_place {
    place_kind kind;
    int number = -1;  // descriptor: which one; refused: the errno
    std::string path; // special, file: behind all symbolic links
};

constexpr int most_links = 40; // as many as Linux follows

// With the slash at its end; empty for a bare name.
std::string folder_of(const std::string &path)
{
    return path.substr(0, path.rfind('/') + 1);
}

bool is_same_file(const std::string &path, const char *other)
{
    struct stat first {
    };
    struct stat second {
    };
    return stat(path.c_str(), &first) == 0 && stat(other, &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

// /proc/self/fd/3 looks like a link to a file. To open that file again would start at its beginning.
int descriptor_of(const std::string &path)
{
    const std::string folder = folder_of(path);
    const std::string_view name = std::string_view(path).substr(folder.size());
    int number = -1;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
    const bool is_number = error == std::errc() && end == name.data() + name.size();
    return is_number && number >= 0 && is_same_file(folder, "/proc/self/fd") ? number : -1;
}

// Empty: not a link.
std::string link_content(const std::string &path)
{
    std::array<char, PATH_MAX> content{};
    const ssize_t size = readlink(path.c_str(), content.data(), content.size());
    return size < 0 ? "" : std::string(content.data(), static_cast<size_t>(size));
}

output_place file_place(const std::string &path)
{
    struct stat status {
    };
    if (stat(path.c_str(), &status) != 0)
        return errno == ENOENT ? output_place{place_kind::file, -1, path}
                               : output_place{place_kind::refused, errno, {}};
    if (!S_ISREG(status.st_mode))
        return {place_kind::special, -1, path};
    // Write permission for the folder is enough to replace a file, but a file without write permission is kept.
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        return {place_kind::refused, errno, {}};
    return {place_kind::file, -1, path};
}

// What a name given with -o stands for.
output_place place_of(const std::string &path)
{
    // The kernel follows the links first: it refuses some that a stranger has planted.
    struct stat status {
    };
    if (stat(path.c_str(), &status) != 0 && errno != ENOENT)
        return {place_kind::refused, errno, {}};
    std::string place = path;
    for (int i = 0; i < most_links; ++i) {
        const int descriptor = descriptor_of(place);
        if (descriptor >= 0)
            return {place_kind::descriptor, descriptor, {}};
        const std::string content = link_content(place);
        if (content.empty())
            return file_place(place);
        place = content.front() == '/' ? content : folder_of(place) + content;
    }
    return {place_kind::refused, ELOOP, {}};
}

} // namespace

output_file::output_file(std::string path)
    : text_output(m_buffer, sizeof m_buffer), m_path(std::move(path)), m_fd(open_place())
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

void output_file::make_room()
{
    std::string_view waiting = written();
    while (!waiting.empty()) {
        const ssize_t count = ::write(m_fd, waiting.data(), waiting.size());
        if (count >= 0)
            waiting.remove_prefix(static_cast<size_t>(count));
        else if (errno != EINTR)
            refuse("cannot write", errno);
    }
    use(m_buffer, sizeof m_buffer);
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
