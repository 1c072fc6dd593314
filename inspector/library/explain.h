// A message as annotated lines, and the verdict on it.
#pragma once

#include "inspector/library/message_table.h"
#include "inspector/library/wire_walk.h"
#include "mava_tum_inspect.h"

#include <cstdint>

namespace mava_tum_inspect
{

// Calls `line_fn` with the lines; offsets are from the start of `data`. `verdict` may be null.
int32_t explain_message(const message_description &message, const uint8_t *data, uint64_t length,
    mava_tum_inspect_line_fn line_fn, void *context, mava_tum_inspect_verdict *verdict);

// Both for a single event of a walk, for other visitors.
void fill_success(mava_tum_inspect_verdict &verdict, uint64_t length);
void fill_fault(mava_tum_inspect_verdict &verdict, const wire_fault &fault);

} // namespace mava_tum_inspect
