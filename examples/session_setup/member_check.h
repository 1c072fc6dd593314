// Compares members of a received record with what they should be and keeps the differences.
#ifndef SESSION_SETUP_MEMBER_CHECK_H
#define SESSION_SETUP_MEMBER_CHECK_H

#include "subscriber.h"

#include <span>
#include <string_view>

namespace examples::session_setup
{

struct mismatch {
    std::string member; // as in the record's type, such as "qos[2].text_4"
    std::string wanted;
    std::string received;
};

class member_check
{
public:
    void number(std::string_view member, uint64_t wanted, uint64_t received);
    void address(std::string_view member, ipv4_address wanted, uint32_t received);
    void address(std::string_view member, const ipv6_address &wanted, std::span<const uint8_t> received);
    // `wanted` fills the whole array.
    void bytes(std::string_view member, std::span<const uint8_t> wanted, std::span<const uint8_t> received);
    // The whole array is looked at: behind the text it must be zero.
    void text(std::string_view member, std::string_view wanted, std::span<const char> received);
    void zeros(std::string_view member, std::span<const uint8_t> received);

    // Names the slot that the members belong to from now on, such as qos[2]. `list` must outlive that.
    void enter_slot(std::string_view list, size_t index);
    void leave_slot();

    const std::vector<mismatch> &mismatches() const
    {
        return m_mismatches;
    }

private:
    void differ(std::string_view member, const std::string &wanted, const std::string &received);

    // The slot's name is put together only where something differs: most of the time nothing does.
    std::string_view m_list;
    size_t m_index = 0;
    std::vector<mismatch> m_mismatches;
};

} // namespace examples::session_setup

#endif
