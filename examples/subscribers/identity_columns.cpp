#include "subscriber_columns.h"

#include "cell_values.h"
#include "tum_nal/nal_session_context.h"

namespace examples
{

namespace
{

using record = tum_nal_data_session_context;

void read_line(const cell &value, subscriber &who)
{
    if (value.empty())
        value.refuse("the line id is missing", "give each subscriber one");
    who.line = text(value, sizeof(record::session_text) - 1);
}

void read_user(const cell &value, subscriber &who)
{
    who.user = text(value, sizeof(record::session_name) - 1);
}

void read_label(const cell &value, subscriber &who)
{
    who.label = text(value, sizeof(record::session_label) - 1);
}

void read_kind(const cell &value, subscriber &who)
{
    who.kind = number<uint32_t>(value);
}

void read_values(const cell &value, subscriber &who)
{
    static constexpr const char *names[] = {"value_2", "value_3", "value_4", "value_7"};
    const std::vector<cell> values = values_of(value, names);
    who.value_2 = number<uint32_t>(values[0]);
    who.value_3 = number<uint32_t>(values[1]);
    who.value_4 = number<uint32_t>(values[2]);
    who.value_7 = number<uint32_t>(values[3]);
}

void read_identifier(const cell &value, subscriber &who)
{
    if (!value.empty())
        read_bytes(value, who.identifier);
}

void read_value_9(const cell &value, subscriber &who)
{
    who.value_9 = number<uint16_t>(value);
}

void read_ipv4(const cell &value, subscriber &who)
{
    static constexpr const char *names[] = {"", "value_1"};
    if (value.empty())
        return;
    const std::vector<cell> values = values_of(value, names);
    who.ipv4.emplace();
    cell address = value; // named by its column alone: it is what this cell is about
    address.text = values[0].text;
    read_address(address, who.ipv4->address);
    who.ipv4->value_1 = number<uint32_t>(values[1]);
}

void read_ipv6_value(const cell &value, subscriber &who)
{
    who.ipv6_value = number<uint32_t>(value);
}

template <auto Member>
void read_ipv6_address(const cell &value, subscriber &who)
{
    if (!value.empty())
        read_address(value, (who.*Member).emplace());
}

template <auto Member>
void read_ipv6_prefix(const cell &value, subscriber &who)
{
    if (!value.empty())
        read_prefix(value, (who.*Member).emplace());
}

void read_vlans(const cell &value, subscriber &who)
{
    const std::vector<std::string_view> texts = split(value.text, '/');
    if (texts.size() > 2)
        value.refuse("\"" + std::string(value.text) + "\" has more than two VLANs", "write 100 or 100/7");
    who.outer_vlan = optional_number<uint16_t>(value.part("outer", texts[0]));
    if (texts.size() == 2)
        who.inner_vlan = optional_number<uint16_t>(value.part("inner", texts[1]));
}

constexpr column columns[] = {
    {"line", read_line},
    {"user", read_user},
    {"label", read_label},
    {"kind", read_kind},
    {"values", read_values},
    {"identifier", read_identifier},
    {"value_9", read_value_9},
    {"ipv4", read_ipv4},
    {"ipv6_value", read_ipv6_value},
    {"ipv6_address", read_ipv6_address<&subscriber::ipv6_host>},
    {"ipv6_prefix", read_ipv6_prefix<&subscriber::ipv6_prefix>},
    {"ipv6_gateway", read_ipv6_address<&subscriber::ipv6_gateway>},
    {"ipv6_delegated", read_ipv6_prefix<&subscriber::ipv6_delegated>},
    {"vlans", read_vlans},
};

} // namespace

std::span<const column> identity_columns()
{
    return columns;
}

} // namespace examples
