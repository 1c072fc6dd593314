// Does a message fit the application record that an adapter decodes it into?
#pragma once

#include "inspector/library/message_table.h"
#include "mava_tum_inspect.h"

#include <cstdint>

namespace mava_tum_inspect
{

// `finding_fn` may be null.
int32_t check_message(const adapter_description &adapter, const uint8_t *data, uint64_t length, uint64_t finding_limit,
    mava_tum_inspect_finding_fn finding_fn, void *context, mava_tum_inspect_check_result &result);

} // namespace mava_tum_inspect
