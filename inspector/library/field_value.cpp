#include "inspector/library/field_value.h"

#include "inspector/library/payload_notes.h"
#include "json/json_values.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

using mava_tum_inspect::address_kind;
using mava_tum_inspect::field_kind;
using mava_tum_inspect::occurrence;
using mava_tum_inspect::path_step;

namespace
{

// A record holds an address so that 192.0.2.1 is 0x010200C0, on every host.
uint32_t address_of(const occurrence &at)
{
    return __builtin_bswap32(static_cast<uint32_t>(at.number_value));
}

bool is_ipv6(const occurrence &at)
{
    return at.field->address == address_kind::ipv6 && at.value.bytes == mava_tum_inspect::ipv6_bytes;
}

std::string_view text_in(wire_bytes value)
{
    return {reinterpret_cast<const char *>(value.data()), mava_tum_inspect::text_bytes(value.data(), value.size())};
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

void write_ipv4(text_output &output, uint32_t host_order)
{
    for (const unsigned shift : {24u, 16u, 8u, 0u}) {
        output.write_number(host_order >> shift & 0xFF);
        if (shift != 0)
            output.put('.');
    }
}

} // namespace

wire_bytes value_bytes(const occurrence &at, wire_bytes wire)
{
    return wire.subspan(at.value.offset, at.value.bytes);
}

void write_value(json_writer &writer, const occurrence &at, wire_bytes wire)
{
    const wire_bytes value = value_bytes(at, wire);
    switch (at.field->kind) {
    case field_kind::varint:
        return writer.number(at.number_value);
    case field_kind::fixed32:
        return writer.string(dotted_ipv4(address_of(at)));
    case field_kind::bytes:
        return is_ipv6(at) ? writer.string(colon_ipv6(value.first<16>())) : writer.hex(value);
    default:
        return write_json_text(writer, text_in(value));
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
        return write_ipv4(output, address_of(at));
    case field_kind::bytes:
        write_hex_or_nothing(output, value);
        if (is_ipv6(at))
            output.write(" = " + colon_ipv6(value.first<16>()));
        return;
    default:
        json_writer quoted(output, json_writer::layout::one_line);
        return write_json_text(quoted, text_in(value));
    }
}

std::string text_of_value(const occurrence &at, wire_bytes wire)
{
    text_in_memory text;
    write_value(text, at, wire);
    return text.take();
}

std::string_view kind_of(const occurrence &at)
{
    if (at.field != nullptr)
        return mava_tum_inspect::kind_name(at.field->kind);
    constexpr std::string_view kinds[] = {
        "varint", "fixed64", "bytes", "wire type 3", "wire type 4", "fixed32", "wire type 6", "wire type 7"};
    return kinds[at.wire_type];
}

bool is_array_element(const path_step &step)
{
    return step.index != path_step::no_index;
}

std::string json_pointer_of(const path_step &step)
{
    std::string pointer = step.parent != nullptr ? json_pointer_of(*step.parent) : "";
    pointer += step.field != nullptr ? fmt::format("/{}", step.field->name) : fmt::format("/#{}", step.number);
    if (is_array_element(step))
        pointer += fmt::format("/{}", step.index);
    return pointer;
}

} // namespace mava_tum_cli
