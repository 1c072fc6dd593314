#include "nal/session_rows.h"

#include "nal/adapter_calls.h"
#include "support/wire_builder.h"

namespace mava_tum_test
{

using session = tum_nal_data_session_context;

byte_vector wire_of(const session_row &row)
{
    wire_builder wire;
    wire.raw(row.values).varint(5, row.features).raw(row.value_7);
    if (*row.v4 != '\0')
        wire.length_delimited(8, bytes_of(row.v4));
    if (*row.v6 != '\0')
        wire.length_delimited(9, bytes_of(row.v6));
    return wire.length_delimited(10, bytes_of(row.data)).raw(row.after_data);
}

session record_of(const session_row &row)
{
    session record = zero_record<session>();
    row.fill(record);
    record.feature_mask = row.features;
    return record;
}

std::vector<session_row> value_and_address_rows()
{
    return {
        {.what = "an all-zero record", .fill = [](session &) {}},
        {.what = "session values",
            .fill =
                [](session &s) {
                    s.session_value_1 = 2;
                    s.session_value_2 = 150;
                    s.session_value_3 = 0xFFFFFFFF;
                    s.session_value_4 = 1;
                    s.session_value_7 = 300;
                },
            .values = "08 02 10 96 01 18 FF FF FF FF 0F 20 01",
            .value_7 = "38 AC 02"},
        {.what = "a feature mask whose bits select nothing",
            .fill = [](session &) {},
            .features = 1u << 15 | 1u << 18 | 0xF8000000u},
        {.what = "IPv4",
            .fill =
                [](session &s) {
                    s.ipv4_value_1 = 7;
                    s.ipv4_address = 0xC0000201;
                },
            .features = TUM_NAL_FEATURE_IPV4,
            .v4 = "08 07 15 C0 00 02 01"},
        {.what = "IPv4 with a zero value",
            .fill = [](session &s) { s.ipv4_address = 1; },
            .features = TUM_NAL_FEATURE_IPV4,
            .v4 = "08 00 15 00 00 00 01"},
        {.what = "IPv6 part 2",
            .fill =
                [](session &s) {
                    s.ipv6_value_1 = 9;
                    set_bytes(s.ipv6_part_2, "20010DB8 00000000 00000000 00000002");
                },
            .features = TUM_NAL_FEATURE_IPV6_PART_2,
            .v6 = "08 09 12 10 20010DB8 00000000 00000000 00000002"},
        {.what = "IPv6 part 3 and its value",
            .fill =
                [](session &s) {
                    set_bytes(s.ipv6_part_3, "20010DB8 00000000 00000000 00000003");
                    s.ipv6_value_5 = 200;
                },
            .features = TUM_NAL_FEATURE_IPV6_PART_3,
            .v6 = "08 00 1A 10 20010DB8 00000000 00000000 00000003 28 C8 01"},
        {.what = "IPv6 part 4",
            .fill = [](session &s) { set_bytes(s.ipv6_part_4, "20010DB8 00000000 00000000 00000004"); },
            .features = TUM_NAL_FEATURE_IPV6_PART_4,
            .v6 = "08 00 22 10 20010DB8 00000000 00000000 00000004"},
        {.what = "IPv6 part 6 and its value",
            .fill =
                [](session &s) {
                    set_bytes(s.ipv6_part_6, "20010DB8 00000000 00000000 00000006");
                    s.ipv6_value_7 = 64;
                },
            .features = TUM_NAL_FEATURE_IPV6_PART_6,
            .v6 = "08 00 32 10 20010DB8 00000000 00000000 00000006 38 40"},
        {.what = "IPv6 parts that are all zero",
            .fill = [](session &) {},
            .features = TUM_NAL_FEATURE_IPV6_PART_2 | TUM_NAL_FEATURE_IPV6_PART_3 | TUM_NAL_FEATURE_IPV6_PART_4 |
                        TUM_NAL_FEATURE_IPV6_PART_6,
            .v6 = "08 00 12 10 00000000 00000000 00000000 00000000 1A 10 00000000 00000000 00000000 00000000"
                  "22 10 00000000 00000000 00000000 00000000 28 00 32 10 00000000 00000000 00000000 00000000 38 00"},
    };
}

std::vector<session_row> feature_rows()
{
    return {
        {.what = "access list value",
            .fill = [](session &s) { s.acl_value_1 = 300; },
            .features = TUM_NAL_FEATURE_ACL,
            .after_data = "62 03 08 AC 02"},
        {.what = "access list texts and a zero value",
            .fill =
                [](session &s) {
                    set_text(s.acl_text_2, "in4");
                    set_text(s.acl_text_3, "out4");
                    set_text(s.acl_text_4, "in6");
                    set_text(s.acl_text_5, "out6");
                },
            .features = TUM_NAL_FEATURE_ACL,
            .after_data = "62 18 08 00 12 03 696E34 1A 04 6F757434 22 03 696E36 2A 04 6F757436"},
        {.what = "redirect",
            .fill =
                [](session &s) {
                    s.redirect_value_1 = 5;
                    set_text(s.redirect_text_2, "http://a");
                },
            .features = TUM_NAL_FEATURE_REDIRECT,
            .after_data = "6A 0C 08 05 12 08 687474703A2F2F61"},
        {.what = "an empty redirect",
            .fill = [](session &) {},
            .features = TUM_NAL_FEATURE_REDIRECT,
            .after_data = "6A 02 08 00"},
        {.what = "intercept",
            .fill =
                [](session &s) {
                    s.intercept_value_1 = 1;
                    s.intercept_value_2 = 2;
                    s.intercept_value_3 = 0xFFFF;
                    set_bytes(s.intercept_identifier, "A1A2A3A4A5A6A7A8");
                    s.intercept_value_5 = 5;
                    s.intercept_value_6 = 6;
                    s.intercept_ipv4_address = 0xC6336401;
                    set_bytes(s.intercept_ipv6_address, "20010DB8 00000000 00000000 0000000A");
                },
            .features = TUM_NAL_FEATURE_INTERCEPT,
            .after_data = "72 2D 08 01 10 02 18 FF FF 03 22 08 A1A2A3A4A5A6A7A8 28 05 30 06 3D C6 33 64 01"
                          "42 10 20010DB8 00000000 00000000 0000000A"},
        {.what = "an empty intercept: no addresses, all else",
            .fill = [](session &) {},
            .features = TUM_NAL_FEATURE_INTERCEPT,
            .after_data = "72 14 08 00 10 00 18 00 22 08 0000000000000000 28 00 30 00"},
        {.what = "uRPF 1",
            .fill =
                [](session &s) {
                    s.urpf_1_value_1 = 1;
                    s.urpf_1_value_2 = 2;
                },
            .features = TUM_NAL_FEATURE_URPF_1,
            .after_data = "7A 04 08 01 10 02"},
        {.what = "uRPF 2",
            .fill =
                [](session &s) {
                    s.urpf_2_value_1 = 3;
                    s.urpf_2_value_2 = 4;
                },
            .features = TUM_NAL_FEATURE_URPF_2,
            .after_data = "82 01 04 08 03 10 04"},
        {.what = "ICMP 1",
            .fill = [](session &s) { s.icmp_1_value = 11; },
            .features = TUM_NAL_FEATURE_ICMP_1,
            .after_data = "8A 01 02 08 0B"},
        {.what = "ICMP 2",
            .fill = [](session &s) { s.icmp_2_value = 12; },
            .features = TUM_NAL_FEATURE_ICMP_2,
            .after_data = "92 01 02 08 0C"},
        {.what = "MTU 1",
            .fill = [](session &s) { s.mtu_1_value = 1500; },
            .features = TUM_NAL_FEATURE_MTU_1,
            .after_data = "9A 01 03 08 DC 0B"},
        {.what = "MTU 2",
            .fill = [](session &s) { s.mtu_2_value = 1492; },
            .features = TUM_NAL_FEATURE_MTU_2,
            .after_data = "A2 01 03 08 D4 0B"},
        {.what = "MTU 3",
            .fill = [](session &s) { s.mtu_3_value = 1280; },
            .features = TUM_NAL_FEATURE_MTU_3,
            .after_data = "AA 01 03 08 80 0A"},
        {.what = "uRPF, ICMP and MTU values of zero",
            .fill = [](session &) {},
            .features = TUM_NAL_FEATURE_URPF_1 | TUM_NAL_FEATURE_URPF_2 | TUM_NAL_FEATURE_ICMP_1 |
                        TUM_NAL_FEATURE_ICMP_2 | TUM_NAL_FEATURE_MTU_1 | TUM_NAL_FEATURE_MTU_2 | TUM_NAL_FEATURE_MTU_3,
            .after_data = "7A 04 08 00 10 00 82 01 04 08 00 10 00 8A 01 02 08 00 92 01 02 08 00"
                          "9A 01 02 08 00 A2 01 02 08 00 AA 01 02 08 00"},
        {.what = "accounting flags without values",
            .fill = [](session &s) { s.accounting_flags = 0xFC; },
            .features = TUM_NAL_FEATURE_ACCOUNTING,
            .after_data = "B2 01 03 08 FC 01"},
        {.what = "accounting value 2",
            .fill =
                [](session &s) {
                    s.accounting_flags = TUM_NAL_ACCOUNTING_VALUE_2;
                    s.accounting_value_2 = 600;
                },
            .features = TUM_NAL_FEATURE_ACCOUNTING,
            .after_data = "B2 01 05 08 01 10 D8 04"},
        {.what = "accounting value 3",
            .fill =
                [](session &s) {
                    s.accounting_flags = TUM_NAL_ACCOUNTING_VALUE_3;
                    s.accounting_value_3 = 30;
                },
            .features = TUM_NAL_FEATURE_ACCOUNTING,
            .after_data = "B2 01 04 08 02 18 1E"},
        {.what = "accounting values of zero, by their flags",
            .fill = [](session &s) { s.accounting_flags = TUM_NAL_ACCOUNTING_VALUE_2 | TUM_NAL_ACCOUNTING_VALUE_3; },
            .features = TUM_NAL_FEATURE_ACCOUNTING,
            .after_data = "B2 01 06 08 03 10 00 18 00"},
    };
}

std::vector<session_row> symmetric_rows()
{
    std::vector<session_row> all = value_and_address_rows();
    for (const auto &rows : {session_data_rows(), feature_rows(), list_rows()})
        all.insert(all.end(), rows.begin(), rows.end());
    return all;
}

} // namespace mava_tum_test
