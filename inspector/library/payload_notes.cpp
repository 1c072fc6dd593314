#include "inspector/library/payload_notes.h"

#include <cstring>

namespace mava_tum_inspect
{

namespace
{

// A sequence by its first byte, which is no ASCII: the number of bytes that follow, and the payload bits of the first.
// The other rules (no over-long forms, no surrogates, nothing above U+10FFFF) are ranges of the code point.
struct utf8_sequence {
    uint32_t following;
    uint32_t first_payload;
    uint32_t smallest;
};

utf8_sequence sequence_of(uint8_t first)
{
    if (first >> 5 == 0x06)
        return {1, first & 0x1Fu, 0x80};
    if (first >> 4 == 0x0E)
        return {2, first & 0x0Fu, 0x800};
    return {3, first & 0x07u, 0x10000};
}

constexpr uint32_t first_surrogate = 0xD800;
constexpr uint32_t last_surrogate = 0xDFFF;
constexpr uint32_t last_code_point = 0x10FFFF;

bool is_code_point(uint32_t value)
{
    return value <= last_code_point && (value < first_surrogate || value > last_surrogate);
}

bool is_continuation(uint8_t byte)
{
    return byte >> 6 == 2;
}

bool is_first(uint8_t byte)
{
    return !is_continuation(byte) && byte < 0xF8;
}

} // namespace

bool is_utf8(const uint8_t *text, uint64_t length)
{
    for (uint64_t i = 0; i < length;) {
        if (text[i] < 0x80) {
            ++i;
            continue;
        }
        if (!is_first(text[i]))
            return false;
        const utf8_sequence sequence = sequence_of(text[i++]);
        uint32_t code_point = sequence.first_payload;
        for (uint32_t more = 0; more < sequence.following; ++more) {
            if (i == length || !is_continuation(text[i]))
                return false;
            code_point = code_point << 6 | (text[i++] & 0x3Fu);
        }
        if (code_point < sequence.smallest || !is_code_point(code_point))
            return false;
    }
    return true;
}

uint64_t text_bytes(const uint8_t *text, uint64_t length)
{
    const void *nul = length == 0 ? nullptr : std::memchr(text, 0, length);
    return nul == nullptr ? length : static_cast<uint64_t>(static_cast<const uint8_t *>(nul) - text);
}

void add_payload_notes(occurrence &at, const uint8_t *data)
{
    if (at.field->kind == field_kind::bytes) {
        const bool is_address = at.field->address == address_kind::ipv6;
        at.notes.add_if(is_address && at.value.bytes != ipv6_bytes, note::no_address);
        return;
    }
    const uint8_t *text = data + at.value.offset;
    const uint64_t bytes = text_bytes(text, at.value.bytes);
    at.notes.add_if(bytes < at.value.bytes, note::nul_in_text);
    at.notes.add_if(!is_utf8(text, bytes), note::no_utf8);
}

} // namespace mava_tum_inspect
