#include "input/dump_text.h"

#include "bad_use.h"
#include "input/digit_text.h"

#include <algorithm>
#include <fmt/format.h>
#include <optional>

namespace mava_tum_cli
{

namespace
{

constexpr size_t fewest_offset_digits = 4;
constexpr size_t most_offset_digits = 16;
constexpr size_t octal_word_digits = 6;
constexpr size_t hex_word_digits = 4;
constexpr std::string_view octal_digits = "01234567";

bool is_hex(std::string_view token)
{
    return std::ranges::all_of(token, [](char digit) { return hex_digit_value(static_cast<uint8_t>(digit)) >= 0; });
}

// Of at most 16 digits; nothing: one of them is none.
std::optional<uint64_t> number_of(std::string_view digits, unsigned base)
{
    uint64_t number = 0;
    for (const char digit : digits) {
        const int value = hex_digit_value(static_cast<uint8_t>(digit));
        if (value < 0 || static_cast<unsigned>(value) >= base)
            return std::nullopt;
        number = number * base + static_cast<unsigned>(value);
    }
    return number;
}

struct dump_row {
    std::string_view offset; // its digits
    bool is_sure;            // nothing but a dump has such rows
    byte_vector bytes;
};

// ---- the bytes of a row ------------------------------------------------------------------------------------------

// Words come with their low byte first, as they do on this host.
bool add_word(byte_vector &bytes, std::string_view token, unsigned base)
{
    const std::optional<uint64_t> word = number_of(token, base);
    if (!word || *word > 0xFFFF)
        return false;
    bytes.push_back(static_cast<uint8_t>(*word));
    bytes.push_back(static_cast<uint8_t>(*word >> 8));
    return true;
}

bool add_token(byte_vector &bytes, std::string_view token, bool has_words)
{
    if (has_words && token.size() == octal_word_digits && token.find_first_not_of(octal_digits) == token.npos)
        return add_word(bytes, token, 8);
    if (has_words && token.size() == hex_word_digits)
        return add_word(bytes, token, 16);
    if (token.size() % 2 != 0 || !is_hex(token))
        return false;
    for (size_t at = 0; at < token.size(); at += 2)
        bytes.push_back(static_cast<uint8_t>(*number_of(token.substr(at, 2), 16)));
    return true;
}

// The part before "  |.......|" with a character for each byte; nothing: there is no such column. Its characters may be
// bars too.
std::optional<std::string_view> before_bars(std::string_view text)
{
    constexpr std::string_view opening = "  |";
    for (size_t bar = text.find(opening); bar != text.npos; bar = text.find(opening, bar + 1)) {
        const std::string_view before = text.substr(0, bar);
        const auto digits = before.size() - static_cast<size_t>(std::ranges::count(before, ' '));
        if (text.ends_with('|') && digits == 2 * (text.size() - bar - opening.size() - 1))
            return before;
    }
    return std::nullopt;
}

std::optional<dump_row> row_of(std::string_view line)
{
    const size_t digits = std::min(line.find_first_of(" :"), line.size());
    dump_row row{line.substr(0, digits), false, {}};
    if (digits < fewest_offset_digits || digits > most_offset_digits || !is_hex(row.offset))
        return std::nullopt;
    line.remove_prefix(digits);
    const bool has_colon = line.starts_with(':');
    line.remove_prefix(has_colon ? 1 : 0);
    const std::optional<std::string_view> column = before_bars(line);
    row.is_sure = has_colon || column;
    const bool is_wide = line.starts_with("    "); // as hexdump -x writes words
    const bool has_words = !row.is_sure && (is_wide || !line.starts_with("  "));
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    // Without bars, two blanks come between the bytes and the characters that some programs show beside them.
    if (column)
        line = *column;
    else if (!is_wide)
        line = line.substr(0, line.find("  "));
    for (std::string_view rest = line; !rest.empty();) {
        const std::string_view token = rest.substr(0, std::min(rest.find(' '), rest.size()));
        if (!token.empty() && !add_token(row.bytes, token, has_words))
            return std::nullopt;
        rest.remove_prefix(std::min(token.size() + 1, rest.size()));
    }
    return row;
}

// ---- all rows ------------------------------------------------------------------------------------------------------

class dump_reader
{
public:
    dump_reader(std::string_view text, unsigned base, const std::string &where)
        : m_text(text), m_base(base), m_where(where)
    {
    }

    byte_vector read()
    {
        while (!m_text.empty())
            take_line(next_line());
        if (m_is_repeated)
            refuse("the dump ends with *; give the line behind it too");
        return std::move(m_bytes);
    }

private:
    std::string_view next_line()
    {
        ++m_line;
        std::string_view line = m_text.substr(0, std::min(m_text.find('\n'), m_text.size()));
        m_text.remove_prefix(std::min(line.size() + 1, m_text.size()));
        while (!line.empty() && is_text_space(static_cast<uint8_t>(line.back())))
            line.remove_suffix(1);
        while (!line.empty() && is_text_space(static_cast<uint8_t>(line.front())))
            line.remove_prefix(1);
        return line;
    }

    void take_line(std::string_view line)
    {
        if (line.empty())
            return;
        if (line == "*") {
            m_is_repeated = true;
            return;
        }
        const std::optional<dump_row> row = row_of(line);
        const std::optional<uint64_t> offset = row ? number_of(row->offset, m_base) : std::nullopt;
        if (!offset)
            refuse("expected an offset and the bytes that are there");
        if (!m_first)
            m_first = *offset;
        move_to(*offset - *m_first);
        m_bytes.insert(m_bytes.end(), row->bytes.begin(), row->bytes.end());
        m_row = row->bytes;
    }

    // The bytes so far end there. Words of an odd number of bytes have one too many.
    void move_to(uint64_t position)
    {
        if (m_is_repeated && !m_row.empty() && position <= message_limit_bytes) {
            while (m_bytes.size() < position)
                m_bytes.insert(m_bytes.end(), m_row.begin(), m_row.end());
            m_is_repeated = false;
        }
        if (position + 1 == m_bytes.size())
            m_bytes.pop_back();
        if (position != m_bytes.size())
            refuse(fmt::format("the offset does not follow from the rows before it, which have {} bytes; give the "
                               "dump from its beginning, without a gap",
                m_bytes.size()));
    }

    [[noreturn]] void refuse(const std::string &what) const
    {
        throw bad_use(fmt::format("{}: line {}: {}", m_where, m_line, what));
    }

    std::string_view m_text;
    unsigned m_base; // of the offsets
    const std::string &m_where;
    size_t m_line = 0;
    std::optional<uint64_t> m_first; // offset
    byte_vector m_bytes;
    byte_vector m_row; // the last one
    bool m_is_repeated = false;
};

std::optional<byte_vector> bytes_if_whole(std::string_view text, unsigned base)
{
    try {
        return dump_reader(text, base, "").read();
    } catch (const bad_use &) {
        return std::nullopt;
    }
}

// The first row of a text.
std::optional<dump_row> first_row(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    return row_of(text.substr(0, std::min(text.find_first_of("\r\n"), text.size())));
}

} // namespace

bool is_dump(std::string_view text)
{
    const std::optional<dump_row> row = first_row(text);
    if (!row || row->bytes.empty())
        return false;
    if (row->is_sure)
        return true;
    return row->offset.find_first_not_of('0') == row->offset.npos &&
           (bytes_if_whole(text, 16) || bytes_if_whole(text, 8));
}

byte_vector bytes_of_dump(std::string_view text, const std::string &where)
{
    if (const std::optional<byte_vector> octal = bytes_if_whole(text, 8))
        return *octal;
    return dump_reader(text, 16, where).read();
}

} // namespace mava_tum_cli
