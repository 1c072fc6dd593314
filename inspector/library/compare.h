// What two messages that decode have in different ways, field by field.
#pragma once

#include "inspector/library/field_value.h"

namespace mava_tum_inspect
{

class difference_visitor
{
public:
    // Null: the other message alone has the field. The paths are the same; each offset is in its own message.
    virtual void on_difference(const occurrence *, const occurrence *) {}

    bool is_stopped = false; // set by a visitor that wants no more

protected:
    ~difference_visitor() = default;
};

// In the order of the first message; what only the second has comes last. Of a scalar or record that occurs several
// times, the last one counts. Unknown fields are compared in the order of their numbers. Both messages decode.
void compare_messages(
    const message_description &message, wire_bytes first, wire_bytes second, difference_visitor &visitor);

// mava_tum_inspect_compare.
int32_t compare_messages(const message_description &message, wire_bytes first, wire_bytes second,
    mava_tum_inspect_difference_fn difference_fn, void *context, uint64_t *difference_count);

} // namespace mava_tum_inspect
