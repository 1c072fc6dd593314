#include "output/output_place.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <climits>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace mava_tum_cli
{

namespace
{

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
    // Whoever may write to the folder could replace a file that is protected from writing.
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        return {place_kind::refused, errno, {}};
    return {place_kind::file, -1, path};
}

} // namespace

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

} // namespace mava_tum_cli
