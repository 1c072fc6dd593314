#include "input/message_source.h"

#include "bad_use.h"
#include "input/c_text.h"
#include "input/digit_text.h"
#include "input/dump_text.h"
#include "input/frame_reader.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

byte_vector bytes_of_text(std::span<const uint8_t> content, input_format format, const std::string &where)
{
    const std::string_view text(reinterpret_cast<const char *>(content.data()), content.size());
    switch (format) {
    case input_format::hex:
        return bytes_of_hex(content, where);
    case input_format::dump:
        return bytes_of_dump(text, where);
    case input_format::c:
        return bytes_of_c(text, where);
    default:
        return bytes_of_base64(content, where);
    }
}

} // namespace

message_source::message_source(chosen_input input, plausible_fn plausible)
    : m_input(std::move(input)), m_plausible(std::move(plausible))
{
    open(m_input.files.front());
}

void message_source::open(const std::string &path)
{
    m_capture.reset();
    m_stream.emplace(path);
    ++m_opened;
    m_number = 0;
    if (m_output != nullptr)
        read_beside(*m_output);
    m_format = m_input.format;
    if (m_format != input_format::raw && m_stream->peek(1).empty())
        throw bad_use(fmt::format("{}: is empty; if this is an empty message, say -f raw", m_stream->name()));
    if (m_format == input_format::automatic)
        m_format = detect_format(*m_stream, m_plausible);
    if (m_format == input_format::capture)
        m_capture.emplace(*m_stream, m_input.packets,
            [this](const std::string &what) { print_error("", fmt::format("{}: {}", m_stream->name(), what)); });
}

byte_vector message_source::whole_message()
{
    byte_vector content = m_stream->read_all();
    if (m_format == input_format::raw)
        return content;
    byte_vector bytes = bytes_of_text(content, m_format, m_stream->name());
    if (bytes.empty())
        throw bad_use(fmt::format("{}: has no byte in {}; if this is an empty message, give an empty input and -f raw",
            m_stream->name(), name_of(m_format)));
    return bytes;
}

void message_source::read_beside(output_file &output)
{
    m_output = &output;
    m_stream->call_before_waiting([&output] { output.flush(); });
    if (!output.is_terminal())
        m_stream->show_progress();
}

bool message_source::take_frame()
{
    m_begin = m_stream->position();
    if (!read_frame(*m_stream, m_number + 1, m_message))
        return false;
    ++m_number;
    return true;
}

bool message_source::take_captured()
{
    if (!m_capture->next(m_captured))
        return false;
    m_message = std::move(m_captured.bytes);
    ++m_number;
    return true;
}

bool message_source::take_whole()
{
    if (m_number != 0)
        return false;
    m_message = whole_message();
    m_number = 1;
    return m_input.number <= 1;
}

// False: the file has no further message that is wanted.
bool message_source::take_from_file()
{
    if (!is_stream())
        return take_whole();
    if (m_input.number != 0 && m_number == m_input.number)
        return false;
    do {
        if (!(m_capture ? take_captured() : take_frame()))
            return false;
    } while (m_number < m_input.number);
    return true;
}

bool message_source::next()
{
    while (!take_from_file()) {
        if (m_number < m_input.number)
            throw bad_use(fmt::format(
                "{}: has {}; give --message a number up to that", m_stream->name(), counted(m_number, "message")));
        if (m_opened == m_input.files.size())
            return false;
        open(m_input.files[m_opened]);
    }
    ++m_taken;
    return true;
}

message_place message_source::place() const
{
    message_place place;
    if (m_input.files.size() > 1)
        place.file = m_stream->name();
    if (is_stream()) {
        place.number = m_number;
        place.offset = m_begin;
    }
    if (m_capture) {
        place.packet = m_captured.packet;
        place.direction = *m_captured.direction;
    }
    return place;
}

std::string message_source::full_place() const
{
    message_place named = place();
    named.file = m_stream->name();
    return named.to_string();
}

} // namespace mava_tum_cli
