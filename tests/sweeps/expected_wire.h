// What an encoder must produce, predicted from the tree of values.
#pragma once

#include "sweeps/record_value.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace mava_tum_test
{

// `copied`: all in the buffer. `gathered`: bytes fields travel beside it, and no length counts them.
enum class wire_mode { copied, gathered };

// A text or the content of a bytes field: copied whole or not at all.
struct payload_block {
    std::size_t offset;
    std::size_t length;
};

struct expected_wire {
    byte_vector bytes;
    std::vector<payload_block> payloads;
    uint32_t segment_count = 0;
};

// One tag of the top level with its value. A list has one entry per element.
struct wire_entry {
    std::size_t start;
    std::size_t tag_bytes;
    std::size_t end;
    std::size_t field_index;
    std::size_t element_index;
};

// The texts that an encoder writes of a list: a null element is left out.
std::vector<byte_vector> texts_on_wire(const field_value &field);

// Whether an encoder writes the field at all.
bool is_written(const field_value &field);

expected_wire wire_of(const record_value &record, wire_mode mode = wire_mode::copied);

std::vector<wire_entry> top_level_entries(const record_value &record);

// The bytes that a buffer of `capacity` bytes filled with `fill` holds after the encode.
byte_vector expected_buffer(const expected_wire &wire, std::size_t capacity, uint8_t fill);

} // namespace mava_tum_test
