#include "app/record_layouts.h"

namespace mava_tum_cli
{

template <>
const record_layout &layout_of<tum_nal_data_srg_group_rec_start_req>()
{
    using self = tum_nal_data_srg_group_rec_start_req;
    static const record_layout layout =
        describe_layout<self>({number<&self::field_1>(), number<&self::field_2>(), number<&self::field_3>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_srg_group_rec_resp>()
{
    using self = tum_nal_data_srg_group_rec_resp;
    static const record_layout layout = describe_layout<self>({number<&self::field_1>(), number<&self::field_2>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_srg_group_rec_complete_req>()
{
    using self = tum_nal_data_srg_group_rec_complete_req;
    static const record_layout layout =
        describe_layout<self>({number<&self::field_1>(), number<&self::field_2>(), number<&self::field_3>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_group_data>()
{
    using self = tum_nal_data_group_data;
    static const record_layout layout = describe_layout<self>({number<&self::field_1>(), number<&self::field_2>(),
        number<&self::field_3>(), number<&self::field_4>(), text<&self::field_5>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_srg_group_rec_replay_req>()
{
    using self = tum_nal_data_srg_group_rec_replay_req;
    static const record_layout layout = describe_layout<self>({number<&self::field_1>(), number<&self::field_2>(),
        records<&self::field_3, &self::field_3_count>(), number<&self::field_4>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_srg_group_rec_replay_resp>()
{
    using self = tum_nal_data_srg_group_rec_replay_resp;
    static const record_layout layout =
        describe_layout<self>({number<&self::field_1>(), records<&self::field_2, &self::field_2_count>(),
            records<&self::field_3, &self::field_3_count>(), number<&self::field_4>()});
    return layout;
}

} // namespace mava_tum_cli
