// One subscriber as the file gives it. Which line of the application record each value becomes: session_record.h.
#ifndef EXAMPLES_SUBSCRIBER_H
#define EXAMPLES_SUBSCRIBER_H

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace examples
{

using ipv4_address = uint32_t; // host byte order: 192.0.2.1 is 0xC0000201
using ipv6_address = std::array<uint8_t, 16>;

// A feature that the file can switch on by its word. The values of a feature that is off stay with the sender.
enum class feature { qos, acl, redirect, intercept, urpf, icmp, mtu, accounting, routes, count };

enum class access_kind { direct, ppp, l2tp };

struct ipv4_cell {
    ipv4_address address = 0;
    uint32_t value_1 = 0;
};

template <typename Address>
struct prefix {
    Address address{};
    uint8_t length = 0;
};

struct ppp_cell {
    uint32_t value_1 = 0, value_2 = 0, value_3 = 0, value_4 = 0;
    std::optional<std::array<uint8_t, 9>> identifier;
    uint16_t value_6 = 0;
};

// A tunnel runs between two IPv4 or two IPv6 addresses, or the file leaves the end points open.
enum class tunnel_kind { open, ipv4, ipv6 };

struct l2tp_cell {
    tunnel_kind kind = tunnel_kind::open;
    ipv4_address local_ipv4 = 0, remote_ipv4 = 0;
    ipv6_address local_ipv6{}, remote_ipv6{};
    std::string name;
    uint16_t value_6 = 0, value_7 = 0, value_8 = 0, value_9 = 0;
    uint8_t value_10 = 0;
    std::array<uint32_t, 8> values_11_18{};
};

struct qos_entry {
    uint32_t value_1 = 0, value_2 = 0;
    std::string text_3, text_4, text_5;
    uint16_t value_6 = 0, value_7 = 0;
    uint32_t value_8 = 0;
    std::string text_10, text_11, text_12;
};

struct acl_cell {
    uint32_t value_1 = 0;
    std::array<std::string, 4> texts_2_5;
};

struct redirect_cell {
    uint32_t value_1 = 0;
    std::string text_2;
};

struct intercept_cell {
    uint32_t value_1 = 0, value_2 = 0;
    uint16_t value_3 = 0;
    std::array<uint8_t, 8> identifier{};
    uint32_t value_5 = 0, value_6 = 0;
    ipv4_address ipv4 = 0;
    ipv6_address ipv6{};
};

struct urpf_cell {
    uint32_t value_1 = 0, value_2 = 0;
};

struct accounting_cell {
    uint32_t flags = 0, value_2 = 0, value_3 = 0;
};

template <typename Address>
struct route {
    prefix<Address> destination;
    Address next_hop{};
    uint32_t value_1 = 0;
    std::string text_2, text_6;
    uint32_t value_7 = 0, value_8 = 0;
    std::string text_9;
};

struct subscriber {
    unsigned file_line = 0;
    std::string line, user, label;
    uint32_t kind = 0;
    uint32_t value_2 = 0, value_3 = 0, value_4 = 0, value_7 = 0;
    std::array<uint8_t, 7> identifier{};
    uint16_t value_9 = 0;
    std::optional<ipv4_cell> ipv4;
    uint32_t ipv6_value = 0;
    std::optional<ipv6_address> ipv6_host, ipv6_gateway;
    std::optional<prefix<ipv6_address>> ipv6_prefix, ipv6_delegated;
    std::optional<uint16_t> outer_vlan, inner_vlan;
    access_kind access = access_kind::direct;
    std::optional<ppp_cell> ppp;
    std::optional<l2tp_cell> l2tp;
    uint32_t data_value_1 = 0;
    uint64_t data_value_2 = 0;
    uint32_t data_value_11 = 0;
    std::array<bool, static_cast<size_t>(feature::count)> features{};
    std::vector<qos_entry> qos;
    std::optional<acl_cell> acl;
    std::optional<redirect_cell> redirect;
    std::optional<intercept_cell> intercept;
    std::array<std::optional<urpf_cell>, 2> urpf;
    std::array<std::optional<uint32_t>, 2> icmp;
    std::array<std::optional<uint32_t>, 3> mtu;
    std::optional<accounting_cell> accounting;
    std::vector<route<ipv4_address>> ipv4_routes;
    std::vector<route<ipv6_address>> ipv6_routes;

    bool has(feature which) const
    {
        return features[static_cast<size_t>(which)];
    }
};

} // namespace examples

#endif
