// Bytes written as digits, hex or base64, and the place in such a text where something is wrong.
#pragma once

#include "input/input_stream.h"

#include <cstddef>
#include <fmt/format.h>
#include <string>
#include <string_view>

namespace mava_tum_cli
{

// Line and column, for messages.
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

// The value of a hex digit, or -1.
int hex_digit_value(uint8_t character);

bool is_text_space(uint8_t character);

// Two digits a byte; blanks, line ends, colons and 0x before a byte are ignored. Throws bad_use that begins with
// `where` and names line and column of what is wrong.
byte_vector bytes_of_hex(std::span<const uint8_t> text, const std::string &where);

std::string hex_of_bytes(std::span<const uint8_t> bytes, std::string_view separator = "");

bool is_base64_character(uint8_t character);

// In the usual alphabet or the one for file names and URLs. Blanks and line ends are ignored; padding may be left out.
// Throws bad_use as bytes_of_hex() does.
byte_vector bytes_of_base64(std::span<const uint8_t> text, const std::string &where);

std::string base64_of_bytes(std::span<const uint8_t> bytes);

} // namespace mava_tum_cli
