// The sessions that one side holds, and the comparison of two such sets.
#ifndef RECONCILIATION_SESSION_SET_H
#define RECONCILIATION_SESSION_SET_H

#include "tum_nal/nal_reconciliation.h"

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace examples::reconciliation
{

// What the messages call a session by: a number made of its line id, which both sides can work out.
using session_number = uint64_t;

session_number number_of(std::string_view line);

// Sessions as wire bytes, which take a twentieth of the application record. Bytes that were decoded and encoded again
// are the same bytes, also where the record is not: a sent `field_8` of an IPv4 route comes back as `field_7` and goes
// out again as that. So the bytes of two sides can be compared.
class session_set
{
public:
    struct entry {
        std::string line;
        std::vector<uint8_t> wire;
    };

    // Adds a session, or replaces the one with its line id. Throws std::runtime_error when another line id has its
    // number.
    void put(const tum_nal_data_session_context &session);

    // The same with the bytes as they came.
    void put_wire(std::span<const uint8_t> wire);

    // False if there was none.
    bool remove(session_number number);

    bool has(session_number number) const;

    // Throws std::out_of_range if there is none.
    const entry &at(session_number number) const;
    tum_nal_data_session_context session(session_number number) const;

    // In the form that the messages carry: its number and a fingerprint of its bytes. The fingerprint of a session that
    // is not in the set is 0, that of another one is never 0.
    tum_nal_data_session_state state(session_number number) const;

    size_t size() const
    {
        return m_entries.size();
    }

    size_t wire_bytes() const;

    const std::map<session_number, entry> &entries() const
    {
        return m_entries;
    }

private:
    void put_entry(std::string line, std::vector<uint8_t> wire);

    std::map<session_number, entry> m_entries;
};

bool same_state(const tum_nal_data_session_state &a, const tum_nal_data_session_state &b);
bool holds_none(const tum_nal_data_session_state &state);

// One text for each session in which `held` is not as `wanted`, such as "line id node-02 1/1: lost". Empty if the sets
// are the same to the last byte.
std::vector<std::string> differences(const session_set &wanted, const session_set &held);

} // namespace examples::reconciliation

#endif
