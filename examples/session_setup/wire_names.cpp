#include "wire_names.h"

namespace examples::session_setup
{

namespace
{

using enum wire_content;

// urpf, icmp and mtu, acct: numbers alone.
constexpr wire_field three_numbers[] = {{1, "field_1", number}, {2, "field_2", number}, {3, "field_3", number}};
constexpr std::span two_numbers{three_numbers, 2};
constexpr std::span one_number{three_numbers, 1};

constexpr wire_field ipv4_fields[] = {{1, "field_1", number}, {2, "ipv4_address", ipv4}};

constexpr wire_field ipv6_fields[] = {{1, "field_1", number}, {2, "field_2", ipv6}, {3, "field_3", ipv6},
    {4, "field_4", ipv6}, {5, "field_5", number}, {6, "field_6", ipv6}, {7, "field_7", number}};

constexpr wire_field ppp_fields[] = {{1, "field_1", number}, {2, "field_2", number}, {3, "field_3", number},
    {4, "field_4", number}, {5, "field_5", bytes}, {6, "field_6", number}};

constexpr wire_field l2tp_fields[] = {{1, "field_1", number}, {2, "field_2", ipv4}, {3, "field_3", ipv4},
    {4, "field_4", ipv6}, {5, "field_5", ipv6}, {6, "field_6", number}, {7, "field_7", number}, {8, "field_8", number},
    {9, "field_9", number}, {10, "field_10", number}, {11, "field_11", number}, {12, "field_12", number},
    {13, "field_13", number}, {14, "field_14", number}, {15, "field_15", number}, {16, "field_16", number},
    {17, "field_17", number}, {18, "field_18", number}, {19, "field_19", text}};

constexpr wire_field vlan_fields[] = {{1, "field_1", number}, {2, "field_2", number}};

constexpr wire_field session_data_fields[] = {{1, "field_1", number}, {2, "field_2", number},
    {3, "ppp", record, ppp_fields}, {4, "l2tp", record, l2tp_fields}, {5, "field_5", text}, {6, "field_6", bytes},
    {7, "field_7", text}, {8, "field_8", text}, {9, "field_9", number}, {10, "vlan", record, vlan_fields},
    {11, "field_11", number}};

constexpr wire_field qos_fields[] = {{1, "field_1", number}, {2, "field_2", number}, {3, "field_3", text},
    {4, "field_4", text}, {5, "field_5", text}, {6, "field_6", number}, {7, "field_7", number}, {8, "field_8", number},
    {9, "field_9", text}, {10, "field_10", text}, {11, "field_11", text}, {12, "field_12", text}};

constexpr wire_field acl_fields[] = {
    {1, "field_1", number}, {2, "field_2", text}, {3, "field_3", text}, {4, "field_4", text}, {5, "field_5", text}};

constexpr wire_field redirect_fields[] = {{1, "field_1", number}, {2, "field_2", text}};

constexpr wire_field intercept_fields[] = {{1, "field_1", number}, {2, "field_2", number}, {3, "field_3", number},
    {4, "field_4", bytes}, {5, "field_5", number}, {6, "field_6", number}, {7, "field_7", ipv4}, {8, "field_8", ipv6}};

constexpr wire_field ipv4_route_fields[] = {{1, "field_1", number}, {2, "field_2", text}, {3, "field_3", ipv4},
    {4, "field_4", number}, {5, "field_5", ipv4}, {6, "field_6", text}, {7, "field_7", number}, {8, "field_8", number},
    {9, "field_9", text}};

constexpr wire_field ipv6_route_fields[] = {{1, "field_1", number}, {2, "field_2", text}, {3, "field_3", ipv6},
    {4, "field_4", number}, {5, "field_5", ipv6}, {6, "field_6", text}, {7, "field_7", number}, {8, "field_8", number},
    {9, "field_9", text}};

constexpr wire_field root_fields[] = {{1, "field_1", number}, {2, "field_2", number}, {3, "field_3", number},
    {4, "field_4", number}, {5, "feature_mask", number}, {6, "field_6", bytes}, {7, "field_7", number},
    {8, "subscriber_v4", record, ipv4_fields}, {9, "subscriber_v6", record, ipv6_fields},
    {10, "session_data", record, session_data_fields}, {11, "qos", record, qos_fields}, {12, "acl", record, acl_fields},
    {13, "httpr", record, redirect_fields}, {14, "li", record, intercept_fields}, {15, "urpf_1", record, two_numbers},
    {16, "urpf_2", record, two_numbers}, {17, "icmp_1", record, one_number}, {18, "icmp_2", record, one_number},
    {19, "mtu_1", record, one_number}, {20, "mtu_2", record, one_number}, {21, "mtu_3", record, one_number},
    {22, "acct", record, three_numbers}, {23, "route_ipv4", record, ipv4_route_fields},
    {24, "route_ipv6", record, ipv6_route_fields}};

} // namespace

std::span<const wire_field> session_fields()
{
    return root_fields;
}

const wire_field *find_field(std::span<const wire_field> fields, uint64_t number)
{
    for (const wire_field &field : fields) {
        if (field.number == number)
            return &field;
    }
    return nullptr;
}

} // namespace examples::session_setup
