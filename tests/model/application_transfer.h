// Between the model's codec record and an application record: what a decode adapter has to leave, and what an encode
// adapter has to send.
#pragma once

#include "model/application_layout.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace mava_tum_model
{

// `codec_record` is the result of the model's decode, after success or failure. Writes layout.extent.bytes.
void model_receive(
    const message &of, const uint8_t *codec_record, const application_layout &layout, uint8_t *application_record);

// The member that the byte at `offset` belongs to, as field numbers: "10.4.2", or "11[3].12" inside a list.
std::string member_at(const application_layout &layout, uint32_t offset);

// Memory for the elements of lists; the codec record points into it, and into the application record.
class send_scratch
{
public:
    uint8_t *zeroed(std::size_t bytes);

private:
    std::vector<std::unique_ptr<uint64_t[]>> blocks_;
};

// `codec_record` is all zero before.
void model_send(const message &of, uint8_t *codec_record, const application_layout &layout,
    const uint8_t *application_record, send_scratch &scratch);

} // namespace mava_tum_model
