// The adapters, for records that are JSON.
#pragma once

#include "app/record_json.h"
#include "inspector/library/message_table.h"

#include <optional>

namespace mava_tum_cli
{

// Throws bad_use that begins with the path of what is wrong.
byte_vector encode_record(const mava_tum_inspect::adapter_description &adapter, const json &document);

json decode_record(const mava_tum_inspect::adapter_description &adapter, std::span<const uint8_t> wire);

// A member that has a value in a record, and does not arrive.
struct unsent_member {
    std::string name;
    std::optional<unsigned> feature_bit; // with this bit of the feature mask it would
};

// Looks at what arrives of a record that can be encoded. A value of zeros is none: it arrives as what it is.
std::vector<unsent_member> unsent_members(
    const mava_tum_inspect::adapter_description &adapter, const json &document, std::span<const uint8_t> wire);

} // namespace mava_tum_cli
