// The path of a field, as names: "session_data.l2tp.field_2", "route_ipv4[3].field_9", "session_data.#99" for a number
// that the record does not know.
#pragma once

#include "inspector/library/message_table.h"
#include "inspector/library/text_builder.h"
#include "mava_tum_inspect.h"

#include <cstdint>

namespace mava_tum_inspect
{

// One step from a record into a field. Steps are on the stack of the walk and point to the enclosing step.
struct path_step {
    static constexpr uint64_t no_index = UINT64_MAX; // an array as a whole, or a field that is no array

    const path_step *parent = nullptr;        // null: the record is the message itself
    const field_description *field = nullptr; // null: unknown
    uint32_t number = 0;
    uint64_t index = no_index;
};

// Longer than any path: a test constructs the longest.
using path_text = text_builder<MAVA_TUM_INSPECT_PATH_BYTES>;

// `step` may be null: the empty path of the message itself.
void append_path(path_text &text, const path_step *step);

// The path as a JSON pointer: "/qos/3/field_2", "/session_data/#99" for a number that the record does not know.
void append_pointer(path_text &text, const path_step &step);

// The last step alone.
void append_step(path_text &text, const path_step &step);

} // namespace mava_tum_inspect
