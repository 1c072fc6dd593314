// The events of a walk over wire bytes: fields, and the fault that ends a decode.
#pragma once

#include "inspector/library/field_path.h"
#include "inspector/library/message_table.h"
#include "inspector/library/wire_cursor.h"

#include <cstdint>

namespace mava_tum_inspect
{

// Forms that the decoders accept and no encoder of this library writes. docs/leniency.md has the numbers.
enum class note : uint32_t {
    over_long_tag = 1 << 0,    // L2
    cut_tag = 1 << 1,          // L2: bits above 32 were dropped
    over_long_length = 1 << 2, // L1
    cut_length = 1 << 3,       // L1
    over_long_value = 1 << 4,  // L1
    cut_value = 1 << 5,        // L1
    unknown_field = 1 << 6,    // skipped
    number_zero = 1 << 7,      // L4
    beyond_end = 1 << 8,       // L3: an unknown field that ends behind its record
    wire_type_in_run = 1 << 9, // L5
    replaced_value = 1 << 10,  // a scalar that occurred before
    replaced_record = 1 << 11, // L11
    nul_in_text = 1 << 12,     // L8
    no_utf8 = 1 << 13,         // L9
    no_address = 1 << 14,      // L13: an IPv6 address of another length than 16
};

struct note_set {
    uint32_t bits = 0;

    bool has(note asked) const
    {
        return (bits & static_cast<uint32_t>(asked)) != 0;
    }

    void add_if(bool applies, note added)
    {
        if (applies)
            bits |= static_cast<uint32_t>(added);
    }
};

// A tag and its value.
struct occurrence {
    occurrence() = default;

    // Not constexpr: a compiler would clear the whole block first, which takes longer than the members.
    occurrence(const message_description &around, const path_step *parent, uint32_t levels)
        : record(&around), depth(levels)
    {
        path.parent = parent;
    }

    path_step path;                              // valid during the call that it comes with
    const message_description *record = nullptr; // around the field
    const field_description *field = nullptr;    // null: unknown to the record
    uint32_t depth = 0;                          // 0: in the message itself
    uint32_t wire_type = 0;
    extent tag;
    extent length;             // no bytes: there is none
    extent value;              // the part inside the record
    uint64_t stated_bytes = 0; // of the value; more than value.bytes for an unknown field that ends behind its record
    uint64_t number_value = 0; // of a varint or a fixed32
    note_set notes;
};

// The reason for an error of a decode.
enum class fault_rule : uint8_t {
    none,
    tag_cut,               // a tag is not whole
    tag_behind_run_cut,    // the same, of the tag that would have ended a run: the run is counted first
    varint_cut,            // the value of a varint field is not whole
    fixed32_cut,           // fewer than four bytes
    length_cut,            // a length is not whole
    value_beyond_end,      // a length runs past the end
    second_bytes,          // a bytes field occurs a second time
    second_text,           // a text occurs a second time
    second_run,            // an array occurs in a second run
    unknown_varint_cut,    // an unknown varint is not whole
    unknown_length_cut,    // the length of an unknown field is not whole
    unsupported_wire_type, // of an unknown field
    wrong_wire_type,       // of a known one
    text_too_long,         // its block of length + 1 bytes wraps to size 0 in 32 bits
    array_too_long,        // more elements than a count of 32 bits can tell
};

struct wire_fault {
    fault_rule rule;
    int32_t result;  // of the decode
    uint64_t offset; // of the tag, length or value that breaks the rule
    occurrence at;   // as far as it was read
};

// MAVA_TUM_OK, or the result of a decode for a fault.
int32_t result_of(fault_rule rule);

} // namespace mava_tum_inspect
