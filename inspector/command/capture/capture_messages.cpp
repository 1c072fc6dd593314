#include "capture/capture_messages.h"

#include "output/output_file.h"

#include <algorithm>
#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

constexpr uint64_t most_notes = 20;
// Of captures with more, those without packets for the longest time are forgotten.
constexpr size_t most_directions = 4096;

} // namespace

capture_messages::capture_messages(capture_choice choice, std::function<void(const std::string &)> note)
    : m_choice(std::move(choice)), m_note(std::move(note))
{
    m_shared.note = [this](const std::string &text) { this->note(text); };
}

bool capture_messages::is_chosen(const packet_payload &payload) const
{
    if (m_choice.protocol && payload.protocol != *m_choice.protocol)
        return false;
    const auto is_port = [this](uint16_t port) {
        return m_choice.ports.empty() || std::ranges::find(m_choice.ports, port) != m_choice.ports.end();
    };
    return (m_choice.side != port_side::from && is_port(payload.destination.port)) ||
           (m_choice.side != port_side::to && is_port(payload.source.port));
}

void capture_messages::add(const captured_packet &packet)
{
    ++m_packets;
    packet_payload payload;
    switch (read_packet_payload(packet.link_type, packet.content, packet.missing_bytes, payload)) {
    case packet_fault::none:
        return add_payload(payload, packet.number);
    case packet_fault::fragment:
        return note(fmt::format("packet {} is a fragment of an IP packet, and is not read", packet.number));
    case packet_fault::cut:
        return note(fmt::format("packet {} was captured in part, without all headers, and is not read; capture with a "
                                "larger snapshot length",
            packet.number));
    case packet_fault::not_ours:
        ++m_foreign_packets;
        note_unknown_link(packet);
    }
}

// Of several, the last one: the number of notes is limited.
void capture_messages::note_unknown_link(const captured_packet &packet)
{
    if (is_known_link(packet.link_type) || packet.link_type == m_unknown_link)
        return;
    m_unknown_link = packet.link_type;
    note(fmt::format("packet {} is of link type {}, and such packets are not read", packet.number, packet.link_type));
}

void capture_messages::add_payload(const packet_payload &payload, uint64_t number)
{
    if (is_chosen(payload))
        return payload.protocol == transport::udp ? add_datagram(payload, number) : add_segment(payload, number);
    if (m_first_not_chosen.empty())
        m_first_not_chosen = payload.direction();
}

void capture_messages::add_datagram(const packet_payload &payload, uint64_t number)
{
    if (payload.missing_bytes != 0)
        return note(
            fmt::format("packet {} was captured in part, {} are missing, and is not read; capture with a larger "
                        "snapshot length",
                number, counted(payload.missing_bytes, "byte")));
    m_shared.messages.push_back({byte_vector(payload.content.begin(), payload.content.end()), number,
        std::make_shared<const std::string>(payload.direction())});
}

void capture_messages::add_segment(const packet_payload &payload, uint64_t number)
{
    const std::pair ends(payload.source, payload.destination);
    auto found = m_directions.find(ends);
    if (found == m_directions.end()) {
        if (m_directions.size() >= most_directions)
            forget_oldest_directions();
        found = m_directions.try_emplace(ends, payload.direction(), m_shared).first;
    }
    found->second.add(payload, number);
}

// Half of them, so that it is seldom done.
void capture_messages::forget_oldest_directions()
{
    std::vector<uint64_t> last_packets;
    for (const auto &[ends, direction] : m_directions)
        last_packets.push_back(direction.last_packet());
    const auto middle = last_packets.begin() + static_cast<std::ptrdiff_t>(last_packets.size() / 2);
    std::ranges::nth_element(last_packets, middle);
    for (auto &[ends, direction] : m_directions)
        if (direction.last_packet() <= *middle)
            direction.finish("what is read of the connection");
    std::erase_if(m_directions, [newest = *middle](const auto &each) { return each.second.last_packet() <= newest; });
}

void capture_messages::finish(const std::string &problem)
{
    if (!problem.empty())
        m_note(problem);
    for (auto &[ends, direction] : m_directions)
        direction.finish("the capture");
    m_messages += m_shared.messages.size();
    if (m_messages == 0)
        note_without_messages();
    if (m_notes > most_notes)
        m_note(fmt::format("{} more notes are left out; --port and --transport choose packets", m_notes - most_notes));
}

void capture_messages::note_without_messages()
{
    std::string text = fmt::format("no message in {}", counted(m_packets, "packet"));
    if (m_foreign_packets != 0)
        text += fmt::format("; {} are neither UDP nor TCP over IP", m_foreign_packets);
    if (!m_first_not_chosen.empty())
        text += fmt::format("; --port, --side and --transport leave out packets such as {}", m_first_not_chosen);
    note(text);
}

void capture_messages::note(const std::string &text)
{
    if (++m_notes <= most_notes)
        m_note(text);
}

bool capture_messages::take(captured_message &message)
{
    if (m_shared.messages.empty())
        return false;
    message = std::move(m_shared.messages.front());
    m_shared.messages.pop_front();
    ++m_messages;
    return true;
}

} // namespace mava_tum_cli
