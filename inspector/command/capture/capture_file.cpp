// Why a reader of our own: docs/decisions/0015-captures-without-libpcap.md.
#include "capture/capture_file.h"

#include "bad_use.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <initializer_list>
#include <optional>
#include <stdexcept>
#include <vector>

namespace mava_tum_cli
{

struct capture_form {
    bool is_pcapng;
    bool is_big_endian;
};

namespace
{

constexpr size_t pcap_header_bytes = 24, pcap_packet_header_bytes = 16;
constexpr uint32_t pcap_link_type = 0x03FFFFFF; // the bits above it are about checksums behind packets
constexpr uint32_t block_header_bytes = 8, block_trailer_bytes = 4;
constexpr size_t section_bytes = 12; // that name the byte order of a section
// Lengths are not to be trusted. tcpdump captures no more of a packet.
constexpr uint32_t most_packet_bytes = 262144;
constexpr size_t most_interfaces = 65536; // of a section

constexpr uint32_t byte_order_mark = 0x1A2B3C4D;

enum block_type : uint32_t {
    interface_description = 1,
    old_packet = 2,
    simple_packet = 3,
    enhanced_packet = 6,
    section_header = 0x0A0D0D0A // the same in both byte orders
};

// Of a pcap, version 2.4 with times in microseconds or nanoseconds; or of a section of a pcapng.
std::optional<capture_form> form_of(std::span<const uint8_t> bytes)
{
    const auto has = [bytes](size_t at, std::initializer_list<uint8_t> expected) {
        return bytes.size() >= at + expected.size() && std::ranges::equal(bytes.subspan(at, expected.size()), expected);
    };
    const bool is_section = has(0, {0x0A, 0x0D, 0x0D, 0x0A});
    if (is_section && has(8, {0x1A, 0x2B, 0x3C, 0x4D}))
        return capture_form{true, true};
    if (is_section && has(8, {0x4D, 0x3C, 0x2B, 0x1A}))
        return capture_form{true, false};
    if ((has(0, {0xA1, 0xB2, 0xC3, 0xD4}) || has(0, {0xA1, 0xB2, 0x3C, 0x4D})) && has(4, {0, 2, 0, 4}))
        return capture_form{false, true};
    if ((has(0, {0xD4, 0xC3, 0xB2, 0xA1}) || has(0, {0x4D, 0x3C, 0xB2, 0xA1})) && has(4, {2, 0, 4, 0}))
        return capture_form{false, false};
    return std::nullopt;
}

struct broken_capture : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace

bool is_capture(std::span<const uint8_t> beginning)
{
    return form_of(beginning).has_value();
}

// Throws broken_capture.
class packet_reader
{
public:
    explicit packet_reader(input_stream &stream) : m_stream(stream)
    {
        const std::optional<capture_form> form = form_of(stream.peek(section_bytes));
        if (!form)
            throw broken_capture("it begins neither as a pcap of version 2.4 nor as a pcapng");
        m_form = *form;
        if (!m_form.is_pcapng) {
            take(pcap_header_bytes);
            m_interfaces.push_back({number(20, 4) & pcap_link_type, 0});
        }
        for (captured_packet none; m_interfaces.empty();) {
            if (is_at_end())
                throw broken_capture("it has no Interface Description Block");
            read_block(none);
        }
    }

    // False at the end. Throws bad_use where no interface has packets that are read.
    bool next(captured_packet &packet)
    {
        bool has_packet = false;
        while (!has_packet && !is_at_end())
            has_packet = m_form.is_pcapng ? read_block(packet) : read_record(packet);
        if (has_packet && m_number++ == 0)
            refuse_unknown_links();
        packet.number = m_number;
        return has_packet;
    }

    // Of the last packet; 0: there was none.
    uint64_t number_of_packet() const
    {
        return m_number;
    }

private:
    struct interface {
        uint32_t link_type;
        uint32_t most_bytes; // that were captured of a packet; 0: there is no limit
    };

    bool is_at_end()
    {
        return m_stream.peek(1).empty();
    }

    void fill(std::span<uint8_t> bytes)
    {
        if (m_stream.read(bytes) != bytes.size())
            throw broken_capture("truncated: the capture ends inside of it");
    }

    void take(size_t size)
    {
        fill(std::span(m_header).first(size));
    }

    // In m_header.
    uint32_t number(size_t at, size_t size) const
    {
        uint32_t number = 0;
        for (size_t i = 0; i < size; ++i)
            number = number << 8 | m_header[at + (m_form.is_big_endian ? i : size - 1 - i)];
        return number;
    }

    // The content of a packet, of which `captured` bytes follow and `sent` were on the link.
    void take_content(captured_packet &packet, uint32_t interface_number, uint32_t captured, uint32_t sent)
    {
        if (interface_number >= m_interfaces.size())
            throw broken_capture(fmt::format("nothing describes its interface, {}", interface_number));
        if (captured > most_packet_bytes)
            throw broken_capture(fmt::format("it claims {} bytes, and {} is the limit", captured, most_packet_bytes));
        m_content.resize(captured);
        fill(m_content);
        packet.link_type = static_cast<int>(m_interfaces[interface_number].link_type);
        packet.content = m_content;
        packet.missing_bytes = sent > captured ? sent - captured : 0;
    }

    // Of a pcap: a header, and a packet.
    bool read_record(captured_packet &packet)
    {
        take(pcap_packet_header_bytes);
        take_content(packet, 0, number(8, 4), number(12, 4));
        return true;
    }

    // Of a pcapng: type, length, content, and the length again. Returns whether it is a packet.
    bool read_block(captured_packet &packet)
    {
        const std::optional<capture_form> section = form_of(m_stream.peek(section_bytes));
        if (section && section->is_pcapng)
            m_form = *section;
        take(block_header_bytes);
        const uint32_t type = number(0, 4);
        const uint32_t size = number(4, 4);
        if (size % 4 != 0 || size < block_header_bytes + block_trailer_bytes)
            throw broken_capture(fmt::format("a block claims {} bytes", size));
        m_left = size - block_header_bytes - block_trailer_bytes;
        const bool is_packet = read_block_content(type, packet);
        skip_rest();
        take(block_trailer_bytes);
        if (number(0, 4) != size)
            throw broken_capture(fmt::format("a block of {} bytes ends as one of {}", size, number(0, 4)));
        return is_packet;
    }

    bool read_block_content(uint32_t type, captured_packet &packet)
    {
        switch (type) {
        case section_header:
            take_of_block(8);
            if (number(0, 4) != byte_order_mark || number(4, 2) != 1)
                throw broken_capture("a section of it is not of version 1");
            m_interfaces.clear();
            return false;
        case interface_description:
            take_of_block(8);
            if (m_interfaces.size() == most_interfaces)
                throw broken_capture(fmt::format("it has more than {} interfaces", most_interfaces));
            m_interfaces.push_back({number(0, 2), number(4, 4)});
            return false;
        case simple_packet:
            take_of_block(4);
            take_simple_packet(packet, number(0, 4));
            return true;
        case old_packet:
        case enhanced_packet:
            take_of_block(20);
            claim(number(12, 4));
            take_content(packet, number(0, type == old_packet ? 2 : 4), number(12, 4), number(16, 4));
            return true;
        default:
            return false;
        }
    }

    // Of the first interface, whose limit says how much of the packet was captured.
    void take_simple_packet(captured_packet &packet, uint32_t sent)
    {
        const uint32_t most = m_interfaces.empty() ? 0 : m_interfaces[0].most_bytes;
        const uint32_t captured = most == 0 ? sent : std::min(sent, most);
        claim(captured);
        take_content(packet, 0, captured, sent);
    }

    // Takes bytes out of the block.
    void claim(uint32_t size)
    {
        if (size > m_left)
            throw broken_capture(fmt::format("a block has {} bytes where {} are claimed", m_left, size));
        m_left -= size;
    }

    void take_of_block(uint32_t size)
    {
        claim(size);
        take(size);
    }

    void skip_rest()
    {
        std::array<uint8_t, 4096> skipped{};
        while (m_left != 0) {
            const std::span<uint8_t> part = std::span(skipped).first(std::min<size_t>(m_left, skipped.size()));
            fill(part);
            m_left -= static_cast<uint32_t>(part.size());
        }
    }

    void refuse_unknown_links() const
    {
        if (std::ranges::any_of(m_interfaces, is_known_link, [](const interface &each) { return each.link_type; }))
            return;
        throw bad_use(
            fmt::format("{}: packets of link type {} are not read; capture Ethernet, IP or all devices of Linux",
                m_stream.name(), m_interfaces[0].link_type));
    }

    input_stream &m_stream;
    capture_form m_form{};
    std::array<uint8_t, pcap_header_bytes> m_header{}; // of the file, a packet, or the fields that begin a block
    uint32_t m_left = 0;                               // of the block
    std::vector<interface> m_interfaces;               // of the section; pcap has one
    byte_vector m_content;                             // of the packet
    uint64_t m_number = 0;                             // of the packet
};

capture_file::capture_file(input_stream &stream, capture_choice choice, std::function<void(const std::string &)> note)
    : m_messages(std::move(choice), std::move(note))
{
    try {
        m_packets = std::make_unique<packet_reader>(stream);
    } catch (const broken_capture &problem) {
        throw bad_use(fmt::format("{}: no capture: {}; name the format with --format", stream.name(), problem.what()));
    }
}

capture_file::~capture_file() = default;

bool capture_file::add_packet(std::string &problem)
{
    captured_packet packet;
    try {
        if (!m_packets->next(packet))
            return false;
    } catch (const broken_capture &broken) {
        problem = fmt::format(
            "packet {}: {}; nothing from there on is read", m_packets->number_of_packet() + 1, broken.what());
        return false;
    }
    m_messages.add(packet);
    return true;
}

bool capture_file::next(captured_message &message)
{
    while (!m_messages.take(message)) {
        if (m_is_finished)
            return false;
        std::string problem;
        m_is_finished = !add_packet(problem);
        if (m_is_finished)
            m_messages.finish(problem);
    }
    return true;
}

} // namespace mava_tum_cli
