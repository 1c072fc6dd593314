// The data of one group, as it stands in the replay of a redundancy group: its way to the wire, and its way back into a
// cleared entry.
#pragma once

#include "mava_tum/redundancy_group.h"
#include "nal/convert_rows.h"
#include "tum_nal/nal_redundancy_group.h"

namespace mava_tum
{

struct group_data_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_group_data &entry)
    {
        put_nonzero<1>(fields, entry.field_1);
        put_nonzero<2>(fields, entry.field_2);
        put_nonzero<3>(fields, entry.field_3);
        put_nonzero<4>(fields, entry.field_4);
        put_text<5>(fields, entry.field_5);
    }
};

inline void group_data_from_codec(tum_nal_data_group_data &entry, const mava_tum_srg_group_data &group)
{
    take(entry.field_1, group.field_1);
    take(entry.field_2, group.field_2);
    take(entry.field_3, group.field_3);
    take(entry.field_4, group.field_4);
    take_text<5>(entry.field_5, group, group.field_5);
}

} // namespace mava_tum
