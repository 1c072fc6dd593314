#include "session_table.h"

#include "readable.h"

#include <algorithm>

namespace examples::session_setup
{

namespace
{

// More than that of a list would make rows too wide; the rest is a number.
constexpr size_t listed_prefixes = 1, listed_policies = 2, listed_routes = 1;

bool is_on(const tum_nal_data_session_context &session, uint32_t features)
{
    return (session.feature_mask & features) != 0;
}

std::string or_dash(bool present, const std::string &text)
{
    return present ? text : "-";
}

std::string with_length(const std::string &address, uint8_t length)
{
    return address + "/" + std::to_string(length);
}

std::string vlans_of(const tum_nal_data_session_context &session)
{
    std::string text = or_dash(is_on(session, TUM_NAL_FEATURE_VLAN_1), std::to_string(session.vlan_value_1));
    if (is_on(session, TUM_NAL_FEATURE_VLAN_2))
        text += "/" + std::to_string(session.vlan_value_2);
    return text;
}

std::string access_of(const tum_nal_data_session_context &session)
{
    if (is_on(session, TUM_NAL_FEATURE_L2TP))
        return "L2TP";
    return is_on(session, TUM_NAL_FEATURE_PPP_1_4 | TUM_NAL_FEATURE_PPP_2_3) ? "PPP" : "direct";
}

std::string list_of(const std::vector<std::string> &entries, size_t listed)
{
    std::string text;
    for (size_t i = 0; i < std::min(entries.size(), listed); ++i)
        text += (i == 0 ? "" : " ") + entries[i];
    if (entries.size() > listed)
        text += " +" + std::to_string(entries.size() - listed);
    return or_dash(!entries.empty(), text);
}

std::string prefixes_of(const tum_nal_data_session_context &session)
{
    std::vector<std::string> prefixes;
    if (is_on(session, TUM_NAL_FEATURE_IPV6_PART_3))
        prefixes.push_back(with_length(readable_ipv6(session.ipv6_part_3), session.ipv6_value_5));
    if (is_on(session, TUM_NAL_FEATURE_IPV6_PART_6))
        prefixes.push_back(with_length(readable_ipv6(session.ipv6_part_6), session.ipv6_value_7));
    return list_of(prefixes, listed_prefixes);
}

std::string qos_of(const tum_nal_data_session_context &session)
{
    std::vector<std::string> names;
    for (size_t i = 0; i < session.qos_count; ++i)
        names.emplace_back(session.qos[i].text_3);
    return list_of(names, listed_policies);
}

std::string routes_of(const tum_nal_data_session_context &session)
{
    std::vector<std::string> destinations;
    for (size_t i = 0; i < session.ipv4_route_count; ++i)
        destinations.push_back(
            with_length(readable_ipv4(session.ipv4_routes[i].field_3), session.ipv4_routes[i].field_4));
    for (size_t i = 0; i < session.ipv6_route_count; ++i)
        destinations.push_back(
            with_length(readable_ipv6(session.ipv6_routes[i].field_3), session.ipv6_routes[i].field_4));
    return list_of(destinations, listed_routes);
}

std::vector<size_t> widths_of(const std::vector<std::vector<std::string>> &rows)
{
    std::vector<size_t> widths(rows.front().size());
    for (const std::vector<std::string> &row : rows) {
        for (size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row[i].size());
    }
    return widths;
}

} // namespace

session_table::session_table()
    : m_rows{{"session_text", "session_name", "ipv4_address", "ipv6_part_3, 6", "vlan_value_1/2", "access",
          "qos text_3", "routes field_3/4", "bytes"}}
{
}

void session_table::add(const tum_nal_data_session_context &session, size_t wire_bytes)
{
    m_rows.push_back({session.session_text, session.session_name,
        or_dash(is_on(session, TUM_NAL_FEATURE_IPV4), readable_ipv4(session.ipv4_address)), prefixes_of(session),
        vlans_of(session), access_of(session), qos_of(session), routes_of(session), std::to_string(wire_bytes)});
}

std::string session_table::text() const
{
    const std::vector<size_t> widths = widths_of(m_rows);
    std::string text;
    for (const std::vector<std::string> &row : m_rows) {
        for (size_t i = 0; i + 1 < row.size(); ++i)
            text += row[i] + std::string(widths[i] - row[i].size() + 2, ' ');
        // The sizes stand to the right, so that their digits are below each other.
        text += std::string(widths.back() - row.back().size(), ' ') + row.back() + "\n";
    }
    return text;
}

} // namespace examples::session_setup
