// The data of one group, as it stands in the replay of a redundancy group. `..._to_codec` expects a cleared codec
// record and borrows from the entry; `..._from_codec` expects a cleared entry and copies.
#pragma once

#include "mava_tum/redundancy_group.h"
#include "tum_nal/nal_redundancy_group.h"

namespace mava_tum
{

void group_data_to_codec(mava_tum_srg_group_data &group, const tum_nal_data_group_data &entry);
void group_data_from_codec(tum_nal_data_group_data &entry, const mava_tum_srg_group_data &group);

} // namespace mava_tum
