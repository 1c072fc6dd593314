#include "stopwatch.h"

#include "readable.h"

#include <cstdio>

namespace examples
{

std::string stopwatch::report(size_t sessions, size_t bytes, const char *verb) const
{
    const double seconds = std::chrono::duration<double>(m_total).count();
    const double rate = seconds > 0 ? static_cast<double>(sessions) / seconds : 0;
    return readable_count(sessions) + " sessions, " + readable_count(bytes) + " bytes, " + verb + " in " +
           milliseconds() + " = " + readable_count(static_cast<uint64_t>(rate)) + " sessions per second";
}

std::string stopwatch::milliseconds() const
{
    char text[32];
    std::snprintf(text, sizeof text, "%.2f ms", std::chrono::duration<double, std::milli>(m_total).count());
    return text;
}

} // namespace examples
