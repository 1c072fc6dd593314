#include "app/record_layouts.h"

namespace mava_tum_cli
{

template <>
const record_layout &layout_of<tum_nal_data_ipv4_route>()
{
    using self = tum_nal_data_ipv4_route;
    static const record_layout layout = describe_layout<self>({number<&self::field_1>(), text<&self::field_2>(),
        ipv4<&self::field_3>(), number<&self::field_4>(), ipv4<&self::field_5>(), text<&self::field_6>(),
        number<&self::field_7>(), number<&self::field_8>(), text<&self::field_9>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_ipv6_route>()
{
    using self = tum_nal_data_ipv6_route;
    static const record_layout layout = describe_layout<self>({number<&self::field_1>(), text<&self::field_2>(),
        ipv6<&self::field_3>(), number<&self::field_4>(), ipv6<&self::field_5>(), text<&self::field_6>(),
        number<&self::field_7>(), number<&self::field_8>(), text<&self::field_9>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_sub_route>()
{
    using self = tum_nal_data_sub_route;
    static const record_layout layout = describe_layout<self>({number<&self::field_1>(), number<&self::field_2>(),
        number<&self::field_3>(), records<&self::ipv4_routes, &self::ipv4_route_count>(),
        records<&self::ipv6_routes, &self::ipv6_route_count>(), number<&self::field_6>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_subscriber_route_resp>()
{
    using self = tum_nal_data_subscriber_route_resp;
    static const record_layout layout = describe_layout<self>(
        {number<&self::field_1>(), number<&self::field_2>(), text<&self::field_3>(), text<&self::field_4>()});
    return layout;
}

} // namespace mava_tum_cli
