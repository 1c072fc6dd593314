#include "sender.h"

#include "frame_stream.h"
#include "session_record.h"
#include "stopwatch.h"

#include "mava_tum/cpp/adapters.hpp"

#include <unistd.h>

namespace examples::session_setup
{

namespace
{

std::string place_of(const std::string &path, const subscriber &who)
{
    return path + ":" + std::to_string(who.file_line) + ": line id " + who.line + ": ";
}

void send_frame(const std::string &path, const subscriber &who, int fd, std::span<const uint8_t> message)
{
    try {
        write_frame(fd, message);
    } catch (const stream_error &error) {
        throw stream_error(
            place_of(path, who) + "not sent: " + error.what() +
            "; this session and those after it are lost. See what the receiver says, and send all again");
    }
}

} // namespace

std::string send_sessions(const std::string &path, const std::vector<subscriber> &subscribers, int fd)
{
    std::vector<uint8_t> buffer(frame_limit_bytes);
    tum_nal_data_session_context record;
    stopwatch encoding;
    size_t total_bytes = 0;
    for (const subscriber &who : subscribers) {
        fill_session_record(record, who);
        const auto [size, complete] = encoding.measure([&] { return mava_tum::cpp::encode(record, buffer); });
        if (!complete)
            throw stream_error(place_of(path, who) + "needs " + std::to_string(size) +
                               " bytes, more than a frame may "
                               "have; shorten its texts");
        send_frame(path, who, fd, std::span(buffer).first(static_cast<size_t>(size)));
        total_bytes += static_cast<size_t>(size);
    }
    return "sender (process " + std::to_string(getpid()) +
           "): " + encoding.report(subscribers.size(), total_bytes, "encoded");
}

} // namespace examples::session_setup
