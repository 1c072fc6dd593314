#include "member_check.h"

#include "readable.h"

#include <algorithm>

namespace examples::session_setup
{

void member_check::differ(std::string_view member, const std::string &wanted, const std::string &received)
{
    const std::string slot = m_list.empty() ? "" : std::string(m_list) + "[" + std::to_string(m_index) + "].";
    m_mismatches.push_back({slot + std::string(member), wanted, received});
}

void member_check::number(std::string_view member, uint64_t wanted, uint64_t received)
{
    if (wanted != received)
        differ(member, std::to_string(wanted), std::to_string(received));
}

void member_check::address(std::string_view member, ipv4_address wanted, uint32_t received)
{
    if (wanted != received)
        differ(member, readable_ipv4(wanted), readable_ipv4(received));
}

void member_check::address(std::string_view member, const ipv6_address &wanted, std::span<const uint8_t> received)
{
    if (!std::ranges::equal(wanted, received))
        differ(member, readable_ipv6(wanted), readable_ipv6(received));
}

void member_check::bytes(std::string_view member, std::span<const uint8_t> wanted, std::span<const uint8_t> received)
{
    if (!std::ranges::equal(wanted, received))
        differ(member, readable_bytes(wanted), readable_bytes(received));
}

void member_check::text(std::string_view member, std::string_view wanted, std::span<const char> received)
{
    const std::string_view array(received.data(), received.size());
    const bool same = wanted.size() < array.size() && array.starts_with(wanted) &&
                      std::ranges::all_of(array.substr(wanted.size()), [](char c) { return c == '\0'; });
    if (!same)
        differ(member, readable_text(wanted), readable_text(array.substr(0, array.find_last_not_of('\0') + 1)));
}

void member_check::zeros(std::string_view member, std::span<const uint8_t> received)
{
    if (std::ranges::any_of(received, [](uint8_t byte) { return byte != 0; }))
        differ(member, "zeros", readable_bytes(received.first(std::min<size_t>(received.size(), 32))));
}

void member_check::enter_slot(std::string_view list, size_t index)
{
    m_list = list;
    m_index = index;
}

void member_check::leave_slot()
{
    m_list = {};
}

} // namespace examples::session_setup
