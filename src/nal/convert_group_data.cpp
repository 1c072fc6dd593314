#include "nal/convert_group_data.h"

#include "nal/convert_rows.h"

namespace mava_tum
{

void group_data_to_codec(mava_tum_srg_group_data &group, const tum_nal_data_group_data &entry)
{
    put_nonzero<1>(group, group.field_1, entry.field_1);
    put_nonzero<2>(group, group.field_2, entry.field_2);
    put_nonzero<3>(group, group.field_3, entry.field_3);
    put_nonzero<4>(group, group.field_4, entry.field_4);
    put_text<5>(group, group.field_5, entry.field_5);
}

void group_data_from_codec(tum_nal_data_group_data &entry, const mava_tum_srg_group_data &group)
{
    take<1>(entry.field_1, group, group.field_1);
    take<2>(entry.field_2, group, group.field_2);
    take<3>(entry.field_3, group, group.field_3);
    take<4>(entry.field_4, group, group.field_4);
    take_text<5>(entry.field_5, group, group.field_5);
}

} // namespace mava_tum
