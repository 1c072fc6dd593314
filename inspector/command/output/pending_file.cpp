#include "output/pending_file.h"

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace mava_tum_cli
{

namespace
{

constexpr mode_t mode_of_new_files = S_IRUSR | S_IWUSR; // what is written is about subscribers
constexpr mode_t permission_bits = 0777;

// ---- a temporary name, where there has to be one: a signal that ends the program removes it before ----------------

std::array<char, PATH_MAX> name_to_remove{};

void remove_name(int number)
{
    unlink(name_to_remove.data());
    raise(number); // when this returns: the handler is there once only
}

void remove_on_signals(const std::string &name)
{
    if (name.size() >= name_to_remove.size())
        return;
    std::memcpy(name_to_remove.data(), name.c_str(), name.size() + 1);
    for (const int number : {SIGHUP, SIGINT, SIGQUIT, SIGPIPE, SIGTERM, SIGXCPU, SIGXFSZ}) {
        struct sigaction before {
        };
        sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_DFL)
            continue;
        struct sigaction action {
        };
        action.sa_handler = remove_name;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        sigaction(number, &action, nullptr);
    }
}

// No signal but SIGKILL comes between two steps.
class signals_blocked
{
public:
    signals_blocked()
    {
        sigset_t all;
        sigfillset(&all);
        sigprocmask(SIG_SETMASK, &all, &m_before);
    }

    ~signals_blocked()
    {
        sigprocmask(SIG_SETMASK, &m_before, nullptr);
    }

    signals_blocked(const signals_blocked &) = delete;
    signals_blocked &operator=(const signals_blocked &) = delete;

private:
    sigset_t m_before{};
};

// ---- what a file that is replaced hands on -------------------------------------------------------------------------

bool has_access_list(const std::string &path)
{
    return getxattr(path.c_str(), "system.posix_acl_access", nullptr, 0) > 0;
}

bool take_owner(int fd, const struct stat &old)
{
    struct stat own {
    };
    if (fstat(fd, &own) != 0)
        return false;
    return (own.st_uid == old.st_uid && own.st_gid == old.st_gid) || fchown(fd, old.st_uid, old.st_gid) == 0;
}

// False: the new file cannot be like the old one.
bool become_like(int fd, const std::string &path, const struct stat &old)
{
    return old.st_nlink == 1 && !has_access_list(path) && take_owner(fd, old) &&
           fchmod(fd, old.st_mode & permission_bits) == 0;
}

// ---- steps ---------------------------------------------------------------------------------------------------------

bool give_name(int fd, const std::string &name)
{
    const std::string open_file = fmt::format("/proc/self/fd/{}", fd);
    return linkat(AT_FDCWD, open_file.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

bool write_all(int fd, const char *bytes, size_t count)
{
    while (count > 0) {
        const ssize_t written = write(fd, bytes, count);
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0) {
            bytes += written;
            count -= static_cast<size_t>(written);
        }
    }
    return true;
}

bool copy_all(int from, int to)
{
    std::array<char, 65536> block;
    off_t position = 0;
    for (;;) {
        const ssize_t count = pread(from, block.data(), block.size(), position);
        if (count == 0)
            return ftruncate(to, position) == 0;
        if (count < 0 && errno != EINTR)
            return false;
        if (count > 0 && !write_all(to, block.data(), static_cast<size_t>(count)))
            return false;
        position += count > 0 ? count : 0;
    }
}

} // namespace

pending_file::pending_file(std::string path) : m_path(std::move(path))
{
    const size_t slash = m_path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : m_path.substr(0, slash + 1);
    m_fd = open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, mode_of_new_files);
    if (m_fd < 0)
        open_named();
}

// For file systems without files that have no name.
void pending_file::open_named()
{
    m_temporary = m_path + ".XXXXXX";
    const signals_blocked blocked;
    m_fd = mkostemp(m_temporary.data(), O_CLOEXEC);
    if (m_fd < 0)
        m_temporary.clear();
    else
        remove_on_signals(m_temporary);
}

pending_file::~pending_file()
{
    if (m_fd >= 0)
        close(m_fd);
    if (!m_temporary.empty())
        unlink(m_temporary.c_str());
}

bool pending_file::publish()
{
    const signals_blocked blocked;
    struct stat old {
    };
    const bool is_there = stat(m_path.c_str(), &old) == 0;
    if (!is_there && m_temporary.empty() && give_name(m_fd, m_path))
        return true;
    if ((!is_there || become_like(m_fd, m_path, old)) && replace())
        return true;
    return overwrite();
}

// At once: whoever opens the file sees all of the old one or all of the new one.
bool pending_file::replace()
{
    if (m_temporary.empty()) {
        const std::string name = fmt::format("{}.{}", m_path, getpid());
        if (!give_name(m_fd, name))
            return false;
        m_temporary = name;
    }
    if (rename(m_temporary.c_str(), m_path.c_str()) != 0)
        return false;
    m_temporary.clear();
    return true;
}

bool pending_file::overwrite() const
{
    int to = open(m_path.c_str(), O_WRONLY | O_CLOEXEC);
    if (to < 0 && errno == ENOENT)
        to = open(m_path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode_of_new_files);
    if (to < 0)
        return false;
    const bool is_copied = copy_all(m_fd, to);
    const int error = errno;
    const bool is_closed = close(to) == 0;
    if (!is_copied)
        errno = error;
    return is_copied && is_closed;
}

} // namespace mava_tum_cli
