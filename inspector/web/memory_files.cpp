// Input and output of the module, which the host (a page or a test) reads and stores. This file replaces
// input_file.cpp, bad_use.cpp and output/ except the colours.
#include "bad_use.h"
#include "input/input_stream.h"
#include "module.h"
#include "output/output_file.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

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

// The host knows how far an input is read.
progress_line::progress_line() = default;
progress_line::~progress_line() = default;
void progress_line::allow() {}

// ---- output ------------------------------------------------------------------------------------------------------

output_file::output_file(std::string path) : text_output(m_buffer, sizeof m_buffer), m_path(std::move(path)), m_fd(-1)
{
}

output_file::~output_file() = default;

void output_file::make_room()
{
    host_write(host_channel::output, written().data(), written().size());
    use(m_buffer, sizeof m_buffer);
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
