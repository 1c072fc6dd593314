// Adds up the time spent in measured calls, and nothing else.
#ifndef EXAMPLES_STOPWATCH_H
#define EXAMPLES_STOPWATCH_H

#include "readable.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

namespace examples
{

class stopwatch
{
public:
    template <typename Call>
    auto measure(Call call)
    {
        const scope running(*this);
        return call();
    }

    // "1,200 sessions, 600,000 bytes, encoded in 1.3 ms = 923,076 sessions per second"
    std::string report(size_t sessions, size_t bytes, const char *verb) const
    {
        const double rate = seconds() > 0 ? static_cast<double>(sessions) / seconds() : 0;
        return readable_count(sessions) + " sessions, " + readable_count(bytes) + " bytes, " + verb + " in " +
               milliseconds() + " = " + readable_count(static_cast<uint64_t>(rate)) + " sessions per second";
    }

    // "1.30 ms"
    std::string milliseconds() const
    {
        char text[32];
        std::snprintf(text, sizeof text, "%.2f ms", std::chrono::duration<double, std::milli>(m_total).count());
        return text;
    }

    double seconds() const
    {
        return std::chrono::duration<double>(m_total).count();
    }

private:
    using clock = std::chrono::steady_clock;

    class scope
    {
    public:
        explicit scope(stopwatch &owner) : m_owner(owner), m_start(clock::now()) {}
        ~scope()
        {
            m_owner.m_total += clock::now() - m_start;
        }
        scope(const scope &) = delete;
        scope &operator=(const scope &) = delete;

    private:
        stopwatch &m_owner;
        clock::time_point m_start;
    };

    clock::duration m_total{};
};

} // namespace examples

#endif
