#include "stopwatch.h"

#include "readable.h"

#include <cstdio>

namespace examples
{

std::string stopwatch::report(size_t sessions, size_t bytes, const char *verb) const
{
    const double seconds = std::chrono::duration<double>(m_total).count();
    char milliseconds[32];
    std::snprintf(milliseconds, sizeof milliseconds, "%.2f ms", seconds * 1000);
    const double rate = seconds > 0 ? static_cast<double>(sessions) / seconds : 0;
    return readable_count(sessions) + " sessions, " + readable_count(bytes) + " bytes, " + verb + " in " +
           milliseconds + " = " + readable_count(static_cast<uint64_t>(rate)) + " sessions per second";
}

} // namespace examples
