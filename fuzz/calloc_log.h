// Stands between the adapters and calloc and free. The program is linked with --wrap=calloc and --wrap=free; without a
// live log both behave as always.
#pragma once

#include "model/block_log.h"

namespace mava_tum_fuzz
{

// While it lives, calloc and free go through `log`. One at a time.
class calloc_log
{
public:
    explicit calloc_log(mava_tum_model::block_log &log);
    calloc_log(const calloc_log &) = delete;
    calloc_log &operator=(const calloc_log &) = delete;
    ~calloc_log();
};

} // namespace mava_tum_fuzz
