#include "session_set.h"

#include "mava_tum/cpp/adapters.hpp"

#include <algorithm>
#include <stdexcept>

namespace examples::reconciliation
{

namespace
{

// FNV-1a: short, and the same on both sides. It finds differences; it does not keep forgers out.
template <typename Bytes>
uint64_t hash_of(const Bytes &bytes)
{
    uint64_t hash = 0xCBF29CE484222325;
    for (const auto byte : bytes)
        hash = (hash ^ static_cast<uint8_t>(byte)) * 0x100000001B3;
    return hash;
}

std::string difference_of(const session_set::entry &wanted, const session_set::entry &held)
{
    const auto [in_wanted, in_held] = std::ranges::mismatch(wanted.wire, held.wire);
    return "line id " + wanted.line + ": " + std::to_string(held.wire.size()) + " bytes held, " +
           std::to_string(wanted.wire.size()) + " wanted; they differ from byte " +
           std::to_string(in_wanted - wanted.wire.begin()) + " on";
}

} // namespace

session_number number_of(std::string_view line)
{
    return hash_of(line);
}

void session_set::put(const tum_nal_data_session_context &session)
{
    put_entry(session.session_text, mava_tum::cpp::encode(session));
}

void session_set::put_wire(std::span<const uint8_t> wire)
{
    put_entry(mava_tum::cpp::decode<tum_nal_data_session_context>(wire).session_text, {wire.begin(), wire.end()});
}

void session_set::put_entry(std::string line, std::vector<uint8_t> wire)
{
    const auto [place, is_new] = m_entries.try_emplace(number_of(line));
    entry &stored = place->second;
    if (!is_new && stored.line != line)
        throw std::runtime_error(
            "the line ids " + stored.line + " and " + line + " have the same number; change one of them");
    stored = {std::move(line), std::move(wire)};
}

bool session_set::remove(session_number number)
{
    return m_entries.erase(number) != 0;
}

bool session_set::has(session_number number) const
{
    return m_entries.contains(number);
}

const session_set::entry &session_set::at(session_number number) const
{
    return m_entries.at(number);
}

tum_nal_data_session_context session_set::session(session_number number) const
{
    return mava_tum::cpp::decode<tum_nal_data_session_context>(at(number).wire);
}

tum_nal_data_session_state session_set::state(session_number number) const
{
    const auto found = m_entries.find(number);
    uint64_t fingerprint = 0;
    if (found != m_entries.end())
        fingerprint = std::max(hash_of(found->second.wire), uint64_t{1});
    return {static_cast<uint32_t>(fingerprint >> 32), number, static_cast<uint32_t>(fingerprint)};
}

size_t session_set::wire_bytes() const
{
    size_t total = 0;
    for (const auto &[number, each] : m_entries)
        total += each.wire.size();
    return total;
}

bool same_state(const tum_nal_data_session_state &a, const tum_nal_data_session_state &b)
{
    return a.field_1 == b.field_1 && a.field_2 == b.field_2 && a.field_3 == b.field_3;
}

bool holds_none(const tum_nal_data_session_state &state)
{
    return state.field_1 == 0 && state.field_3 == 0;
}

std::vector<std::string> differences(const session_set &wanted, const session_set &held)
{
    std::vector<std::string> result;
    for (const auto &[number, each] : wanted.entries()) {
        if (!held.has(number))
            result.push_back("line id " + each.line + ": lost");
        else if (held.at(number).wire != each.wire)
            result.push_back(difference_of(each, held.at(number)));
    }
    for (const auto &[number, each] : held.entries()) {
        if (!wanted.has(number))
            result.push_back("line id " + each.line + ": held, but nobody wants it");
    }
    return result;
}

} // namespace examples::reconciliation
