#include "inspector/library/utf8_text.h"

namespace mava_tum_inspect
{

namespace
{

struct sequence_kind {
    size_t length;       // 0: no first byte of any
    uint32_t first_bits; // the bits of the first byte that belong to the character
    uint32_t smallest;   // a longer form of a smaller one is not well-formed
};

sequence_kind sequence_of(unsigned char first)
{
    if (first < 0x80)
        return {1, first, 0};
    if (first >= 0xC0 && first < 0xE0)
        return {2, first & 0x1Fu, 0x80};
    if (first >= 0xE0 && first < 0xF0)
        return {3, first & 0x0Fu, 0x800};
    if (first >= 0xF0 && first < 0xF8)
        return {4, first & 0x07u, 0x10000};
    return {0, 0, 0};
}

// Terminals take some characters behind ASCII for commands.
bool is_control(uint32_t code)
{
    return code >= 0x7F && code < 0xA0;
}

bool is_code_point(uint32_t code)
{
    return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
}

constexpr uint32_t no_character = UINT32_MAX;

// Of the character that begins at `at`, which is then behind it; no_character: it is not well-formed.
uint32_t next_character(std::string_view text, size_t &at)
{
    const sequence_kind kind = sequence_of(static_cast<unsigned char>(text[at]));
    if (kind.length == 0 || kind.length > text.size() - at)
        return no_character;
    uint32_t code = kind.first_bits;
    for (size_t i = 1; i < kind.length; ++i) {
        const auto byte = static_cast<unsigned char>(text[at + i]);
        if ((byte & 0xC0) != 0x80)
            return no_character;
        code = code << 6 | (byte & 0x3Fu);
    }
    at += kind.length;
    return code < kind.smallest || !is_code_point(code) ? no_character : code;
}

// U+061C, U+200E, U+200F, U+202A to U+202E, U+2066 to U+2069.
bool changes_direction(uint32_t code)
{
    return code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E) ||
           (code >= 0x2066 && code <= 0x2069);
}

} // namespace

direction_control direction_control_at(std::string_view text, size_t position)
{
    const auto byte = [text, position](size_t i) { return static_cast<unsigned char>(text[position + i]); };
    if (byte(0) != 0xD8 && byte(0) != 0xE2)
        return {0, 0};
    const size_t bytes = byte(0) == 0xD8 ? 2 : 3;
    uint32_t code = sequence_of(byte(0)).first_bits;
    for (size_t i = 1; i < bytes; ++i)
        code = code << 6 | (byte(i) & 0x3Fu);
    return changes_direction(code) ? direction_control{code, bytes} : direction_control{0, 0};
}

bool is_utf8(std::string_view text)
{
    for (size_t at = 0; at < text.size();) {
        if (static_cast<unsigned char>(text[at]) < 0x80)
            ++at;
        else if (next_character(text, at) == no_character)
            return false;
    }
    return true;
}

bool is_plain_utf8(std::string_view text)
{
    for (size_t at = 0; at < text.size();) {
        const uint32_t code = next_character(text, at);
        if (code == no_character || code == 0 || is_control(code))
            return false;
    }
    return true;
}

} // namespace mava_tum_inspect
