#include "wire_names.h"

namespace examples::session_setup
{

namespace
{

using enum wire_content;

constexpr wire_field value_1_to_3[] = {{1, "value_1", number}, {2, "value_2", number}, {3, "value_3", number}};

constexpr wire_field ipv4_fields[] = {{1, "value_1", number}, {2, "address", ipv4}};

constexpr wire_field ipv6_fields[] = {{1, "value_1", number}, {2, "address", ipv6}, {3, "prefix", ipv6},
    {4, "gateway", ipv6}, {5, "prefix length", number}, {6, "delegated prefix", ipv6},
    {7, "delegated prefix length", number}};

constexpr wire_field ppp_fields[] = {{1, "value_1", number}, {2, "value_2", number}, {3, "value_3", number},
    {4, "value_4", number}, {5, "identifier", bytes}, {6, "value_6", number}};

constexpr wire_field l2tp_fields[] = {{1, "kind", number}, {2, "local IPv4", ipv4}, {3, "remote IPv4", ipv4},
    {4, "local IPv6", ipv6}, {5, "remote IPv6", ipv6}, {6, "value_6", number}, {7, "value_7", number},
    {8, "value_8", number}, {9, "value_9", number}, {10, "value_10", number}, {11, "value_11", number},
    {12, "value_12", number}, {13, "value_13", number}, {14, "value_14", number}, {15, "value_15", number},
    {16, "value_16", number}, {17, "value_17", number}, {18, "value_18", number}, {19, "name", text}};

constexpr wire_field vlan_fields[] = {{1, "outer", number}, {2, "inner", number}};

constexpr wire_field session_data_fields[] = {{1, "value_1", number}, {2, "value_2", number},
    {3, "ppp", record, ppp_fields}, {4, "l2tp", record, l2tp_fields}, {5, "user", text}, {6, "identifier", bytes},
    {7, "label", text}, {8, "line id", text}, {9, "value_9", number}, {10, "vlans", record, vlan_fields},
    {11, "value_11", number}};

constexpr wire_field qos_fields[] = {{1, "value_1", number}, {2, "value_2", number}, {3, "text_3", text},
    {4, "text_4", text}, {5, "text_5", text}, {6, "value_6", number}, {7, "value_7", number}, {8, "value_8", number},
    {10, "text_10", text}, {11, "text_11", text}, {12, "text_12", text}};

constexpr wire_field acl_fields[] = {
    {1, "value_1", number}, {2, "text_2", text}, {3, "text_3", text}, {4, "text_4", text}, {5, "text_5", text}};

constexpr wire_field redirect_fields[] = {{1, "value_1", number}, {2, "text_2", text}};

constexpr wire_field intercept_fields[] = {{1, "value_1", number}, {2, "value_2", number}, {3, "value_3", number},
    {4, "identifier", bytes}, {5, "value_5", number}, {6, "value_6", number}, {7, "IPv4 address", ipv4},
    {8, "IPv6 address", ipv6}};

constexpr wire_field ipv4_route_fields[] = {{1, "field_1", number}, {2, "field_2", text}, {3, "destination", ipv4},
    {4, "prefix length", number}, {5, "next hop", ipv4}, {6, "field_6", text}, {7, "field_7", number},
    {8, "field_8", number}, {9, "field_9", text}};

constexpr wire_field ipv6_route_fields[] = {{1, "field_1", number}, {2, "field_2", text}, {3, "destination", ipv6},
    {4, "prefix length", number}, {5, "next hop", ipv6}, {6, "field_6", text}, {7, "field_7", number},
    {8, "field_8", number}, {9, "field_9", text}};

constexpr wire_field root_fields[] = {{1, "value_1", number}, {2, "value_2", number}, {3, "value_3", number},
    {4, "value_4", number}, {5, "feature_mask", number}, {6, "field_6", bytes}, {7, "value_7", number},
    {8, "ipv4", record, ipv4_fields}, {9, "ipv6", record, ipv6_fields},
    {10, "session data", record, session_data_fields}, {11, "qos entry", record, qos_fields},
    {12, "access lists", record, acl_fields}, {13, "redirect", record, redirect_fields},
    {14, "intercept", record, intercept_fields}, {15, "urpf 1", record, value_1_to_3},
    {16, "urpf 2", record, value_1_to_3}, {17, "icmp 1", record, value_1_to_3}, {18, "icmp 2", record, value_1_to_3},
    {19, "mtu 1", record, value_1_to_3}, {20, "mtu 2", record, value_1_to_3}, {21, "mtu 3", record, value_1_to_3},
    {22, "accounting", record, value_1_to_3}, {23, "ipv4 route", record, ipv4_route_fields},
    {24, "ipv6 route", record, ipv6_route_fields}};

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
