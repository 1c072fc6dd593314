// How far a long input has been read: one line on standard error, which is rewritten, and gone at the end.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace mava_tum_cli
{

class progress_line
{
public:
    progress_line();
    ~progress_line();
    progress_line(const progress_line &) = delete;
    progress_line &operator=(const progress_line &) = delete;

    // Shows it from now on, if standard error is a terminal.
    void allow();

    // `total_bytes` 0: not known.
    void update(uint64_t done_bytes, uint64_t total_bytes);

private:
    using clock = std::chrono::steady_clock;

    bool m_is_wanted = false;
    bool m_is_shown = false;
    clock::time_point m_next;
};

} // namespace mava_tum_cli
