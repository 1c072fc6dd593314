#include "input/message_source.h"

#include "bad_use.h"
#include "input/base64_text.h"
#include "input/frame_reader.h"
#include "input/hex_text.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

message_source::message_source(const std::string &path, input_format format, const plausible_fn &plausible)
    : m_stream(path), m_format(format)
{
    if (m_stream.peek(1).empty())
        throw bad_use(fmt::format("{}: is empty; an empty message can be given as a frame of length 0: "
                                  "printf '\\0\\0\\0\\0'",
            m_stream.name()));
    if (m_format == input_format::automatic)
        m_format = detect_format(m_stream, plausible);
}

byte_vector message_source::whole_message()
{
    byte_vector content = m_stream.read_all();
    if (m_format == input_format::raw)
        return content;
    byte_vector bytes = m_format == input_format::hex ? bytes_of_hex(content, m_stream.name())
                                                      : bytes_of_base64(content, m_stream.name());
    if (bytes.empty())
        throw bad_use(fmt::format("{}: has no {} digit; an empty message can be given as a frame of length 0: "
                                  "printf '\\0\\0\\0\\0'",
            m_stream.name(), name_of(m_format)));
    return bytes;
}

void message_source::show_progress_beside(const output_file &output)
{
    if (!output.is_terminal())
        m_stream.show_progress();
}

bool message_source::next()
{
    m_begin = m_stream.position();
    if (has_frames()) {
        if (!read_frame(m_stream, m_number + 1, m_message))
            return false;
    } else {
        if (m_number != 0)
            return false;
        m_message = whole_message();
    }
    ++m_number;
    return true;
}

std::string message_source::place() const
{
    return has_frames() ? fmt::format("{}: frame {} at byte {}", m_stream.name(), m_number, m_begin) : m_stream.name();
}

byte_vector read_single_message(const std::string &path, input_format format, const plausible_fn &plausible)
{
    message_source source(path, format, plausible);
    source.next();
    const std::span<const uint8_t> message = source.message();
    byte_vector single(message.begin(), message.end());
    if (source.next())
        throw bad_use(fmt::format("{}: a second message, where one is expected; split the file", source.place()));
    return single;
}

} // namespace mava_tum_cli
