#include "subscriber_columns.h"

#include "cell_values.h"
#include "tum_nal/nal_session_context.h"

namespace examples
{

namespace
{

using record = tum_nal_data_session_context;

// A received route keeps less of its texts than its arrays could hold.
constexpr size_t route_name_limit = 32, route_text_limit = 64;
constexpr size_t qos_short_limit = sizeof(tum_nal_data_qos_element::text_3) - 1;
constexpr size_t qos_long_limit = sizeof(tum_nal_data_qos_element::text_4) - 1;

constexpr std::array<const char *, static_cast<size_t>(feature::count)> feature_words = {
    "qos", "acl", "redirect", "intercept", "urpf", "icmp", "mtu", "accounting", "routes"};

void read_features(const cell &value, subscriber &who)
{
    for (cell &word : entries_of(value, feature_words.size())) {
        word.where = value.where;
        who.features[index_of_word(word, feature_words)] = true;
    }
}

qos_entry read_qos_entry(const cell &entry)
{
    static constexpr const char *names[] = {"value_1", "value_2", "text_3", "text_4", "text_5", "value_6", "value_7",
        "value_8", "text_10", "text_11", "text_12"};
    const std::vector<cell> values = values_of(entry, names);
    qos_entry qos;
    qos.value_1 = number<uint32_t>(values[0]);
    qos.value_2 = number<uint32_t>(values[1]);
    qos.text_3 = text(values[2], qos_short_limit);
    qos.text_4 = text(values[3], qos_long_limit);
    qos.text_5 = text(values[4], qos_long_limit);
    qos.value_6 = number<uint16_t>(values[5]);
    qos.value_7 = number<uint16_t>(values[6]);
    qos.value_8 = number<uint32_t>(values[7]);
    qos.text_10 = text(values[8], qos_short_limit);
    qos.text_11 = text(values[9], qos_short_limit);
    qos.text_12 = text(values[10], qos_short_limit);
    return qos;
}

void read_qos(const cell &value, subscriber &who)
{
    for (const cell &entry : entries_of(value, TUM_NAL_SESSION_QOS_ENTRIES))
        who.qos.push_back(read_qos_entry(entry));
}

void read_acl(const cell &value, subscriber &who)
{
    static constexpr const char *names[] = {"value_1", "text_2", "text_3", "text_4", "text_5"};
    if (value.empty())
        return;
    const std::vector<cell> values = values_of(value, names);
    who.acl.emplace().value_1 = number<uint32_t>(values[0]);
    for (size_t i = 0; i < who.acl->texts_2_5.size(); ++i)
        who.acl->texts_2_5[i] = text(values[1 + i], sizeof(record::acl_text_2) - 1);
}

void read_redirect(const cell &value, subscriber &who)
{
    static constexpr const char *names[] = {"value_1", "text_2"};
    if (value.empty())
        return;
    const std::vector<cell> values = values_of(value, names);
    who.redirect.emplace().value_1 = number<uint32_t>(values[0]);
    who.redirect->text_2 = text(values[1], sizeof(record::redirect_text_2) - 1);
}

void read_intercept(const cell &value, subscriber &who)
{
    static constexpr const char *names[] = {
        "value_1", "value_2", "value_3", "identifier", "value_5", "value_6", "ipv4", "ipv6"};
    if (value.empty())
        return;
    const std::vector<cell> values = values_of(value, names);
    intercept_cell &intercept = who.intercept.emplace();
    intercept.value_1 = number<uint32_t>(values[0]);
    intercept.value_2 = number<uint32_t>(values[1]);
    intercept.value_3 = number<uint16_t>(values[2]);
    read_bytes(values[3], intercept.identifier);
    intercept.value_5 = number<uint32_t>(values[4]);
    intercept.value_6 = number<uint32_t>(values[5]);
    read_address(values[6], intercept.ipv4);
    read_address(values[7], intercept.ipv6);
}

void read_urpf(const cell &value, subscriber &who)
{
    static constexpr const char *names[] = {"value_1", "value_2"};
    const std::vector<cell> entries = entries_of(value, who.urpf.size());
    for (size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].empty())
            continue; // ";5|6": the second check alone
        const std::vector<cell> values = values_of(entries[i], names);
        who.urpf[i] = {number<uint32_t>(values[0]), number<uint32_t>(values[1])};
    }
}

void read_icmp(const cell &value, subscriber &who)
{
    static constexpr const char *names[] = {"1", "2"};
    const std::vector<cell> values = values_of(value, names);
    for (size_t i = 0; i < values.size(); ++i)
        who.icmp[i] = optional_number<uint32_t>(values[i]);
}

void read_mtu(const cell &value, subscriber &who)
{
    static constexpr const char *names[] = {"1", "2", "3"};
    const std::vector<cell> values = values_of(value, names);
    for (size_t i = 0; i < values.size(); ++i)
        who.mtu[i] = optional_number<uint32_t>(values[i]);
}

void read_accounting(const cell &value, subscriber &who)
{
    static constexpr const char *names[] = {"flags", "value_2", "value_3"};
    if (value.empty())
        return;
    const std::vector<cell> values = values_of(value, names);
    who.accounting = {number<uint32_t>(values[0]), number<uint32_t>(values[1]), number<uint32_t>(values[2])};
}

template <typename Address>
route<Address> read_route(const cell &entry)
{
    static constexpr const char *names[] = {
        "destination", "next hop", "value_1", "text_2", "text_6", "value_7", "value_8", "text_9"};
    const std::vector<cell> values = values_of(entry, names);
    route<Address> result;
    read_prefix(values[0], result.destination);
    read_address(values[1], result.next_hop);
    result.value_1 = number<uint32_t>(values[2]);
    result.text_2 = text(values[3], route_name_limit);
    result.text_6 = text(values[4], route_name_limit);
    result.value_7 = number<uint32_t>(values[5]);
    result.value_8 = number<uint32_t>(values[6]);
    result.text_9 = text(values[7], route_text_limit);
    return result;
}

void read_ipv4_routes(const cell &value, subscriber &who)
{
    for (const cell &entry : entries_of(value, TUM_NAL_SESSION_IPV4_ROUTES))
        who.ipv4_routes.push_back(read_route<ipv4_address>(entry));
}

void read_ipv6_routes(const cell &value, subscriber &who)
{
    for (const cell &entry : entries_of(value, TUM_NAL_SESSION_IPV6_ROUTES))
        who.ipv6_routes.push_back(read_route<ipv6_address>(entry));
}

constexpr column columns[] = {
    {"features", read_features},
    {"qos", read_qos},
    {"acl", read_acl},
    {"redirect", read_redirect},
    {"intercept", read_intercept},
    {"urpf", read_urpf},
    {"icmp", read_icmp},
    {"mtu", read_mtu},
    {"accounting", read_accounting},
    {"ipv4_routes", read_ipv4_routes},
    {"ipv6_routes", read_ipv6_routes},
};

bool has_values_for(feature which, const subscriber &who)
{
    switch (which) {
    case feature::qos:
        return !who.qos.empty();
    case feature::acl:
        return who.acl.has_value();
    case feature::redirect:
        return who.redirect.has_value();
    case feature::intercept:
        return who.intercept.has_value();
    case feature::urpf:
        return who.urpf[0] || who.urpf[1];
    case feature::icmp:
        return who.icmp[0] || who.icmp[1];
    case feature::mtu:
        return who.mtu[0] || who.mtu[1] || who.mtu[2];
    case feature::accounting:
        return who.accounting.has_value();
    case feature::routes:
        return !who.ipv4_routes.empty() || !who.ipv6_routes.empty();
    case feature::count:
        break;
    }
    return false;
}

} // namespace

std::span<const column> feature_columns()
{
    return columns;
}

void check_feature_columns(const cell &line, const subscriber &who)
{
    for (size_t i = 0; i < feature_words.size(); ++i) {
        if (who.features[i] && !has_values_for(static_cast<feature>(i), who))
            line.part("features", "")
                .refuse("\"" + std::string(feature_words[i]) + "\" is on, but it has no values",
                    "fill its cell or take the word out");
    }
}

} // namespace examples
