#include "subscriber_columns.h"

#include "cell_values.h"
#include "tum_nal/nal_session_context.h"

namespace examples
{

namespace
{

using record = tum_nal_data_session_context;

constexpr std::array<const char *, 3> access_words = {"direct", "ppp", "l2tp"};

void read_access(const cell &value, subscriber &who)
{
    who.access = static_cast<access_kind>(index_of_word(value, access_words));
}

void read_ppp(const cell &value, subscriber &who)
{
    static constexpr const char *names[] = {"value_1", "value_2", "value_3", "value_4", "identifier", "value_6"};
    if (value.empty())
        return;
    const std::vector<cell> values = values_of(value, names);
    ppp_cell &ppp = who.ppp.emplace();
    ppp.value_1 = number<uint32_t>(values[0]);
    ppp.value_2 = number<uint32_t>(values[1]);
    ppp.value_3 = number<uint32_t>(values[2]);
    ppp.value_4 = number<uint32_t>(values[3]);
    if (!values[4].empty())
        read_bytes(values[4], ppp.identifier.emplace());
    ppp.value_6 = number<uint16_t>(values[5]);
}

void read_tunnel_end_points(const cell &local, const cell &remote, l2tp_cell &l2tp)
{
    if (local.empty() && remote.empty())
        return;
    // An IPv6 address has colons; both ends have to be of one kind, so the local one decides.
    l2tp.kind = local.text.find(':') != std::string_view::npos ? tunnel_kind::ipv6 : tunnel_kind::ipv4;
    if (l2tp.kind == tunnel_kind::ipv4) {
        read_address(local, l2tp.local_ipv4);
        read_address(remote, l2tp.remote_ipv4);
    } else {
        read_address(local, l2tp.local_ipv6);
        read_address(remote, l2tp.remote_ipv6);
    }
}

void read_l2tp(const cell &value, subscriber &who)
{
    static constexpr const char *names[] = {"name", "local", "remote", "value_6", "value_7", "value_8", "value_9",
        "value_10", "value_11", "value_12", "value_13", "value_14", "value_15", "value_16", "value_17", "value_18"};
    if (value.empty())
        return;
    const std::vector<cell> values = values_of(value, names);
    l2tp_cell &l2tp = who.l2tp.emplace();
    l2tp.name = text(values[0], sizeof(record::l2tp_name) - 1);
    read_tunnel_end_points(values[1], values[2], l2tp);
    l2tp.value_6 = number<uint16_t>(values[3]);
    l2tp.value_7 = number<uint16_t>(values[4]);
    l2tp.value_8 = number<uint16_t>(values[5]);
    l2tp.value_9 = number<uint16_t>(values[6]);
    l2tp.value_10 = number<uint8_t>(values[7]);
    for (size_t i = 0; i < l2tp.values_11_18.size(); ++i)
        l2tp.values_11_18[i] = number<uint32_t>(values[8 + i]);
}

void read_data_values(const cell &value, subscriber &who)
{
    static constexpr const char *names[] = {"value_1", "value_2", "value_11"};
    const std::vector<cell> values = values_of(value, names);
    who.data_value_1 = number<uint32_t>(values[0]);
    who.data_value_2 = number<uint64_t>(values[1]);
    who.data_value_11 = number<uint32_t>(values[2]);
}

constexpr column columns[] = {
    {"access", read_access},
    {"ppp", read_ppp},
    {"l2tp", read_l2tp},
    {"data_values", read_data_values},
};

} // namespace

std::span<const column> access_columns()
{
    return columns;
}

void check_access_columns(const cell &line, const subscriber &who)
{
    const cell access = line.part("access", "");
    if (who.access == access_kind::direct && (who.ppp || who.l2tp))
        access.refuse("direct, but the ppp or the l2tp cell is filled", "empty those cells or name the right access");
    if (who.access == access_kind::ppp && (!who.ppp || who.l2tp))
        access.refuse("ppp needs the ppp cell filled and the l2tp cell empty", "correct one of the three cells");
    if (who.access == access_kind::l2tp && !who.l2tp)
        access.refuse("l2tp, but the l2tp cell is empty", "fill that cell or name the right access");
}

} // namespace examples
