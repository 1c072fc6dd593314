#include "inspector/library/value_text.h"

#include "codec/wire_types.h"
#include "inspector/library/field_value.h"
#include "inspector/library/payload_notes.h"

namespace mava_tum_inspect
{

namespace
{

constexpr uint64_t shown_text_bytes = 48;

void add_byte_count(sentence &text, uint64_t bytes)
{
    text.add_number(bytes).add(bytes == 1 ? " byte" : " bytes");
}

void add_text_byte(sentence &text, uint8_t byte)
{
    const char character = static_cast<char>(byte);
    if (character == '"' || character == '\\')
        text.add("\\").add({&character, 1});
    else if (byte >= 0x20 && byte < 0x7F)
        text.add({&character, 1});
    else
        text.add("\\x").add_hex(byte);
}

void describe_bytes(sentence &text, const occurrence &at, const uint8_t *data)
{
    if (at.field->address == address_kind::ipv6 && at.value.bytes == ipv6_bytes)
        add_ipv6(text, data + at.value.offset);
    else
        add_byte_count(text, at.value.bytes);
}

void describe_unknown(sentence &text, const occurrence &at)
{
    if (at.wire_type == static_cast<uint32_t>(mava_tum::wire_type::varint))
        text.add_number(at.number_value);
    else
        add_byte_count(text, at.stated_bytes);
}

} // namespace

void add_ipv4(sentence &text, uint32_t network_order)
{
    text.add(address_text::ipv4(__builtin_bswap32(network_order)).view());
}

void add_ipv6(sentence &text, const uint8_t *address)
{
    text.add(address_text::ipv6(address).view());
}

void add_quoted(sentence &text, const uint8_t *bytes, uint64_t length)
{
    const uint64_t shown = length <= shown_text_bytes ? length : shown_text_bytes;
    text.add("\"");
    for (uint64_t i = 0; i < shown; ++i)
        add_text_byte(text, bytes[i]);
    text.add("\"");
    if (shown < length)
        text.add("... (").add_number(length).add(" bytes)");
}

void describe_value(sentence &text, const occurrence &at, const uint8_t *data)
{
    if (at.field == nullptr)
        return describe_unknown(text, at);
    switch (at.field->kind) {
    case field_kind::varint:
        text.add_number(at.number_value);
        return;
    case field_kind::fixed32:
        return add_ipv4(text, static_cast<uint32_t>(at.number_value));
    case field_kind::bytes:
        return describe_bytes(text, at, data);
    case field_kind::text:
    case field_kind::text_array:
        return add_quoted(text, data + at.value.offset, at.value.bytes);
    default:
        return add_byte_count(text, at.value.bytes);
    }
}

} // namespace mava_tum_inspect
