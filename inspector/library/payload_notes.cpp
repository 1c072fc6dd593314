#include "inspector/library/payload_notes.h"

#include "inspector/library/utf8_text.h"

#include <cstring>

namespace mava_tum_inspect
{

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
    at.notes.add_if(!is_utf8({reinterpret_cast<const char *>(text), static_cast<std::size_t>(bytes)}), note::no_utf8);
}

} // namespace mava_tum_inspect
