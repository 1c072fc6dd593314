#include "input/hex_text.h"

#include "bad_use.h"
#include "input/text_position.h"

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

} // namespace mava_tum_cli
