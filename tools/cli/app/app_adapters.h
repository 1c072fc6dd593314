// The adapters of the library by name, in one shape.
#pragma once

#include "app/record_member.h"

#include <span>
#include <string_view>

namespace mava_tum_cli
{

struct app_adapter {
    std::string_view name;    // as in tum_nal_data_gpb_encode_tum_<name>
    std::string_view message; // the codec message that carries it
    // One record has another layout for each direction.
    const record_layout *encode_layout;
    const record_layout *decode_layout;
    uint64_t (*encode)(const std::byte *record, uint8_t *buffer, uint32_t capacity);
    void (*decode)(const uint8_t *data, uint32_t length, std::byte *record);
};

std::span<const app_adapter> all_adapters();

// Null: there is none.
const app_adapter *find_adapter(std::string_view name);

} // namespace mava_tum_cli
