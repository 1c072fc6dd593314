#include "app/record_layouts.h"

namespace mava_tum_cli
{

template <>
const record_layout &layout_of<tum_nal_data_qos_element>()
{
    using self = tum_nal_data_qos_element;
    static const record_layout layout =
        describe_layout<self>({number<&self::value_1>(), number<&self::value_2>(), text<&self::text_3>(),
            text<&self::text_4>(), text<&self::text_5>(), number<&self::value_6>(), number<&self::value_7>(),
            number<&self::value_8>(), text<&self::text_12>(), text<&self::text_10>(), text<&self::text_11>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_session_context>()
{
    using self = tum_nal_data_session_context;
    static const record_layout layout = describe_layout<self>({number<&self::session_value_1>(),
        number<&self::session_value_2>(), number<&self::session_value_3>(), number<&self::session_value_4>(),
        number<&self::feature_mask>(), reserved<&self::reserved_6>(), number<&self::session_value_7>(),
        number<&self::ipv4_value_1>(), ipv4<&self::ipv4_address>(), reserved<&self::reserved_10>(),
        number<&self::ipv6_value_1>(), reserved<&self::reserved_11>(), ipv6<&self::ipv6_part_2>(),
        ipv6<&self::ipv6_part_3>(), ipv6<&self::ipv6_part_4>(), ipv6<&self::ipv6_part_6>(),
        number<&self::ipv6_value_5>(), number<&self::ipv6_value_7>(), number<&self::session_data_value_1>(),
        number<&self::session_data_value_2>(), number<&self::ppp_value_1>(), number<&self::ppp_value_2>(),
        number<&self::ppp_value_3>(), number<&self::ppp_value_4>(), bytes<&self::ppp_identifier>(),
        number<&self::ppp_value_6>(), number<&self::l2tp_kind>(), ipv4<&self::l2tp_ipv4_2>(),
        ipv4<&self::l2tp_ipv4_3>(), ipv6<&self::l2tp_ipv6_4>(), ipv6<&self::l2tp_ipv6_5>(),
        number<&self::l2tp_value_6>(), number<&self::l2tp_value_7>(), number<&self::l2tp_value_8>(),
        number<&self::l2tp_value_9>(), number<&self::l2tp_value_10>(), number<&self::l2tp_value_11>(),
        number<&self::l2tp_value_12>(), number<&self::l2tp_value_13>(), number<&self::l2tp_value_14>(),
        number<&self::l2tp_value_15>(), number<&self::l2tp_value_16>(), number<&self::l2tp_value_17>(),
        number<&self::l2tp_value_18>(), text<&self::l2tp_name>(), text<&self::session_name>(),
        bytes<&self::session_identifier>(), text<&self::session_label>(), text<&self::session_text>(),
        number<&self::session_value_9>(), number<&self::vlan_value_1>(), number<&self::vlan_value_2>(),
        number<&self::session_data_value_11>(), records<&self::qos, &self::qos_count>(), number<&self::acl_value_1>(),
        text<&self::acl_text_2>(), text<&self::acl_text_3>(), text<&self::acl_text_4>(), text<&self::acl_text_5>(),
        number<&self::redirect_value_1>(), text<&self::redirect_text_2>(), number<&self::intercept_value_1>(),
        number<&self::intercept_value_2>(), number<&self::intercept_value_3>(), bytes<&self::intercept_identifier>(),
        number<&self::intercept_value_5>(), number<&self::intercept_value_6>(), ipv4<&self::intercept_ipv4_address>(),
        ipv6<&self::intercept_ipv6_address>(), number<&self::urpf_1_value_1>(), number<&self::urpf_1_value_2>(),
        number<&self::urpf_2_value_1>(), number<&self::urpf_2_value_2>(), number<&self::icmp_1_value>(),
        number<&self::icmp_2_value>(), number<&self::mtu_1_value>(), number<&self::mtu_2_value>(),
        number<&self::mtu_3_value>(), number<&self::accounting_flags>(), number<&self::accounting_value_2>(),
        number<&self::accounting_value_3>(), records<&self::ipv4_routes, &self::ipv4_route_count>(),
        records<&self::ipv6_routes, &self::ipv6_route_count>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_session_delete>()
{
    using self = tum_nal_data_session_delete;
    static const record_layout layout = describe_layout<self>({number<&self::field_1>(), number<&self::field_2>(),
        number<&self::field_3>(), number<&self::field_4>(), number<&self::field_5>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_sess_oper_resp>()
{
    using self = tum_nal_data_sess_oper_resp;
    static const record_layout layout = describe_layout<self>({number<&self::field_1>(), number<&self::field_2>(),
        number<&self::field_3>(), number<&self::field_4>(), number<&self::field_5>(), text<&self::field_6>(),
        text<&self::field_7>(), text<&self::field_8>(), record<&self::field_9>()});
    return layout;
}

} // namespace mava_tum_cli
