// The expected application record of a decode adapter, computed from the model's codec record.
#pragma once

#include "model/application_layout.h"

#include <cstdint>
#include <string>

namespace mava_tum_model
{

// `codec_record` is the result of the model's decode, after success or failure. Writes layout.extent.bytes.
void model_receive(
    const message &of, const uint8_t *codec_record, const application_layout &layout, uint8_t *application_record);

// The member that the byte at `offset` belongs to, as field numbers: "10.4.2", or "11[3].12" inside a list.
std::string member_at(const application_layout &layout, uint32_t offset);

} // namespace mava_tum_model
