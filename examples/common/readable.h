// Values as people write them.
#ifndef EXAMPLES_READABLE_H
#define EXAMPLES_READABLE_H

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace examples
{

std::string readable_ipv4(uint32_t host_order);

// `bytes` that are not 16 are written as bytes.
std::string readable_ipv6(std::span<const uint8_t> bytes);

// Two hex digits each, ':' between them.
std::string readable_bytes(std::span<const uint8_t> bytes);

// In quotes; what a terminal would act on becomes \xHH.
std::string readable_text(std::string_view text);

// 1234567 is 1,234,567.
std::string readable_count(uint64_t count);

} // namespace examples

#endif
