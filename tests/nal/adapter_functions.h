// The adapter of an application record, so that a test can be written once for several.
#pragma once

#include "catalogue.h"

namespace mava_tum_test
{

// The first adapter that sends or receives the record.
template <class record_type>
const mava_tum_catalogue::adapter &adapter_of()
{
    const auto *layout = &mava_tum_catalogue::layout_of<record_type>();
    const mava_tum_catalogue::adapter *adapter = mava_tum_catalogue::all_adapters().data();
    while (adapter->sent != layout && adapter->received != layout)
        ++adapter;
    return *adapter;
}

// Two adapters have the same record. This type without a member names the second one.
struct rec_complete_res : tum_nal_data_rec_res {
};

template <>
inline const mava_tum_catalogue::adapter &adapter_of<rec_complete_res>()
{
    return *mava_tum_catalogue::find_adapter("rec_complete_res");
}

} // namespace mava_tum_test
