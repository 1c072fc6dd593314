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

size_t input_stream::read_block(uint64_t offset, std::span<uint8_t> block)
{
    return host_read_file(m_fd, static_cast<double>(offset), block.data(), block.size());
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
