#include "json/utf8_text.h"

#include <cstddef>
#include <cstdint>

namespace mava_tum_cli
{

namespace
{

struct sequence_kind {
    size_t length;       // 0: no first byte of any
    uint32_t first_bits; // the bits of the first byte that belong to the character
    uint32_t smallest;   // a longer form of a smaller one is not well-formed
};

sequence_kind kind_of(unsigned char first)
{
    if (first < 0x80)
        return {1, first, 1};
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

bool is_character(uint32_t code)
{
    return code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF) && !is_control(code);
}

} // namespace

bool is_plain_utf8(std::string_view text)
{
    for (size_t at = 0; at < text.size();) {
        const sequence_kind kind = kind_of(static_cast<unsigned char>(text[at]));
        if (kind.length == 0 || kind.length > text.size() - at)
            return false;
        uint32_t code = kind.first_bits;
        for (size_t i = 1; i < kind.length; ++i) {
            const auto byte = static_cast<unsigned char>(text[at + i]);
            if ((byte & 0xC0) != 0x80)
                return false;
            code = code << 6 | (byte & 0x3Fu);
        }
        if (code < kind.smallest || !is_character(code))
            return false;
        at += kind.length;
    }
    return true;
}

} // namespace mava_tum_cli
