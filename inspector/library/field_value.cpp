#include "inspector/library/field_value.h"

#include "inspector/library/payload_notes.h"

#include <arpa/inet.h>
#include <cstring>

namespace mava_tum_inspect
{

namespace
{

// A record holds an address so that 192.0.2.1 is 0x010200C0, on every host.
uint32_t address_of(const occurrence &at)
{
    return __builtin_bswap32(static_cast<uint32_t>(at.number_value));
}

bool is_ipv6(const occurrence &at)
{
    return at.field->address == address_kind::ipv6 && at.value.bytes == ipv6_bytes;
}

std::string_view text_in(const occurrence &at, wire_bytes wire)
{
    const wire_bytes content = content_bytes(at, wire);
    return {reinterpret_cast<const char *>(content.data()), content.size()};
}

void write_hex_or_nothing(text_output &output, wire_bytes value)
{
    if (value.empty())
        output.write("(empty)");
    else
        output.write_hex(value);
}

void write_unknown(text_output &output, const occurrence &at, wire_bytes value)
{
    if (at.wire_type == 0)
        output.write_number(at.number_value);
    else
        write_hex_or_nothing(output, value);
}

} // namespace

wire_bytes value_bytes(const occurrence &at, wire_bytes wire)
{
    return wire.subspan(static_cast<std::size_t>(at.value.offset), static_cast<std::size_t>(at.value.bytes));
}

wire_bytes content_bytes(const occurrence &at, wire_bytes wire)
{
    const wire_bytes value = value_bytes(at, wire);
    const bool is_text =
        at.field != nullptr && (at.field->kind == field_kind::text || at.field->kind == field_kind::text_array);
    return is_text ? value.first(static_cast<std::size_t>(text_bytes(value.data(), value.size()))) : value;
}

void write_value(json_writer &writer, const occurrence &at, wire_bytes wire)
{
    const wire_bytes value = value_bytes(at, wire);
    switch (at.field->kind) {
    case field_kind::varint:
        return writer.number(at.number_value);
    case field_kind::fixed32:
        return writer.address(address_text::ipv4(address_of(at)).view());
    case field_kind::bytes:
        return is_ipv6(at) ? writer.address(address_text::ipv6(value.data()).view()) : writer.hex(value);
    default:
        return write_json_text(writer, text_in(at, wire));
    }
}

void write_value(text_output &output, const occurrence &at, wire_bytes wire)
{
    const wire_bytes value = value_bytes(at, wire);
    if (at.field == nullptr)
        return write_unknown(output, at, value);
    switch (at.field->kind) {
    case field_kind::varint:
        output.write_number(at.number_value);
        return;
    case field_kind::fixed32:
        output.write_hex(value);
        output.write(" = ");
        return output.write(address_text::ipv4(address_of(at)).view());
    case field_kind::bytes:
        write_hex_or_nothing(output, value);
        if (is_ipv6(at)) {
            output.write(" = ");
            output.write(address_text::ipv6(value.data()).view());
        }
        return;
    default:
        json_writer quoted(output, json_writer::layout::one_line);
        return write_json_text(quoted, text_in(at, wire));
    }
}

std::string_view kind_of(const occurrence &at)
{
    if (at.field != nullptr)
        return kind_name(at.field->kind);
    constexpr std::string_view kinds[] = {
        "varint", "fixed64", "bytes", "wire type 3", "wire type 4", "fixed32", "wire type 6", "wire type 7"};
    return kinds[at.wire_type];
}

address_text address_text::ipv4(uint32_t host_order)
{
    address_text address;
    for (const unsigned shift : {24u, 16u, 8u, 0u}) {
        const decimal_text part(host_order >> shift & 0xFF);
        std::memcpy(address.m_text + address.m_length, part.view().data(), part.view().size());
        address.m_length += part.view().size() + 1;
        address.m_text[address.m_length - 1] = '.';
    }
    --address.m_length;
    return address;
}

address_text address_text::ipv6(const uint8_t *bytes)
{
    address_text address;
    if (inet_ntop(AF_INET6, bytes, address.m_text, sizeof address.m_text) != nullptr)
        address.m_length = std::strlen(address.m_text);
    return address;
}

} // namespace mava_tum_inspect
