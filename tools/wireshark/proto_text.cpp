#include "proto_text.h"

#include "inspect/message_table.h"

namespace mava_tum_wireshark
{

namespace
{

using mava_tum_inspect::address_kind;
using mava_tum_inspect::field_description;
using mava_tum_inspect::field_kind;
using mava_tum_inspect::message_description;

constexpr const char *head =
    R"(// The 40 messages, for programs that want to name what is on the wire. Made by make_proto from the library's own lists
// of fields; do not edit.
//
// Every field has presence. A text is a `string` here, so that it is shown as one; the library asks no character set of
// it. IPv4 addresses are the fixed32 fields: their four bytes stand on the wire in network order, and are shown here as
// the little-endian number that protobuf takes them for.
syntax = "proto2";

package mava_tum;
)";

std::string type_of(const field_description &field)
{
    switch (field.kind) {
    case field_kind::varint:
        return field.value_bits == 64 ? "uint64" : "uint32";
    case field_kind::fixed32:
        return "fixed32";
    case field_kind::bytes:
        return "bytes";
    case field_kind::text:
    case field_kind::text_array:
        return "string";
    case field_kind::record:
    case field_kind::record_array:
        break;
    }
    return field.nested->name;
}

const char *label_of(field_kind kind)
{
    const bool repeats = kind == field_kind::record_array || kind == field_kind::text_array;
    return repeats ? "repeated" : "optional";
}

std::string message_text(const message_description &message)
{
    std::string text = std::string("\nmessage ") + message.name + " {\n";
    for (const field_description &field : message.fields)
        text += std::string("  ") + label_of(field.kind) + " " + type_of(field) + " " + field.name + " = " +
                std::to_string(field.number) + ";\n";
    return text + "}\n";
}

} // namespace

std::string proto_text()
{
    std::string text = head;
    for (const message_description &message : mava_tum_inspect::all_messages())
        text += message_text(message);
    return text;
}

std::string address_table()
{
    std::string text;
    for (const message_description &message : mava_tum_inspect::all_messages())
        for (const field_description &field : message.fields)
            if (field.address != address_kind::none)
                text += std::string("    [\"pbf.mava_tum.") + message.name + "." + field.name + "\"] = \"" +
                        (field.address == address_kind::ipv4 ? "ipv4" : "ipv6") + "\",\n";
    return text;
}

std::string port_table()
{
    std::string text = "# Which message travels to which UDP port. Change it as you need: install_profile keeps changes.\n";
    unsigned port = port_before_first;
    for (const message_description &message : mava_tum_inspect::all_messages())
        text += "\"" + std::to_string(++port) + "\",\"mava_tum." + message.name + "\"\n";
    return text;
}

} // namespace mava_tum_wireshark
