// The expected content of an encode adapter's message: a codec record, which the model then encodes.
#pragma once

#include "model/application_layout.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace mava_tum_model
{

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
