#include "receiver.h"

#include "frame_stream.h"
#include "readable.h"
#include "session_compare.h"
#include "session_table.h"
#include "stopwatch.h"
#include "wire_annotation.h"

#include "mava_tum/cpp/adapters.hpp"

#include <iostream>
#include <unistd.h>
#include <utility>

namespace examples::session_setup
{

namespace
{

constexpr size_t table_rows = 10;
constexpr size_t printed_mismatches = 20;

class receiver
{
public:
    explicit receiver(std::string path) : m_path(std::move(path)) {}

    void receive(const subscriber &who, std::span<const uint8_t> message)
    {
        m_decoding.measure([&] { mava_tum::cpp::decode(message, m_session); });
        if (m_sessions < table_rows)
            m_table.add(m_session, message.size());
        if (m_sessions == 0)
            m_first_message.assign(message.begin(), message.end());
        compare(who);
        m_bytes += message.size();
        ++m_sessions;
    }

    void print_report() const
    {
        std::cout << "The first received sessions:\n\n" << m_table.text();
        std::cout << "\nThe wire bytes of the first one (what is indented lies inside the record above it):\n\n"
                  << annotate_wire(m_first_message);
        std::cout << "\nreceiver (process " << getpid() << "): " << m_decoding.report(m_sessions, m_bytes, "decoded");
        std::cout << "\nmismatches: " << readable_count(m_differing) << " sessions, " << readable_count(m_mismatches)
                  << " values\n";
    }

    size_t sessions() const
    {
        return m_sessions;
    }

    size_t differing() const
    {
        return m_differing;
    }

private:
    void compare(const subscriber &who)
    {
        const std::vector<mismatch> mismatches = compare_session(who, m_session);
        m_differing += mismatches.empty() ? size_t{0} : size_t{1};
        for (const mismatch &each : mismatches) {
            if (m_mismatches++ < printed_mismatches)
                std::cerr << m_path << ":" << who.file_line << ": line id " << who.line << ": " << each.member
                          << ": the file says " << each.wanted << ", received " << each.received << "\n";
        }
    }

    std::string m_path;
    tum_nal_data_session_context m_session{};
    stopwatch m_decoding;
    session_table m_table;
    std::vector<uint8_t> m_first_message;
    size_t m_sessions = 0, m_bytes = 0, m_differing = 0, m_mismatches = 0;
};

[[noreturn]] void refuse_missing(const std::string &path, const subscriber &who, const std::string &problem)
{
    throw stream_error(path + ":" + std::to_string(who.file_line) + ": line id " + who.line +
                       ": not received: " + problem +
                       "; this session and those after it are lost. See what the sender says, and send all again");
}

void receive_next(receiver &to, const std::string &path, const subscriber &who, frame_reader &from)
{
    std::span<const uint8_t> message;
    bool has_frame = false;
    try {
        has_frame = from.next(message);
    } catch (const stream_error &error) {
        refuse_missing(path, who, error.what());
    }
    if (!has_frame)
        refuse_missing(path, who, "the stream ends after " + std::to_string(to.sessions()) + " sessions");
    to.receive(who, message);
}

} // namespace

size_t receive_sessions(const std::string &path, const std::vector<subscriber> &subscribers, int fd)
{
    receiver to(path);
    frame_reader from(fd);
    for (const subscriber &who : subscribers)
        receive_next(to, path, who, from);
    if (std::span<const uint8_t> message; from.next(message))
        throw stream_error("received more sessions than the " + std::to_string(subscribers.size()) + " of " + path +
                           "; give sender and receiver the same file");
    to.print_report();
    return to.differing();
}

} // namespace examples::session_setup
