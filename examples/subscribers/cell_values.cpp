#include "cell_values.h"

#include <algorithm>
#include <arpa/inet.h>
#include <charconv>

namespace examples
{

namespace
{

std::string quoted(std::string_view text)
{
    return "\"" + std::string(text) + "\"";
}

// True when all of `text` is a number of that base.
template <typename Number>
bool parse_number(std::string_view text, Number &result, int base)
{
    const char *end = text.data() + text.size();
    const auto [stopped_at, error] = std::from_chars(text.data(), end, result, base);
    return error == std::errc{} && stopped_at == end;
}

template <typename Address>
void split_prefix(const cell &value, prefix<Address> &result, uint8_t longest, const char *example)
{
    if (value.empty())
        return;
    const size_t slash = value.text.find('/');
    if (slash == std::string_view::npos)
        value.refuse(quoted(value.text) + " has no prefix length", std::string("write it as ") + example);
    cell part = value;
    part.text = value.text.substr(0, slash);
    read_address(part, result.address);
    part.text = value.text.substr(slash + 1);
    if (part.empty())
        value.refuse(quoted(value.text) + " has no prefix length", std::string("write it as ") + example);
    result.length = static_cast<uint8_t>(number_up_to(part, longest));
}

} // namespace

uint64_t number_up_to(const cell &value, uint64_t largest)
{
    uint64_t result = 0;
    if (value.empty())
        return result;
    if (!parse_number(value.text, result, 10) || result > largest)
        value.refuse(quoted(value.text) + " is not a number from 0 to " + std::to_string(largest),
            "write decimal digits, or nothing for 0");
    return result;
}

std::string text(const cell &value, size_t limit)
{
    if (value.text.size() > limit)
        value.refuse(quoted(value.text) + " has " + std::to_string(value.text.size()) +
                         " bytes, but the record has "
                         "room for " +
                         std::to_string(limit),
            "shorten it");
    return std::string(value.text);
}

void read_address(const cell &value, ipv4_address &address)
{
    in_addr network_order{};
    if (value.empty())
        return;
    if (inet_pton(AF_INET, std::string(value.text).c_str(), &network_order) != 1)
        value.refuse(
            quoted(value.text) + " is not an IPv4 address", "write four numbers from 0 to 255, such as 192.0.2.17");
    address = ntohl(network_order.s_addr);
}

void read_address(const cell &value, ipv6_address &address)
{
    if (value.empty())
        return;
    if (inet_pton(AF_INET6, std::string(value.text).c_str(), address.data()) != 1)
        value.refuse(quoted(value.text) + " is not an IPv6 address", "write it as in 2001:db8::17");
}

void read_prefix(const cell &value, prefix<ipv4_address> &result)
{
    split_prefix(value, result, 32, "198.51.100.0/24");
}

void read_prefix(const cell &value, prefix<ipv6_address> &result)
{
    split_prefix(value, result, 128, "2001:db8:17::/48");
}

void read_bytes(const cell &value, std::span<uint8_t> bytes)
{
    const std::vector<std::string_view> pairs = split(value.text, ':');
    bool good = pairs.size() == bytes.size();
    for (size_t i = 0; good && i < bytes.size(); ++i)
        good = pairs[i].size() == 2 && parse_number(pairs[i], bytes[i], 16);
    if (!good)
        value.refuse(quoted(value.text) + " is not " + std::to_string(bytes.size()) + " bytes",
            "write two hex digits for each and ':' between them, such as 00:00:5e:00:53:01");
}

size_t index_of_word(const cell &value, std::span<const char *const> words)
{
    const auto found = std::ranges::find(words, value.text, [](const char *word) { return std::string_view(word); });
    if (found != words.end())
        return static_cast<size_t>(found - words.begin());
    std::string known;
    for (const char *word : words)
        known += (known.empty() ? "" : ", ") + std::string(word);
    value.refuse("\"" + std::string(value.text) + "\" is not known", "use one of: " + known);
}

} // namespace examples
