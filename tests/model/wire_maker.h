// Wire bytes from the schema: valid ones for seeds, and ones that are wrong in the ways wire bytes can be wrong.
#pragma once

#include "model/message_tables.h"
#include "model/random_source.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace mava_tum_model
{

using wire_bytes = std::vector<uint8_t>;

// Every field once, lists with `list_length` elements, and so in all nested messages. Values differ from field to
// field.
wire_bytes full_wire(const message &of, uint32_t list_length);

// Some fields, well formed.
wire_bytes random_wire(const message &of, random_source &random);

// For each message: nothing, each field alone, each field alone and empty, everything with one and with two elements.
std::vector<wire_bytes> seed_wires(const message &of);

// One change of shape: a field repeated, moved, dropped, added or unknown; a run split; a tag, a value or a length in
// more bytes than it needs; a length that lies; another wire type; a byte changed; the end cut off. Also inside nested
// messages, whose lengths are then put right.
void mutate_wire(const message &of, wire_bytes &wire, random_source &random);

// Adds at least `more_bytes`: one field is repeated, or its content made longer. Also inside nested messages.
void lengthen_wire(const message &of, wire_bytes &wire, std::size_t more_bytes, random_source &random);

} // namespace mava_tum_model
