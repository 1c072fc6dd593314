// The result of an adapter, field by field: which values of the wire are unchanged in the application record. The
// limits have their places; the record comes from the adapter itself.
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

// The paths of the values, list elements and unknown fields that the message has and the record does not.
std::vector<std::string> lost_in(const mava_tum_inspect::adapter_description &adapter, const byte_vector &input);

} // namespace mava_tum_test
