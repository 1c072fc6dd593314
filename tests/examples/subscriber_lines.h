// Small files of subscribers: a line that uses every column, with single cells changed.
#ifndef TESTS_EXAMPLES_SUBSCRIBER_LINES_H
#define TESTS_EXAMPLES_SUBSCRIBER_LINES_H

#include <map>
#include <string>

using cells = std::map<std::string, std::string>;

// Every column filled, every feature on, every list full.
inline cells full_cells()
{
    const std::string qos = "1|2|gold|in|out|3|4|5|ten|eleven|twelve";
    const std::string ipv4_route = "198.51.100.16/28|192.0.2.1|1|two|six|7|8|nine";
    const std::string ipv6_route = "2001:db8:8::/48|2001:db8::1|1|two|six|7|8|nine";
    cells result = {{"line", "node-01 1/1"}, {"user", "user@example.com"}, {"label", "home"}, {"kind", "4"},
        {"values", "2|3|4|7"}, {"identifier", "00:00:5e:00:53:01:02"}, {"value_9", "9"}, {"ipv4", "192.0.2.17|1"},
        {"ipv6_value", "1"}, {"ipv6_address", "2001:db8::17"}, {"ipv6_prefix", "2001:db8:17::/64"},
        {"ipv6_gateway", "2001:db8::1"}, {"ipv6_delegated", "2001:db8:18::/56"}, {"vlans", "100/7"}, {"access", "l2tp"},
        {"ppp", "1|2|3|4|00:00:5e:00:53:01:02:03:04|6"},
        {"l2tp", "tunnel|192.0.2.1|192.0.2.2|6|7|8|9|10|11|12|13|14|15|16|17|18"}, {"data_values", "1|2|11"},
        {"features", "qos;acl;redirect;intercept;urpf;icmp;mtu;accounting;routes"}, {"qos", qos},
        {"acl", "1|two|three|four|five"}, {"redirect", "1|http://www.example.org/"},
        {"intercept", "1|2|3|00:00:5e:00:53:01:02:03|5|6|192.0.2.3|2001:db8::3"}, {"urpf", "1|2;3|4"}, {"icmp", "1|2"},
        {"mtu", "1500|1492|1280"}, {"accounting", "3|2|3"}, {"ipv4_routes", ipv4_route}, {"ipv6_routes", ipv6_route}};
    for (int i = 1; i < 8; ++i)
        result["qos"] += ";" + qos;
    for (int i = 1; i < 4; ++i) {
        result["ipv4_routes"] += ";" + ipv4_route;
        result["ipv6_routes"] += ";" + ipv6_route;
    }
    return result;
}

inline cells full_cells_but(const std::string &column, const std::string &cell)
{
    cells result = full_cells();
    result.at(column) = cell;
    return result;
}

// The columns in the order of `names` (a line of column names).
inline std::string line_of(const cells &values, const std::string &names)
{
    std::string line;
    for (size_t begin = 0; begin < names.size();) {
        const size_t end = std::min(names.find(',', begin), names.size());
        line += (begin == 0 ? "" : ",") + values.at(names.substr(begin, end - begin));
        begin = end + 1;
    }
    return line + "\n";
}

#endif
