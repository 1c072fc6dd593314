// The count of a run, before an array is allocated for it.
#include "codec/array_run.h"

namespace mava_tum
{

run_count count_run(const uint8_t *at, const uint8_t *end, uint32_t field_number)
{
    run_position position{at, end, field_number};
    for (uint64_t elements = 1;; ++elements) {
        if (position.element().data == nullptr)
            return {0, false};
        switch (position.next()) {
        case run_position::follower::element:
            break;
        case run_position::follower::other_field:
            return {elements, true};
        case run_position::follower::truncated:
            return {0, false};
        }
    }
}

} // namespace mava_tum
