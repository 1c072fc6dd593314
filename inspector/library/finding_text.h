// The sentence for a value that does not arrive in an application record. It begins with the field.
#pragma once

#include "inspector/library/fault_text.h"
#include "inspector/library/message_table.h"
#include "inspector/library/wire_event.h"
#include "mava_tum_inspect.h"

#include <cstdint>

namespace mava_tum_inspect
{

// A finding without its text.
struct raw_finding {
    int32_t kind;
    const occurrence &at;
    const member_limit *limit; // null: nothing takes the field
    uint64_t found = 0;
    uint64_t allowed = 0;
};

void describe_finding(sentence &text, const raw_finding &finding);

} // namespace mava_tum_inspect
