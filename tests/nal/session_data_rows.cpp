// The rows of the session data (PPP, L2TP, VLAN and what surrounds them) and of the lists.
#include "nal/adapter_calls.h"
#include "nal/session_rows.h"

namespace mava_tum_test
{

using session = tum_nal_data_session_context;

namespace
{

std::vector<session_row> ppp_rows()
{
    return {
        {.what = "PPP values 1 and 4",
            .fill =
                [](session &s) {
                    s.ppp_value_1 = 1;
                    s.ppp_value_4 = 300;
                },
            .features = TUM_NAL_FEATURE_PPP_1_4,
            .data = "1A 05 08 01 20 AC 02"},
        {.what = "PPP values 2 and 3",
            .fill =
                [](session &s) {
                    s.ppp_value_2 = 2;
                    s.ppp_value_3 = 3;
                },
            .features = TUM_NAL_FEATURE_PPP_2_3,
            .data = "1A 04 10 02 18 03"},
        {.what = "PPP values of zero",
            .fill = [](session &) {},
            .features = TUM_NAL_FEATURE_PPP_1_4 | TUM_NAL_FEATURE_PPP_2_3},
        {.what = "PPP identifier",
            .fill = [](session &s) { set_bytes(s.ppp_identifier, "010203040506070809"); },
            .features = TUM_NAL_FEATURE_PPP_IDENTIFIER,
            .data = "1A 0B 2A 09 010203040506070809"},
        {.what = "a PPP identifier of zeros",
            .fill = [](session &) {},
            .features = TUM_NAL_FEATURE_PPP_IDENTIFIER,
            .data = "1A 0B 2A 09 000000000000000000"},
        {.what = "PPP value 6, without a feature",
            .fill = [](session &s) { s.ppp_value_6 = 0xFFFF; },
            .data = "1A 04 30 FF FF 03"},
    };
}

std::vector<session_row> l2tp_rows()
{
    return {
        {.what = "an L2TP kind of zero",
            .fill = [](session &) {},
            .features = TUM_NAL_FEATURE_L2TP,
            .data = "1A 00 22 02 08 00"},
        {.what = "L2TP IPv4 end points",
            .fill =
                [](session &s) {
                    s.l2tp_kind = TUM_NAL_L2TP_IPV4;
                    s.l2tp_ipv4_2 = 0xC0000202;
                    s.l2tp_ipv4_3 = 0xC0000203;
                },
            .features = TUM_NAL_FEATURE_L2TP,
            .data = "1A 00 22 0C 08 01 15 C0 00 02 02 1D C0 00 02 03"},
        {.what = "the first L2TP IPv4 end point alone",
            .fill =
                [](session &s) {
                    s.l2tp_kind = TUM_NAL_L2TP_IPV4;
                    s.l2tp_ipv4_2 = 0xC0000202;
                },
            .features = TUM_NAL_FEATURE_L2TP,
            .data = "1A 00 22 07 08 01 15 C0 00 02 02"},
        {.what = "the second L2TP IPv4 end point alone",
            .fill =
                [](session &s) {
                    s.l2tp_kind = TUM_NAL_L2TP_IPV4;
                    s.l2tp_ipv4_3 = 0xC0000203;
                },
            .features = TUM_NAL_FEATURE_L2TP,
            .data = "1A 00 22 07 08 01 1D C0 00 02 03"},
        {.what = "L2TP IPv6 end points",
            .fill =
                [](session &s) {
                    s.l2tp_kind = TUM_NAL_L2TP_IPV6;
                    set_bytes(s.l2tp_ipv6_4, "20000000 00000000 00000000 00000000");
                    set_bytes(s.l2tp_ipv6_5, "00000000 00000000 00000000 00000001");
                },
            .features = TUM_NAL_FEATURE_L2TP,
            .data = "1A 00 22 26 08 02 22 10 20000000 00000000 00000000 00000000"
                    "2A 10 00000000 00000000 00000000 00000001"},
        {.what = "the first L2TP IPv6 end point alone, non-zero in its second word",
            .fill =
                [](session &s) {
                    s.l2tp_kind = TUM_NAL_L2TP_IPV6;
                    set_bytes(s.l2tp_ipv6_4, "00000000 00010000 00000000 00000000");
                },
            .features = TUM_NAL_FEATURE_L2TP,
            .data = "1A 00 22 14 08 02 22 10 00000000 00010000 00000000 00000000"},
        {.what = "the second L2TP IPv6 end point alone, non-zero in its third word",
            .fill =
                [](session &s) {
                    s.l2tp_kind = TUM_NAL_L2TP_IPV6;
                    set_bytes(s.l2tp_ipv6_5, "00000000 00000000 00000100 00000000");
                },
            .features = TUM_NAL_FEATURE_L2TP,
            .data = "1A 00 22 14 08 02 2A 10 00000000 00000000 00000100 00000000"},
        {.what = "L2TP values 6 to 10",
            .fill =
                [](session &s) {
                    s.l2tp_value_6 = 6;
                    s.l2tp_value_7 = 7;
                    s.l2tp_value_8 = 8;
                    s.l2tp_value_9 = 0xFFFF;
                    s.l2tp_value_10 = 255;
                },
            .features = TUM_NAL_FEATURE_L2TP,
            .data = "1A 00 22 0F 08 00 30 06 38 07 40 08 48 FF FF 03 50 FF 01"},
        {.what = "L2TP values 11 to 15",
            .fill =
                [](session &s) {
                    s.l2tp_value_11 = 11;
                    s.l2tp_value_12 = 12;
                    s.l2tp_value_13 = 13;
                    s.l2tp_value_14 = 14;
                    s.l2tp_value_15 = 15;
                },
            .features = TUM_NAL_FEATURE_L2TP,
            .data = "1A 00 22 0C 08 00 58 0B 60 0C 68 0D 70 0E 78 0F"},
        {.what = "L2TP values 16 to 18, which need 15 and 17",
            .fill =
                [](session &s) {
                    s.l2tp_value_15 = 15;
                    s.l2tp_value_16 = 16;
                    s.l2tp_value_17 = 17;
                    s.l2tp_value_18 = 18;
                },
            .features = TUM_NAL_FEATURE_L2TP,
            .data = "1A 00 22 0D 08 00 78 0F 80 01 10 88 01 11 90 01 12"},
        {.what = "L2TP value 17 alone",
            .fill = [](session &s) { s.l2tp_value_17 = 17; },
            .features = TUM_NAL_FEATURE_L2TP,
            .data = "1A 00 22 05 08 00 88 01 11"},
        {.what = "L2TP name",
            .fill = [](session &s) { set_text(s.l2tp_name, "lac"); },
            .features = TUM_NAL_FEATURE_L2TP,
            .data = "1A 00 22 08 08 00 9A 01 03 6C6163"},
    };
}

std::vector<session_row> vlan_rows()
{
    return {
        {.what = "VLAN 1",
            .fill = [](session &s) { s.vlan_value_1 = 100; },
            .features = TUM_NAL_FEATURE_VLAN_1,
            .data = "1A 00 52 02 08 64"},
        {.what = "VLAN 2",
            .fill = [](session &s) { s.vlan_value_2 = 200; },
            .features = TUM_NAL_FEATURE_VLAN_2,
            .data = "1A 00 52 03 10 C8 01"},
        {.what = "VLANs of zero",
            .fill = [](session &) {},
            .features = TUM_NAL_FEATURE_VLAN_1 | TUM_NAL_FEATURE_VLAN_2,
            .data = "1A 00 52 04 08 00 10 00"},
    };
}

} // namespace

std::vector<session_row> session_data_rows()
{
    std::vector<session_row> rows = {
        {.what = "session data values 1 and 2",
            .fill =
                [](session &s) {
                    s.session_data_value_1 = 5;
                    s.session_data_value_2 = 0xFFFFFFFFFFFFFFFF;
                },
            .data = "08 05 10 FF FF FF FF FF FF FF FF FF 01 1A 00"},
        {.what = "session data value 11",
            .fill = [](session &s) { s.session_data_value_11 = 300; },
            .data = "1A 00 58 AC 02"},
        {.what = "session texts",
            .fill =
                [](session &s) {
                    set_text(s.session_name, "name");
                    set_text(s.session_label, "label");
                    set_text(s.session_text, "text");
                },
            .data = "1A 00 2A 04 6E616D65 3A 05 6C6162656C 42 04 74657874"},
        {.what = "session identifier, kind 1",
            .fill =
                [](session &s) {
                    s.session_value_1 = TUM_NAL_SESSION_KIND_1;
                    set_bytes(s.session_identifier, "01020304050607");
                },
            .values = "08 01 10 00 18 00 20 00",
            .data = "1A 00 32 07 01020304050607"},
        {.what = "session identifier of zeros and value 9, kind 4",
            .fill =
                [](session &s) {
                    s.session_value_1 = TUM_NAL_SESSION_KIND_4;
                    s.session_value_9 = 0xFFFF;
                },
            .values = "08 04 10 00 18 00 20 00",
            .data = "1A 00 32 07 00000000000000 48 FF FF 03"},
        {.what = "value 9 of zero, kind 4",
            .fill = [](session &s) { s.session_value_1 = TUM_NAL_SESSION_KIND_4; },
            .values = "08 04 10 00 18 00 20 00",
            .data = "1A 00 32 07 00000000000000"},
    };
    for (const auto &more : {ppp_rows(), l2tp_rows(), vlan_rows()})
        rows.insert(rows.end(), more.begin(), more.end());
    return rows;
}

std::vector<session_row> list_rows()
{
    return {
        {.what = "an empty QoS entry",
            .fill = [](session &s) { s.qos_count = 1; },
            .features = TUM_NAL_FEATURE_QOS,
            .after_data = "5A 02 08 00"},
        {.what = "QoS values",
            .fill =
                [](session &s) {
                    s.qos_count = 1;
                    s.qos[0].value_1 = 1;
                    s.qos[0].value_2 = 2;
                    s.qos[0].value_6 = 0xFFFF;
                    s.qos[0].value_7 = 7;
                    s.qos[0].value_8 = 0xFFFFFFFF;
                },
            .features = TUM_NAL_FEATURE_QOS,
            .after_data = "5A 10 08 01 10 02 30 FF FF 03 38 07 40 FF FF FF FF 0F"},
        {.what = "QoS texts",
            .fill =
                [](session &s) {
                    s.qos_count = 1;
                    set_text(s.qos[0].text_3, "c");
                    set_text(s.qos[0].text_4, "d");
                    set_text(s.qos[0].text_5, "e");
                    set_text(s.qos[0].text_10, "j");
                    set_text(s.qos[0].text_11, "k");
                    set_text(s.qos[0].text_12, "l");
                },
            .features = TUM_NAL_FEATURE_QOS,
            .after_data = "5A 14 08 00 1A 01 63 22 01 64 2A 01 65 52 01 6A 5A 01 6B 62 01 6C"},
        {.what = "QoS entries in order",
            .fill =
                [](session &s) {
                    s.qos_count = 3;
                    s.qos[0].value_1 = 1;
                    s.qos[1].value_1 = 2;
                    s.qos[2].value_1 = 3;
                },
            .features = TUM_NAL_FEATURE_QOS,
            .after_data = "5A 02 08 01 5A 02 08 02 5A 02 08 03"},
        {.what = "IPv4 routes",
            .fill =
                [](session &s) {
                    s.ipv4_route_count = 2;
                    s.ipv4_routes[0].field_3 = 0xC0000200;
                    s.ipv4_routes[1].field_1 = 9;
                },
            .features = TUM_NAL_FEATURE_IPV4_ROUTES,
            .after_data = "BA 01 07 08 00 1D C0 00 02 00 BA 01 02 08 09"},
        {.what = "IPv6 routes",
            .fill =
                [](session &s) {
                    s.ipv6_route_count = 2;
                    set_bytes(s.ipv6_routes[0].field_3, "20010DB8 00000000 00000000 00000000");
                    s.ipv6_routes[1].field_8 = 8;
                },
            .features = TUM_NAL_FEATURE_IPV6_ROUTES,
            .after_data = "C2 01 14 08 00 1A 10 20010DB8 00000000 00000000 00000000 C2 01 04 08 00 40 08"},
    };
}

} // namespace mava_tum_test
