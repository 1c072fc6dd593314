// Bytes from text such as "08 96 01", and back to text for failure messages.
#pragma once

#include <cctype>
#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace mava_tum_test
{

using byte_vector = std::vector<uint8_t>;

inline uint8_t hex_digit_value(char digit)
{
    if (digit >= '0' && digit <= '9')
        return static_cast<uint8_t>(digit - '0');
    if (digit >= 'A' && digit <= 'F')
        return static_cast<uint8_t>(digit - 'A' + 10);
    if (digit >= 'a' && digit <= 'f')
        return static_cast<uint8_t>(digit - 'a' + 10);
    throw std::invalid_argument(std::string("not a hex digit: ") + digit);
}

// Spaces may be anywhere between digits; an odd number of digits throws.
inline byte_vector bytes_of(std::string_view hex)
{
    std::string digits;
    for (char character : hex) {
        if (std::isspace(static_cast<unsigned char>(character)) == 0)
            digits += character;
    }
    if (digits.size() % 2 != 0)
        throw std::invalid_argument("odd number of hex digits: " + std::string(hex));
    byte_vector bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2)
        bytes.push_back(static_cast<uint8_t>(hex_digit_value(digits[i]) << 4 | hex_digit_value(digits[i + 1])));
    return bytes;
}

inline std::string hex_of(const uint8_t *data, std::size_t length)
{
    static const char digits[] = "0123456789ABCDEF";
    std::string text;
    for (std::size_t i = 0; i < length; ++i) {
        if (i != 0)
            text += ' ';
        text += digits[data[i] >> 4];
        text += digits[data[i] & 0x0F];
    }
    return text;
}

inline std::string hex_of(const byte_vector &bytes)
{
    return hex_of(bytes.data(), bytes.size());
}

inline byte_vector joined(std::initializer_list<byte_vector> parts)
{
    byte_vector whole;
    for (const byte_vector &part : parts)
        whole.insert(whole.end(), part.begin(), part.end());
    return whole;
}

} // namespace mava_tum_test
