// Wire bytes from the schema: valid ones for seeds, and malformed ones of all kinds.
#pragma once

#include "model/message_tables.h"
#include "model/random_source.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace mava_tum_model
{

using wire_bytes = std::vector<uint8_t>;

// Every field once, lists with `list_length` elements, also in all nested messages. Values differ from field to field.
wire_bytes full_wire(const message &of, uint32_t list_length);

// Some fields, well formed.
wire_bytes random_wire(const message &of, random_source &random);

// For each message: nothing, each field alone, each field alone and empty, everything with one and with two elements.
std::vector<wire_bytes> seed_wires(const message &of);

// One change of shape: a field repeated, moved, dropped, added or unknown; a run split; an over-long tag, value or
// length; a wrong length; another wire type; a changed byte; a truncated end. Also inside nested messages, whose
// lengths are then corrected.
void mutate_wire(const message &of, wire_bytes &wire, random_source &random);

// Adds at least `more_bytes`: one field is repeated, or its content extended. Also inside nested messages.
void lengthen_wire(const message &of, wire_bytes &wire, std::size_t more_bytes, random_source &random);

} // namespace mava_tum_model
