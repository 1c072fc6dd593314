#include "input/digit_text.h"

#include "bad_use.h"

namespace mava_tum_cli
{

int hex_digit_value(uint8_t character)
{
    if (character >= '0' && character <= '9')
        return character - '0';
    if (character >= 'a' && character <= 'f')
        return character - 'a' + 10;
    if (character >= 'A' && character <= 'F')
        return character - 'A' + 10;
    return -1;
}

bool is_text_space(uint8_t character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

namespace
{

// Collects digits in pairs.
class hex_reader
{
public:
    explicit hex_reader(const std::string &where) : m_where(where) {}

    void take(uint8_t character)
    {
        const int digit = hex_digit_value(character);
        if (digit >= 0)
            take_digit(digit);
        else if ((character == 'x' || character == 'X') && m_high == 0 && !m_has_prefix)
            take_prefix();
        else if (is_text_space(character) || character == ':' || character == ',')
            end_byte();
        else
            throw bad_use(fmt::format("{}: {}: {} is no hex digit; mend it, or name the format with --format", m_where,
                m_position.to_string(), shown_character(character)));
        m_position.step_over(character);
    }

    byte_vector end()
    {
        end_byte();
        return std::move(m_bytes);
    }

private:
    void take_digit(int digit)
    {
        if (m_high < 0) {
            m_high = digit;
            return;
        }
        m_bytes.push_back(static_cast<uint8_t>(m_high << 4 | digit));
        m_high = -1;
        m_has_prefix = false;
    }

    // The 0 before it was no digit.
    void take_prefix()
    {
        m_high = -1;
        m_has_prefix = true;
    }

    void end_byte() const
    {
        if (m_high >= 0 || m_has_prefix)
            throw bad_use(fmt::format("{}: {}: odd number of hex digits before here; a byte has two, add the one that "
                                      "is missing",
                m_where, m_position.to_string()));
    }

    const std::string &m_where;
    text_position m_position;
    byte_vector m_bytes;
    int m_high = -1;           // the first digit of a byte, while the second is awaited
    bool m_has_prefix = false; // the byte began with 0x
};

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr unsigned bits_per_digit = 6;

int digit_value(uint8_t character)
{
    if (character == '-')
        return 62;
    if (character == '_')
        return 63;
    const size_t place = alphabet.find(static_cast<char>(character));
    return place == std::string_view::npos ? -1 : static_cast<int>(place);
}

class base64_reader
{
public:
    explicit base64_reader(const std::string &where) : m_where(where) {}

    void take(uint8_t character)
    {
        const int digit = digit_value(character);
        if (character == '=')
            ++m_padding;
        else if (digit >= 0 && m_padding == 0)
            take_digit(static_cast<uint32_t>(digit));
        else if (!is_text_space(character))
            refuse(digit >= 0 ? "a digit after the padding; remove what follows the ="
                              : shown_character(character) + " is no base64 digit; mend it, or name the format with "
                                                             "--format");
        m_position.step_over(character);
    }

    byte_vector end()
    {
        const size_t rest = m_digits % 4;
        if (rest == 1 || (m_padding > 0 && (m_digits + m_padding) % 4 != 0) || m_padding > 2)
            refuse("the last group is incomplete: four digits, = included, make a group; the text seems to be cut");
        if (m_bit_count > 0 && (m_bits & ((1u << m_bit_count) - 1)) != 0)
            refuse("bits are left over in the last digit; the text seems to be cut");
        return std::move(m_bytes);
    }

private:
    void take_digit(uint32_t digit)
    {
        ++m_digits;
        m_bits = m_bits << bits_per_digit | digit;
        m_bit_count += bits_per_digit;
        if (m_bit_count >= 8) {
            m_bit_count -= 8;
            m_bytes.push_back(static_cast<uint8_t>(m_bits >> m_bit_count));
        }
    }

    [[noreturn]] void refuse(const std::string &what) const
    {
        throw bad_use(fmt::format("{}: {}: {}", m_where, m_position.to_string(), what));
    }

    const std::string &m_where;
    text_position m_position;
    byte_vector m_bytes;
    uint32_t m_bits = 0;
    unsigned m_bit_count = 0; // of m_bits, how many belong to no byte yet
    size_t m_digits = 0;
    size_t m_padding = 0;
};

} // namespace

byte_vector bytes_of_hex(std::span<const uint8_t> text, const std::string &where)
{
    hex_reader reader(where);
    for (const uint8_t character : text)
        reader.take(character);
    return reader.end();
}

std::string hex_of_bytes(std::span<const uint8_t> bytes, std::string_view separator)
{
    return fmt::format("{:02x}", fmt::join(bytes, separator));
}

bool is_base64_character(uint8_t character)
{
    return character == '=' || digit_value(character) >= 0;
}

byte_vector bytes_of_base64(std::span<const uint8_t> text, const std::string &where)
{
    base64_reader reader(where);
    for (const uint8_t character : text)
        reader.take(character);
    return reader.end();
}

std::string base64_of_bytes(std::span<const uint8_t> bytes)
{
    std::string text;
    for (size_t at = 0; at < bytes.size(); at += 3) {
        uint32_t group = 0;
        for (size_t i = at; i < at + 3; ++i)
            group = group << 8 | (i < bytes.size() ? bytes[i] : 0u);
        for (unsigned shift = 24; shift != 0; shift -= bits_per_digit)
            text += alphabet[group >> (shift - bits_per_digit) & 0x3F];
    }
    const size_t missing = (3 - bytes.size() % 3) % 3;
    text.replace(text.size() - missing, missing, missing, '=');
    return text;
}

} // namespace mava_tum_cli
