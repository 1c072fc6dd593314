#include "app/record_layouts.h"

namespace mava_tum_cli
{

template <>
const record_layout &layout_of<tum_nal_data_stats_block>()
{
    using self = tum_nal_data_stats_block;
    static const record_layout layout = describe_layout<self>({numbers<&self::counter>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_service_entry>()
{
    using self = tum_nal_data_service_entry;
    static const record_layout layout = describe_layout<self>({text<&self::name>(), record<&self::stats>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_subscriber_stats>()
{
    using self = tum_nal_data_subscriber_stats;
    static const record_layout layout = describe_layout<self>({number<&self::value_1>(), number<&self::value_2>(),
        number<&self::value_3>(), number<&self::value_4>(), number<&self::value_5>(), number<&self::value_6>(),
        record<&self::block_7>(), records<&self::services, &self::service_count>(), number<&self::block_10_switch>(),
        record<&self::block_10>(), number<&self::block_12_switch>(), record<&self::block_12>()});
    return layout;
}

} // namespace mava_tum_cli
