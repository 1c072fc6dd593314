// What an adapter made of a message, field by field: which values stand in the application record as the wire has them.
// The limits tell where to look; the record comes from the adapter itself.
#pragma once

#include "inspector/library/message_table.h"
#include "support/hex.h"

#include <cstdint>
#include <string>
#include <vector>

namespace mava_tum_test
{

// The application record as the adapter decodes it.
std::vector<uint8_t> decode_record(const mava_tum_inspect::adapter_description &adapter, const byte_vector &input);

// The paths of what the message holds and the record does not: values, elements of lists, unknown fields.
std::vector<std::string> lost_in(const mava_tum_inspect::adapter_description &adapter, const byte_vector &input);

} // namespace mava_tum_test
