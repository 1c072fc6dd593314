#include "message/field_value.h"

#include "input/hex_text.h"
#include "inspector/library/payload_notes.h"

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

std::string hex_or_nothing(wire_bytes value)
{
    return value.empty() ? "(empty)" : hex_of_bytes(value);
}

std::string text_of_unknown(const occurrence &at, wire_bytes value)
{
    return at.wire_type == 0 ? std::to_string(at.number_value) : hex_or_nothing(value);
}

} // namespace

wire_bytes value_bytes(const occurrence &at, wire_bytes wire)
{
    return wire.subspan(at.value.offset, at.value.bytes);
}

json json_of_value(const occurrence &at, wire_bytes wire)
{
    switch (at.field->kind) {
    case field_kind::varint:
        return at.number_value;
    case field_kind::fixed32:
        return json_of_ipv4(address_of(at));
    case field_kind::bytes:
        return json_of_bytes(value_bytes(at, wire), is_ipv6(at));
    default:
        return json_of_text(text_in(value_bytes(at, wire)));
    }
}

std::string text_of_value(const occurrence &at, wire_bytes wire)
{
    const wire_bytes value = value_bytes(at, wire);
    if (at.field == nullptr)
        return text_of_unknown(at, value);
    switch (at.field->kind) {
    case field_kind::varint:
        return std::to_string(at.number_value);
    case field_kind::fixed32:
        return fmt::format("{} = {}", hex_of_bytes(value), dotted_ipv4(address_of(at)));
    case field_kind::bytes:
        return is_ipv6(at) ? fmt::format("{} = {}", hex_of_bytes(value), colon_ipv6(value.first<16>()))
                           : hex_or_nothing(value);
    default:
        return json_of_text(text_in(value)).dump();
    }
}

std::string kind_of(const occurrence &at)
{
    if (at.field != nullptr)
        return mava_tum_inspect::kind_name(at.field->kind);
    switch (at.wire_type) {
    case 0:
        return "varint";
    case 1:
        return "fixed64";
    case 2:
        return "bytes";
    case 5:
        return "fixed32";
    default:
        return fmt::format("wire type {}", at.wire_type);
    }
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
