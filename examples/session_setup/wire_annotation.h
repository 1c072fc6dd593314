// The bytes of a session with what they mean: offset, bytes in hex, field number, name, kind, value. Fields of nested
// records are indented. A walker of its own, which shares no line with the library's decoder.
#ifndef SESSION_SETUP_WIRE_ANNOTATION_H
#define SESSION_SETUP_WIRE_ANNOTATION_H

#include <cstdint>
#include <span>
#include <string>

namespace examples::session_setup
{

// Bytes that are no fields are shown as such and end the annotation.
std::string annotate_wire(std::span<const uint8_t> wire);

} // namespace examples::session_setup

#endif
