// The bytes of a session with what they mean: offset, bytes in hex, field number, name, kind, value. Fields of nested
// records are indented. A walker of its own, which shares no line with the library's decoder.
#ifndef SESSION_SETUP_WIRE_ANNOTATION_H
#define SESSION_SETUP_WIRE_ANNOTATION_H

#include <cstdint>
#include <span>
#include <string>

namespace examples::session_setup
{

// What the fields of a session on the wire are: number, name, and what a length-delimited one holds. The names are
// those of the members of the codec records. The wire itself names nothing and does not tell a text from a record, so a
// program that prints it needs this table.
enum class wire_content { number, ipv4, ipv6, bytes, text, record };

struct wire_field {
    uint32_t number;
    const char *name;
    wire_content content;
    std::span<const wire_field> fields{}; // of a record
};

// The fields of the outermost message.
std::span<const wire_field> session_fields();

// Null if the table does not know the field.
const wire_field *find_field(std::span<const wire_field> fields, uint64_t number);

// Bytes that are no fields are shown as such and end the annotation.
std::string annotate_wire(std::span<const uint8_t> wire);

} // namespace examples::session_setup

#endif
