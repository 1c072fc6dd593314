// Makes the subscribers of the examples, always the same ones: make_subscribers > subscribers.csv
//
// The subscribers are made up. Their addresses, names and hardware addresses come from the ranges that are set aside
// for documentation. Seven of eight are ordinary households; every eighth uses all that a session has room for.
#include <cstdio>
#include <initializer_list>
#include <iostream>
#include <string>

namespace
{

constexpr unsigned subscribers = 1200;

constexpr const char *explanation =
    R"(# Made-up subscribers. Made by make_subscribers; this file is its output as it stands.
#
# One subscriber per line. The columns stand between commas. A cell that is a list has ';' between its entries, an
# entry of several values has '|' between them; values at the end of an entry may be left out, an empty value is 0, an
# empty text or none. Numbers are decimal. A line that starts with '#' means nothing.
#
# line            line id, up to 64 characters; each subscriber has one of its own
# user            user name, up to 64 characters
# label           up to 32 characters
# kind            1 and 4 send the identifier, 4 sends value_9 too; other kinds keep them at home
# values          value_2|value_3|value_4|value_7
# identifier      7 bytes in hex
# value_9         a number up to 65535
# ipv4            address|value_1
# ipv6_value      a number, sent if there is at least one of the four cells that follow
# ipv6_address    the subscriber's own address
# ipv6_prefix     prefix/length
# ipv6_gateway    address
# ipv6_delegated  prefix/length that is handed to the subscriber's router
# vlans           outer, or outer/inner
# access          direct, ppp or l2tp; ppp and l2tp need the cell of that name
# ppp             value_1|value_2|value_3|value_4|identifier (9 bytes in hex)|value_6
# l2tp            name|local address|remote address|value_6|value_7|...|value_18; both addresses IPv4 or both IPv6
# data_values     value_1|value_2|value_11
# features        what is switched on: qos acl redirect intercept urpf icmp mtu accounting routes
#                 (values of a feature that is off are not sent)
# qos             up to 8 of value_1|value_2|text_3|text_4|text_5|value_6|value_7|value_8|text_10|text_11|text_12
#                 (text_3, up to 64 characters, is the policy's name; text_4 and text_5 have up to 255)
# acl             value_1|text_2|text_3|text_4|text_5
# redirect        value_1|text_2
# intercept       value_1|value_2|value_3|identifier (8 bytes in hex)|value_5|value_6|IPv4 address|IPv6 address
# urpf            up to 2 of value_1|value_2
# icmp            value 1|value 2
# mtu             MTU 1|MTU 2|MTU 3
# accounting      flags|value_2|value_3 (flags with 1 in them send value_2, with 2 in them value_3)
# ipv4_routes     up to 4 of destination/length|next hop|value_1|text_2|text_6|value_7|value_8|text_9
#                 (a value_8 that is not 0 is sent in the place of value_7)
# ipv6_routes     up to 4 of the same
#
)";

constexpr const char *column_names =
    "line,user,label,kind,values,identifier,value_9,ipv4,ipv6_value,ipv6_address,ipv6_prefix,ipv6_gateway,"
    "ipv6_delegated,vlans,access,ppp,l2tp,data_values,features,qos,acl,redirect,intercept,urpf,icmp,mtu,accounting,"
    "ipv4_routes,ipv6_routes";

std::string text(unsigned number)
{
    return std::to_string(number);
}

std::string digits(unsigned number, int width)
{
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%0*u", width, number);
    return buffer;
}

std::string hex(unsigned number)
{
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%x", number);
    return buffer;
}

std::string join(const std::string &separator, std::initializer_list<std::string> parts)
{
    std::string result;
    bool is_first = true;
    for (const std::string &part : parts) {
        result += (is_first ? "" : separator) + part;
        is_first = false;
    }
    return result;
}

// `count` entries, each made by `make(0)`, `make(1)` and so on.
template <typename Make>
std::string list(unsigned count, Make make)
{
    std::string result;
    for (unsigned i = 0; i < count; ++i)
        result += (i == 0 ? "" : ";") + make(i);
    return result;
}

// A number below `limit` that looks as if drawn, for the subscriber `n` and a purpose.
unsigned pick(unsigned n, unsigned purpose, unsigned limit)
{
    unsigned mixed = n * 2654435761U + purpose * 40503U;
    mixed = (mixed ^ mixed >> 15) * 2246822519U;
    return (mixed ^ mixed >> 13) % limit;
}

bool is_rich(unsigned n)
{
    return n % 8 == 5;
}

// Hardware addresses 00:00:5e:00:53:xx are for documentation; what else an identifier holds tells subscribers apart.
std::string identifier(unsigned n, unsigned tail_bytes)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "00:00:5e:00:53:%02x", n % 256);
    std::string result = buffer;
    for (unsigned i = 0; i < tail_bytes; ++i) {
        std::snprintf(buffer, sizeof buffer, ":%02x", (i == 0 ? n / 256 : pick(n, 90 + i, 256)));
        result += buffer;
    }
    return result;
}

std::string host_in(unsigned range, unsigned host)
{
    static constexpr const char *ranges[] = {"192.0.2.", "198.51.100.", "203.0.113."};
    return ranges[range % 3] + text(host);
}

bool has_ipv4(unsigned n)
{
    return n % 5 < 3;
}

// The 720 subscribers with an IPv4 address have one each: the three ranges hold 762.
std::string ipv4_address(unsigned n)
{
    const unsigned position = n / 5 * 3 + n % 5 - 1;
    return host_in(position / 254, position % 254 + 1);
}

std::string ipv6(unsigned n, const std::string &rest)
{
    return "2001:db8:" + hex(0x100 + n) + rest;
}

std::string vlans(unsigned n)
{
    if (n % 11 == 7)
        return "";
    const std::string outer = text(100 + n % 40 * 10);
    return n % 3 == 0 ? outer : outer + "/" + text(1 + pick(n, 1, 4094));
}

std::string access(unsigned n)
{
    if (n % 5 == 3)
        return "l2tp";
    return n % 5 == 4 ? "direct" : "ppp";
}

std::string ppp(unsigned n)
{
    if (access(n) == "direct")
        return "";
    const std::string id = n % 2 == 1 || is_rich(n) ? identifier(n, 3) : "";
    return join("|", {text(1 + n), text(49187), text(1 + n % 3), text(pick(n, 2, 100000)), id, text(1480 + n % 3 * 6)});
}

// One in fifty tunnels has its end points still open.
std::string end_points(unsigned n)
{
    if (n % 50 == 28)
        return "|";
    if (n % 10 == 3)
        return host_in(0, 1 + n % 250) + "|" + host_in(1, 1 + n % 16);
    return ipv6(n, "::1a") + "|2001:db8:ffff::" + hex(1 + n % 16);
}

std::string l2tp(unsigned n)
{
    if (access(n) != "l2tp")
        return "";
    const std::string head = join("|", {"tunnel-" + text(1 + n % 16) + ".example.net", end_points(n)});
    const std::string ids = join("|", {text(1 + n % 60000), text(2 + n % 60000), text(1701), text(pick(n, 3, 65536))});
    if (!is_rich(n) && n % 3 != 0)
        return head + "|" + ids;
    // value_16 is sent along with value_15 only, value_18 along with value_17 only.
    const std::string gate_15 = n % 4 == 1 ? "0" : text(pick(n, 4, 1000000));
    const std::string gate_17 = n % 8 == 3 ? "0" : text(pick(n, 5, 1000000));
    return join("|",
        {head, ids, text(1 + n % 200), text(pick(n, 6, 4000000)), text(10), text(n), "1", gate_15, "7", gate_17, "9"});
}

std::string features(unsigned n)
{
    if (is_rich(n))
        return "qos;acl;redirect;intercept;urpf;icmp;mtu;accounting;routes";
    std::string words = n % 40 == 2 ? "acl;mtu;accounting" : "qos;acl;mtu;accounting";
    if (n % 3 != 2)
        words += ";routes";
    if (n % 4 == 0)
        words += ";urpf";
    if (n % 6 == 0)
        words += ";icmp";
    return n % 10 == 0 ? words + ";redirect" : words;
}

std::string full_qos_entry(unsigned n, unsigned i)
{
    const std::string which = text(i + 1);
    return join("|", {which, text(1000 * (i + 1) + n % 7), "class-" + which + "-in",
                         "shape rate " + text(1000 * (1 + pick(n, 10 + i, 500))) + " burst " + text(64 * (i + 1)) +
                             " queue class-" + which,
                         "police rate " + text(500 * (1 + pick(n, 20 + i, 500))) + " mark af" + text(1 + i % 4) + "1",
                         text(1 + i), text(46 - i), text(pick(n, 30 + i, 1000000)), "parent-" + which,
                         "group-" + text(n % 30), "profile-" + text(1 + pick(n, 40 + i, 20))});
}

std::string qos(unsigned n)
{
    static constexpr const char *names[] = {"bronze", "silver", "gold"};
    if (is_rich(n))
        return list(8, [n](unsigned i) { return full_qos_entry(n, i); });
    const std::string grade = names[pick(n, 7, 3)];
    const std::string rate = text(10000 * (1 + pick(n, 8, 20)));
    std::string entries = join("|", {"1", rate, grade + "-in", "rate " + rate}) + ";" +
                          join("|", {"2", rate, grade + "-out", "rate " + rate, "", "0", "34", "0", "", "", "home"});
    return n % 3 == 1 ? entries + ";" + join("|", {"3", "512", "voice", "priority", "", "5", "46"}) : entries;
}

std::string acl(unsigned n)
{
    if (is_rich(n))
        return join("|", {"15", "in-v4-" + text(n % 20), "out-v4-" + text(n % 20), "in-v6-" + text(n % 20),
                             "out-v6-" + text(n % 20)});
    return join("|", {"3", "home-in-" + text(n % 4), "home-out-" + text(n % 4)});
}

std::string redirect(unsigned n)
{
    if (!is_rich(n) && n % 10 != 0)
        return "";
    return "1|http://portal.example.org/welcome?line=" + text(n) + (is_rich(n) ? "&from=session_set_up" : "");
}

// Some of these are filled for subscribers whose feature is off: their values must stay at home.
std::string intercept(unsigned n)
{
    if (!is_rich(n) && n % 40 != 1)
        return "";
    return join("|", {text(1 + n % 3), text(n), text(4000 + n % 50), identifier(n, 2), "2", text(pick(n, 9, 65536)),
                         host_in(2, 1 + n % 200), n % 16 == 5 ? "" : "2001:db8:aaaa::" + hex(n)});
}

std::string urpf(unsigned n)
{
    if (is_rich(n))
        return "1|" + text(n) + ";2|" + text(n + 1);
    return n % 8 == 4 ? ";1|2" : "1|0";
}

std::string icmp(unsigned n)
{
    return is_rich(n) ? "1|2" : text(n % 2);
}

std::string mtu(unsigned n)
{
    if (is_rich(n))
        return "1500|1492|1280";
    return access(n) == "direct" ? "1500" : "1492||1280";
}

std::string accounting(unsigned n)
{
    return join("|", {text(n % 4), n % 2 == 1 ? "900" : "300", text(pick(n, 11, 1000000))});
}

std::string ipv4_route(unsigned n, unsigned i)
{
    const std::string head =
        join("|", {host_in(1 + i, n % 16 * 16) + "/28", host_in(0, 1 + (n + i) % 254), text(i + 1)});
    if (!is_rich(n))
        return head;
    const std::string value_8 = i % 2 == 1 ? text(200 + i) : "";
    return join("|", {head, "route-" + text(i + 1), "core", text(100 + i), value_8, "from " + text(n)});
}

std::string ipv6_route(unsigned n, unsigned i)
{
    const std::string head = join(
        "|", {"2001:db8:" + hex(0x8000 + n) + ":" + hex(16 * i) + "::/60", "2001:db8::" + hex(n + i), text(i + 1)});
    if (!is_rich(n))
        return head;
    return join("|", {head, "route-" + text(i + 1), "core", text(100 + i), text(200 + i), "from " + text(n)});
}

std::string ipv4_routes(unsigned n)
{
    const unsigned ordinary = n % 3 == 0 || !has_ipv4(n) ? 0 : 1;
    return list(is_rich(n) ? 4 : ordinary, [n](unsigned i) { return ipv4_route(n, i); });
}

std::string ipv6_routes(unsigned n)
{
    return list(is_rich(n) ? 4 : 1, [n](unsigned i) { return ipv6_route(n, i); });
}

std::string identity(unsigned n)
{
    const std::string node = "node-" + digits(1 + n % 24, 2);
    const std::string line = node + " " + text(1 + n / 24 % 8) + "/" + text(1 + n / 192) + "/" + text(n);
    const std::string user = "user" + digits(n, 4) + (n % 4 == 3 ? "@example.net" : "@example.com");
    const unsigned kind = n % 6 == 2 ? 2 : (n % 2 == 0 ? 4 : 1);
    return join(",", {line, user, is_rich(n) ? "business " + text(n) : "home", text(kind),
                         join("|", {text(1000 + n), text(1 + n % 7), text(pick(n, 12, 5000)), text(n % 2)}),
                         identifier(n, 1), text(pick(n, 13, 65536))});
}

std::string addresses(unsigned n)
{
    return join(",", {has_ipv4(n) ? ipv4_address(n) + "|" + text(1 + n % 5) : "", text(1 + n % 9),
                         n % 7 == 0 || is_rich(n) ? ipv6(n, "::17") : "", ipv6(n, "::/64"),
                         is_rich(n) ? ipv6(n, "::1") : "", n % 2 == 1 ? ipv6(n, ":f000::/56") : "", vlans(n)});
}

std::string subscriber(unsigned n)
{
    const std::string data_values = join("|", {text(1 + n % 3), "17179869" + digits(n, 4), text(pick(n, 14, 100))});
    return join(
        ",", {identity(n), addresses(n), access(n), ppp(n), l2tp(n), data_values, features(n), qos(n), acl(n),
                 redirect(n), intercept(n), urpf(n), icmp(n), mtu(n), accounting(n), ipv4_routes(n), ipv6_routes(n)});
}

} // namespace

int main()
{
    std::cout << explanation << column_names << "\n";
    for (unsigned n = 1; n <= subscribers; ++n)
        std::cout << subscriber(n) << "\n";
    return std::cout.flush() ? 0 : 1;
}
