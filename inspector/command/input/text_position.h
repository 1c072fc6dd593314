// Line and column in a text, for messages.
#pragma once

#include <cstddef>
#include <string>

#include <fmt/format.h>

namespace mava_tum_cli
{

class text_position
{
public:
    void step_over(unsigned char character)
    {
        ++m_column;
        if (character == '\n') {
            ++m_line;
            m_column = 1;
        }
    }

    std::string to_string() const
    {
        return fmt::format("line {}, column {}", m_line, m_column);
    }

private:
    size_t m_line = 1;
    size_t m_column = 1;
};

// A character as messages show it.
inline std::string shown_character(unsigned char character)
{
    if (character > ' ' && character < 0x7F)
        return fmt::format("'{}'", static_cast<char>(character));
    return fmt::format("byte 0x{:02x}", character);
}

} // namespace mava_tum_cli
