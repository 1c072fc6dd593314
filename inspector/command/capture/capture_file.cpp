#include "capture/capture_file.h"

#include "bad_use.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <exception>
#include <fmt/format.h>
#include <pcap/pcap.h>

namespace mava_tum_cli
{

struct capture_file::libpcap {
    // libpcap reads a FILE; this one reads the stream. Exceptions do not pass through C: they wait in `failure`.
    struct stream_cookie {
        input_stream &stream;
        byte_vector waiting; // read and not yet taken: from `taken` on
        size_t taken = 0;
        std::exception_ptr failure;
    };

    static ssize_t read_cookie(void *cookie, char *buffer, size_t size)
    {
        auto &source = *static_cast<stream_cookie *>(cookie);
        try {
            if (source.taken == source.waiting.size()) {
                source.waiting = source.stream.read_some();
                source.taken = 0;
            }
        } catch (...) {
            source.failure = std::current_exception();
            return -1;
        }
        const size_t given = std::min(size, source.waiting.size() - source.taken);
        if (given != 0)
            std::memcpy(buffer, source.waiting.data() + source.taken, given);
        source.taken += given;
        return static_cast<ssize_t>(given);
    }

    explicit libpcap(input_stream &stream) : cookie{stream, {}, 0, nullptr}
    {
        char reason[PCAP_ERRBUF_SIZE] = "";
        std::FILE *file = fopencookie(&cookie, "rb", {read_cookie, nullptr, nullptr, nullptr});
        if (file == nullptr)
            throw std::bad_alloc();
        handle = pcap_fopen_offline(file, reason);
        if (handle != nullptr)
            return;
        std::fclose(file);
        rethrow();
        throw bad_use(fmt::format("{}: no capture: {}; name the format with --format", cookie.stream.name(), reason));
    }

    ~libpcap()
    {
        if (handle != nullptr)
            pcap_close(handle); // and the file
    }

    libpcap(const libpcap &) = delete;
    libpcap &operator=(const libpcap &) = delete;

    // Of the stream.
    void rethrow() const
    {
        if (cookie.failure)
            std::rethrow_exception(cookie.failure);
    }

    // False at the end, and where the capture is broken: then there is a `problem`.
    bool read_packet(capture_messages &messages)
    {
        pcap_pkthdr *header = nullptr;
        const u_char *content = nullptr;
        const int result = pcap_next_ex(handle, &header, &content);
        if (result != 1) {
            rethrow();
            if (result == PCAP_ERROR)
                problem = fmt::format("packet {}: {}; nothing from there on is read", number + 1, pcap_geterr(handle));
            return false;
        }
        const size_t captured = header->caplen;
        const size_t missing = header->len > captured ? header->len - captured : 0;
        messages.add({++number, pcap_datalink(handle), {content, captured}, missing});
        return true;
    }

    stream_cookie cookie;
    pcap_t *handle = nullptr;
    uint64_t number = 0; // of the last packet
    std::string problem;
};

capture_file::capture_file(input_stream &stream, capture_choice choice, std::function<void(const std::string &)> note)
    : m_libpcap(std::make_unique<libpcap>(stream)), m_messages(std::move(choice), std::move(note))
{
    const int link_type = pcap_datalink(m_libpcap->handle);
    if (is_known_link(link_type))
        return;
    const char *name = pcap_datalink_val_to_name(link_type);
    throw bad_use(
        fmt::format("{}: packets of link type {}{}{} are not read; capture Ethernet, IP or all devices of Linux",
            stream.name(), link_type, name != nullptr ? ", " : "", name != nullptr ? name : ""));
}

capture_file::~capture_file() = default;

bool capture_file::next(captured_message &message)
{
    while (!m_messages.take(message)) {
        if (m_is_finished)
            return false;
        if (m_libpcap->read_packet(m_messages))
            continue;
        m_messages.finish(m_libpcap->problem);
        m_is_finished = true;
    }
    return true;
}

} // namespace mava_tum_cli
