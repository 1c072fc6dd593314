#include "output/progress_line.h"

#include <cstdio>
#include <fmt/format.h>
#include <unistd.h>

namespace mava_tum_cli
{

namespace
{

constexpr std::chrono::milliseconds first_after{1000};
constexpr std::chrono::milliseconds then_every{200};
constexpr const char *erase_line = "\r\033[K";

std::string mebibytes(uint64_t bytes)
{
    return fmt::format("{:.1f} MiB", static_cast<double>(bytes) / (1 << 20));
}

} // namespace

progress_line::progress_line() : m_next(clock::now() + first_after) {}

void progress_line::allow()
{
    m_is_wanted = isatty(STDERR_FILENO) != 0;
}

progress_line::~progress_line()
{
    if (m_is_shown)
        fmt::print(stderr, "{}", erase_line);
}

void progress_line::update(uint64_t done_bytes, uint64_t total_bytes)
{
    if (!m_is_wanted || clock::now() < m_next)
        return;
    m_is_shown = true;
    m_next = clock::now() + then_every;
    const std::string share = total_bytes == 0
                                  ? ""
                                  : fmt::format(" of {}, {:.0f} %", mebibytes(total_bytes),
                                        100.0 * static_cast<double>(done_bytes) / static_cast<double>(total_bytes));
    fmt::print(stderr, "{}mava-tum: read {}{}", erase_line, mebibytes(done_bytes), share);
    std::fflush(stderr);
}

} // namespace mava_tum_cli
