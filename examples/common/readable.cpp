#include "readable.h"

#include <arpa/inet.h>
#include <cstdio>

namespace examples
{

namespace
{

std::string hex_byte(uint8_t byte)
{
    char digits[3];
    std::snprintf(digits, sizeof digits, "%02x", byte);
    return digits;
}

} // namespace

std::string readable_ipv4(uint32_t host_order)
{
    const in_addr address{htonl(host_order)};
    char text[INET_ADDRSTRLEN];
    return inet_ntop(AF_INET, &address, text, sizeof text);
}

std::string readable_ipv6(std::span<const uint8_t> bytes)
{
    char text[INET6_ADDRSTRLEN];
    if (bytes.size() != sizeof(in6_addr))
        return readable_bytes(bytes);
    return inet_ntop(AF_INET6, bytes.data(), text, sizeof text);
}

std::string readable_bytes(std::span<const uint8_t> bytes)
{
    std::string result;
    for (const uint8_t byte : bytes)
        result += (result.empty() ? "" : ":") + hex_byte(byte);
    return result;
}

std::string readable_text(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        const auto byte = static_cast<uint8_t>(c);
        const bool harmless = byte >= 0x20 && byte != 0x7F;
        result += harmless ? std::string(1, c) : "\\x" + hex_byte(byte);
    }
    return result + "\"";
}

std::string readable_count(uint64_t count)
{
    std::string digits = std::to_string(count);
    for (size_t i = digits.size(); i > 3; i -= 3)
        digits.insert(i - 3, ",");
    return digits;
}

} // namespace examples
