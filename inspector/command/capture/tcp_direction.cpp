#include "capture/tcp_direction.h"

#include "output/output_file.h"

#include <algorithm>
#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

// What may wait for missing segments, in all directions. By default, Linux lets a sender be 6 MiB ahead.
constexpr size_t pending_limit_bytes = size_t{8} << 20;

// One or more messages with their lengths and nothing else. Other bytes look so by chance once in millions of packets.
bool holds_whole_messages(std::span<const uint8_t> content)
{
    bool is_empty = true;
    while (content.size() >= frame_header_bytes) {
        const uint32_t length = frame_length_of(content.first<frame_header_bytes>());
        if (length > content.size() - frame_header_bytes)
            return false;
        is_empty = is_empty && length == 0;
        content = content.subspan(frame_header_bytes + length);
    }
    return content.empty() && !is_empty;
}

} // namespace

void tcp_direction::start(uint32_t sequence, progress state)
{
    finish("the connection");
    m_state = state;
    m_next = (uint64_t{1} << 32) + sequence; // so that earlier positions are not negative
    m_sent_end = m_next;
    m_close_at = nowhere;
    m_first = state == progress::reading ? sequence : nowhere;
}

void tcp_direction::add(const packet_payload &payload, uint64_t packet)
{
    m_last_packet = packet;
    const uint32_t sequence = payload.sequence + (payload.starts ? 1 : 0);
    // A SYN that is sent again starts nothing.
    if (payload.starts && m_first != sequence)
        start(sequence, progress::reading);
    else if (m_state == progress::not_begun)
        start(sequence, progress::unsure);
    if (m_state == progress::over)
        return;
    const auto ahead = static_cast<int32_t>(sequence - static_cast<uint32_t>(m_next));
    const uint64_t position = m_next + static_cast<uint64_t>(static_cast<int64_t>(ahead));
    const uint64_t end = position + payload.content.size() + payload.missing_bytes;
    m_sent_end = std::max(m_sent_end, end);
    if (payload.ends && end >= m_next)
        m_close_at = end;
    if (!payload.content.empty())
        keep(position, payload.content, packet);
    deliver_pending();
    while (m_shared.pending_bytes > pending_limit_bytes && !m_pending.empty())
        close_gap();
    if (m_next >= m_close_at)
        finish("the connection");
}

// Of two segments at one position, the longer one is kept.
void tcp_direction::keep(uint64_t position, std::span<const uint8_t> content, uint64_t packet)
{
    segment &waiting = m_pending[position];
    if (waiting.content.size() >= content.size())
        return;
    m_shared.pending_bytes += content.size() - waiting.content.size();
    waiting = {byte_vector(content.begin(), content.end()), packet};
}

void tcp_direction::finish(std::string_view what)
{
    while (!m_pending.empty())
        close_gap();
    if (m_state == progress::reading && m_header_bytes != 0)
        note(fmt::format("{} ends inside of the message that begins in packet {}", what, m_message.packet));
    else if (m_state == progress::reading && m_sent_end > m_next)
        note(fmt::format("the last {} are missing", counted(m_sent_end - m_next, "byte")));
    m_header_bytes = 0;
    m_left = 0;
    m_state = progress::over;
}

void tcp_direction::deliver_pending()
{
    while (!m_pending.empty() && m_pending.begin()->first <= m_next) {
        const auto [position, waiting] = std::move(*m_pending.begin());
        m_pending.erase(m_pending.begin());
        m_shared.pending_bytes -= waiting.content.size();
        const uint64_t known = m_next - position; // was there before
        if (known < waiting.content.size()) {
            m_next = position + waiting.content.size();
            deliver(std::span(waiting.content).subspan(known), waiting.packet);
        }
    }
}

void tcp_direction::close_gap()
{
    const auto &[position, waiting] = *m_pending.begin();
    const uint64_t missing = position - m_next;
    const std::string gap = fmt::format("{} before packet {} are missing", counted(missing, "byte"), waiting.packet);
    if (m_state == progress::reading && missing <= m_left) {
        note(fmt::format("{}; the message that begins in packet {} is left out", gap, m_message.packet));
        m_is_lost = true;
        m_left -= missing;
    } else if (m_state == progress::reading) {
        lose(gap + ", and where the next message begins is not known");
    }
    m_next = position;
    deliver_pending();
}

void tcp_direction::lose(const std::string &reason)
{
    note(reason + "; nothing is read up to a packet that holds whole messages");
    m_state = progress::searching;
    m_header_bytes = 0;
    m_left = 0;
}

void tcp_direction::note(const std::string &text) const
{
    m_shared.note(*m_name + ": " + text);
}

void tcp_direction::take_length_byte(uint8_t byte, uint64_t packet)
{
    if (m_header_bytes == 0)
        m_message = {{}, packet, m_name};
    m_header[m_header_bytes++] = byte;
    if (m_header_bytes < m_header.size())
        return;
    m_left = frame_length_of(m_header);
    m_is_lost = false;
    if (m_left > frame_limit_bytes)
        lose(fmt::format("a message in packet {} claims {} bytes, and {} is the limit", m_message.packet, m_left,
            frame_limit_bytes));
}

void tcp_direction::find_beginning(std::span<const uint8_t> content, uint64_t packet)
{
    const bool is_whole = holds_whole_messages(content);
    if (m_state == progress::unsure) {
        m_state = progress::reading;
        if (!is_whole)
            note(fmt::format("the capture lacks the beginning of the connection; packet {} is taken for the beginning "
                             "of a message",
                packet));
    } else if (m_state == progress::searching && is_whole) {
        m_state = progress::reading;
        note(fmt::format("messages are read again from packet {}", packet));
    }
}

void tcp_direction::deliver(std::span<const uint8_t> content, uint64_t packet)
{
    find_beginning(content, packet);
    while (m_state == progress::reading) {
        if (m_header_bytes == m_header.size() && m_left == 0) {
            if (!m_is_lost)
                m_shared.messages.push_back(std::move(m_message));
            m_header_bytes = 0;
        }
        if (content.empty())
            return;
        if (m_header_bytes < m_header.size()) {
            take_length_byte(content.front(), packet);
            content = content.subspan(1);
            continue;
        }
        const size_t taken = static_cast<size_t>(std::min<uint64_t>(m_left, content.size()));
        m_message.bytes.insert(m_message.bytes.end(), content.begin(), content.begin() + static_cast<ptrdiff_t>(taken));
        m_left -= taken;
        content = content.subspan(taken);
    }
}

} // namespace mava_tum_cli
