#include "json/json_values.h"

#include "bad_use.h"
#include "input/digit_text.h"
#include "inspector/library/field_value.h"
#include "inspector/library/utf8_text.h"

#include <arpa/inet.h>
#include <array>
#include <fmt/format.h>
#include <limits>
#include <optional>

namespace mava_tum_cli
{

namespace
{

std::string kind_of_found(const json &found)
{
    switch (found.type()) {
    case json::value_t::null:
        return "null";
    case json::value_t::object:
        return "an object";
    case json::value_t::array:
        return fmt::format("an array of {} elements", found.size());
    case json::value_t::string:
        return "a text";
    case json::value_t::boolean:
        return "a truth value";
    default:
        return found.dump();
    }
}

std::span<const uint8_t> as_bytes(const std::string &text)
{
    return {reinterpret_cast<const uint8_t *>(text.data()), text.size()};
}

std::optional<uint32_t> ipv4_of_text(const std::string &text)
{
    in_addr address{};
    if (inet_pton(AF_INET, text.c_str(), &address) != 1)
        return std::nullopt;
    return ntohl(address.s_addr);
}

std::optional<byte_vector> ipv6_of_text(const std::string &text)
{
    byte_vector address(16);
    if (inet_pton(AF_INET6, text.c_str(), address.data()) != 1)
        return std::nullopt;
    return address;
}

byte_vector hex_value(const std::string &digits, const std::string &path)
{
    const std::span<const uint8_t> text = as_bytes(digits);
    for (const uint8_t character : text)
        if (hex_digit_value(character) < 0)
            throw bad_use(fmt::format("{}: expected hex digits or an address with colons, found \"{}\"", path, digits));
    if (text.size() % 2 != 0)
        throw bad_use(fmt::format("{}: expected two hex digits for each byte, found {} digits", path, text.size()));
    return bytes_of_hex(text, path);
}

// The bytes of {"hex": "..."} or {"text": "..."}.
byte_vector tagged_bytes(const json &value, const std::string &path)
{
    const bool is_tagged = value.is_object() && value.size() == 1 && value.begin()->is_string();
    if (!is_tagged || (value.begin().key() != "hex" && value.begin().key() != "text"))
        refuse_value(path, R"(a text, or one as {"hex": "..."} or {"text": "..."})", value);
    const auto &content = value.begin()->get_ref<const std::string &>();
    if (value.begin().key() == "hex")
        return hex_value(content, member_path(path, "hex"));
    return {content.begin(), content.end()};
}

} // namespace

void refuse_value(const std::string &path, const std::string &expected, const json &found)
{
    throw bad_use(fmt::format("{}: expected {}, found {}", path.empty() ? "/" : path, expected, kind_of_found(found)));
}

std::string member_path(const std::string &path, std::string_view name)
{
    std::string whole = path + "/";
    for (const char character : name) {
        if (character == '~')
            whole += "~0";
        else if (character == '/')
            whole += "~1";
        else
            whole += character;
    }
    return whole;
}

std::string element_path(const std::string &path, size_t index)
{
    return fmt::format("{}/{}", path, index);
}

uint64_t number_of_json(const json &value, const std::string &path, uint64_t largest)
{
    if (!value.is_number_unsigned() || value.get<uint64_t>() > largest)
        refuse_value(path, fmt::format("a number from 0 to {}", largest), value);
    return value.get<uint64_t>();
}

uint32_t ipv4_of_json(const json &value, const std::string &path)
{
    if (!value.is_string())
        return static_cast<uint32_t>(number_of_json(value, path, std::numeric_limits<uint32_t>::max()));
    const auto &text = value.get_ref<const std::string &>();
    const std::optional<uint32_t> address = ipv4_of_text(text);
    if (!address)
        throw bad_use(fmt::format("{}: expected an IPv4 address such as \"192.0.2.1\", found {}", path, value.dump()));
    return *address;
}

byte_vector bytes_of_json(const json &value, const std::string &path)
{
    if (!value.is_string())
        return tagged_bytes(value, path);
    const auto &text = value.get_ref<const std::string &>();
    if (text.find(':') == std::string::npos)
        return hex_value(text, path);
    const std::optional<byte_vector> address = ipv6_of_text(text);
    if (!address)
        throw bad_use(
            fmt::format("{}: expected an IPv6 address such as \"2001:db8::1\", found {}", path, value.dump()));
    return *address;
}

std::string text_of_json(const json &value, const std::string &path)
{
    std::string text;
    if (value.is_string()) {
        text = value.get<std::string>();
    } else {
        const byte_vector bytes = tagged_bytes(value, path);
        text.assign(bytes.begin(), bytes.end());
    }
    const size_t zero = text.find('\0');
    if (zero != std::string::npos)
        throw bad_use(fmt::format(
            "{}: expected a text without a zero byte, which would end it, found one after {} bytes", path, zero));
    return text;
}

json json_of_ipv4(uint32_t host_order)
{
    return std::string(address_text::ipv4(host_order).view());
}

json json_of_bytes(std::span<const uint8_t> bytes, bool is_ipv6)
{
    if (is_ipv6 && bytes.size() == 16)
        return std::string(address_text::ipv6(bytes.data()).view());
    return hex_of_bytes(bytes);
}

json json_of_text(std::string_view text)
{
    if (is_plain_utf8(text))
        return text;
    return json{{"hex", hex_of_bytes({reinterpret_cast<const uint8_t *>(text.data()), text.size()})}};
}

// Numbers here have no sign, and names need no escape.
void write_json(json_writer &writer, const json &value)
{
    if (value.is_number())
        return writer.number(value.get<uint64_t>());
    if (value.is_string())
        return writer.string(value.get_ref<const std::string &>());
    if (value.is_array())
        writer.open_array();
    else
        writer.open_object();
    for (const auto &[name, element] : value.items()) {
        if (value.is_object())
            writer.name(name);
        write_json(writer, element);
    }
    writer.close();
}

} // namespace mava_tum_cli
