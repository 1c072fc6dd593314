#include "input/c_text.h"

#include "bad_use.h"
#include "input/digit_text.h"

#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <optional>

namespace mava_tum_cli
{

namespace
{

[[noreturn]] void refuse(const std::string &where, std::string_view text, size_t position, const std::string &what)
{
    text_position place;
    for (const char character : text.substr(0, position))
        place.step_over(static_cast<unsigned char>(character));
    throw bad_use(fmt::format("{}: {}: {}", where, place.to_string(), what));
}

// ---- numbers in braces -------------------------------------------------------------------------------------------

// What lies between the first pair of braces; nothing: there is none.
std::optional<std::string_view> inside_braces(std::string_view text)
{
    const size_t opening = text.find('{');
    const size_t closing = opening == text.npos ? text.npos : text.find('}', opening);
    if (closing == text.npos)
        return std::nullopt;
    return text.substr(opening + 1, closing - opening - 1);
}

bool is_number_list(std::string_view text)
{
    return text.find_first_of("0123456789") != text.npos &&
           text.find_first_not_of("0123456789abcdefABCDEFxXuU, \t\r\n") == text.npos;
}

std::optional<uint8_t> byte_of_number(std::string_view number)
{
    while (number.ends_with('u') || number.ends_with('U'))
        number.remove_suffix(1);
    const bool is_hex = number.starts_with("0x") || number.starts_with("0X");
    const bool is_octal = !is_hex && number.size() > 1 && number.starts_with('0');
    number.remove_prefix(is_hex ? 2 : 0);
    uint8_t byte = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), byte,
        is_hex     ? 16
        : is_octal ? 8
                   : 10);
    if (error != std::errc() || end != number.data() + number.size())
        return std::nullopt;
    return byte;
}

byte_vector bytes_of_numbers(std::string_view list, std::string_view text, const std::string &where)
{
    byte_vector bytes;
    for (size_t at = 0; at < list.size();) {
        const size_t begin = std::min(list.find_first_not_of(", \t\r\n", at), list.size());
        const size_t end = std::min(list.find_first_of(", \t\r\n", begin), list.size());
        if (begin == end)
            break;
        const std::optional<uint8_t> byte = byte_of_number(list.substr(begin, end - begin));
        if (!byte)
            refuse(where, text, static_cast<size_t>(list.data() - text.data()) + begin,
                fmt::format("{} is no number from 0 to 255", list.substr(begin, end - begin)));
        bytes.push_back(*byte);
        at = end;
    }
    return bytes;
}

// ---- texts with escapes ------------------------------------------------------------------------------------------

class escape_reader
{
public:
    escape_reader(std::string_view text, const std::string &where) : m_text(text), m_where(where) {}

    byte_vector read()
    {
        while (m_at < m_text.size())
            take();
        return std::move(m_bytes);
    }

private:
    // Without quotes, blanks separate; inside of them, they are bytes.
    void take()
    {
        const char character = m_text[m_at];
        if (m_quote == 0 && (character == '"' || character == '\'')) {
            m_quote = character;
            ++m_at;
        } else if (m_quote != 0 && character == m_quote) {
            m_quote = 0;
            ++m_at;
        } else if (character == '\\') {
            take_escape();
        } else if (m_quote == 0 && is_between(character)) {
            ++m_at;
        } else {
            m_bytes.push_back(static_cast<uint8_t>(character));
            ++m_at;
        }
    }

    // Blanks, and the b before the quote of Python.
    bool is_between(char character) const
    {
        const bool is_before_quote = m_at + 1 < m_text.size() && (m_text[m_at + 1] == '"' || m_text[m_at + 1] == '\'');
        return is_text_space(static_cast<uint8_t>(character)) ||
               ((character == 'b' || character == '$') && is_before_quote);
    }

    void take_escape()
    {
        constexpr std::string_view letters = "a\ab\be\033f\fn\nr\rt\tv\v\\\\\"\"''??";
        const char letter = m_at + 1 < m_text.size() ? m_text[m_at + 1] : '\0';
        if (letter == 'x')
            return take_number(m_at + 2, 2, 16);
        if (letter >= '0' && letter <= '7')
            return take_number(m_at + 1, 3, 8);
        for (size_t i = 0; i < letters.size(); i += 2) {
            if (letters[i] != letter)
                continue;
            m_bytes.push_back(static_cast<uint8_t>(letters[i + 1]));
            m_at += 2;
            return;
        }
        refuse(m_where, m_text, m_at, "an escape that is unknown; \\x and two hex digits is one that is known");
    }

    void take_number(size_t begin, size_t most_digits, int base)
    {
        const std::string_view digits = m_text.substr(std::min(begin, m_text.size()), most_digits);
        unsigned number = 0;
        const char *end = std::from_chars(digits.data(), digits.data() + digits.size(), number, base).ptr;
        if (end == digits.data() || number > 0xFF)
            refuse(m_where, m_text, m_at, "an escape without a number from 0 to 255");
        m_bytes.push_back(static_cast<uint8_t>(number));
        m_at = begin + static_cast<size_t>(end - digits.data());
    }

    std::string_view m_text;
    const std::string &m_where;
    size_t m_at = 0;
    char m_quote = 0;
    byte_vector m_bytes;
};

bool has_number_escape(std::string_view text)
{
    for (size_t at = text.find('\\'); at != text.npos; at = text.find('\\', at + 1))
        if (at + 1 < text.size() && (text[at + 1] == 'x' || (text[at + 1] >= '0' && text[at + 1] <= '7')))
            return true;
    return false;
}

} // namespace

bool is_c(std::string_view text)
{
    const std::optional<std::string_view> list = inside_braces(text);
    return (list && is_number_list(*list)) || has_number_escape(text);
}

byte_vector bytes_of_c(std::string_view text, const std::string &where)
{
    const std::optional<std::string_view> list = inside_braces(text);
    if (list && is_number_list(*list))
        return bytes_of_numbers(*list, text, where);
    return escape_reader(text, where).read();
}

} // namespace mava_tum_cli
