// The files of the module: the host, which is a page or a test, reads and keeps them. They stand in for
// input_stream.cpp and all of output/ but the colours. A capture is refused: libpcap is a library of this machine.
#include "bad_use.h"
#include "capture/capture_file.h"
#include "input/input_stream.h"
#include "module.h"
#include "output/output_file.h"

#include <algorithm>
#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

constexpr size_t block_bytes = 256 * 1024;

} // namespace

// ---- input -------------------------------------------------------------------------------------------------------

input_stream::input_stream(const std::string &path) : m_name(path)
{
    m_fd = host_open_file(path.data(), path.size());
    if (m_fd < 0)
        throw bad_use(fmt::format("{}: there is no such input", path));
}

input_stream::~input_stream() = default;

void input_stream::refill(size_t wanted)
{
    m_buffer.erase(m_buffer.begin(), m_buffer.begin() + static_cast<ptrdiff_t>(m_taken));
    m_taken = 0;
    while (m_buffer.size() < wanted && !m_at_end) {
        const size_t filled = m_buffer.size();
        m_buffer.resize(filled + block_bytes);
        const auto at = static_cast<double>(m_position + filled);
        const uint32_t received = host_read_file(m_fd, at, m_buffer.data() + filled, block_bytes);
        m_buffer.resize(filled + received);
        m_at_end = received == 0;
    }
}

std::span<const uint8_t> input_stream::peek(size_t wanted)
{
    if (m_buffer.size() - m_taken < wanted)
        refill(wanted);
    const std::span<const uint8_t> waiting = std::span<const uint8_t>(m_buffer).subspan(m_taken);
    return waiting.first(std::min(wanted, waiting.size()));
}

byte_vector input_stream::read_some()
{
    byte_vector some(block_bytes);
    some.resize(read(some));
    return some;
}

size_t input_stream::read(std::span<uint8_t> bytes)
{
    size_t total = 0;
    while (total < bytes.size()) {
        const std::span<const uint8_t> waiting = peek(std::min(bytes.size() - total, block_bytes));
        if (waiting.empty())
            break;
        std::ranges::copy(waiting, bytes.begin() + static_cast<ptrdiff_t>(total));
        m_taken += waiting.size();
        total += waiting.size();
        m_position += waiting.size();
    }
    return total;
}

byte_vector input_stream::read_all()
{
    byte_vector all;
    for (byte_vector some = read_some(); !some.empty(); some = read_some()) {
        all.insert(all.end(), some.begin(), some.end());
        if (all.size() > message_limit_bytes)
            throw bad_use(
                fmt::format("{}: more than {} MiB, which is no single message", m_name, message_limit_bytes >> 20));
    }
    return all;
}

struct capture_file::libpcap {
};

capture_file::capture_file(input_stream &stream, capture_choice choice, std::function<void(const std::string &)> note)
    : m_messages(std::move(choice), std::move(note))
{
    throw bad_use(fmt::format(
        "{}: a capture, which this page does not read; `mava-tum decode -f capture --json` prints its messages",
        stream.name()));
}

capture_file::~capture_file() = default;

bool capture_file::next(captured_message &)
{
    return false;
}

// The host knows how far an input is read.
progress_line::progress_line() = default;
progress_line::~progress_line() = default;
void progress_line::allow() {}

// ---- output ------------------------------------------------------------------------------------------------------

output_file::output_file(std::string path) : m_path(std::move(path)), m_fd(-1) {}

output_file::~output_file() = default;

void output_file::hand_on(std::string &waiting)
{
    host_write(host_channel::output, waiting.data(), waiting.size());
    waiting.clear();
}

void output_file::commit()
{
    flush();
}

bool output_file::is_terminal() const
{
    return false;
}

// No output has one here.
pending_file::~pending_file() = default;

void print_error(std::string_view, std::string text)
{
    host_write(host_channel::errors, text.data(), text.size());
}

} // namespace mava_tum_cli
