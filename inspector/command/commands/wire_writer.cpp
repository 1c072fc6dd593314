#include "commands/wire_writer.h"

#include "input/digit_text.h"
#include "input/frame_reader.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

wire_writer::wire_writer(const command_options &options) : m_output(options.output), m_format(options.written_as) {}

void wire_writer::write_frame(std::span<const uint8_t> wire)
{
    if (wire.size() > frame_limit_bytes)
        throw bad_use(fmt::format(
            "the message has {} bytes, and a frame at most {}; give another --to", wire.size(), frame_limit_bytes));
    m_output.write(frame_header_of(static_cast<uint32_t>(wire.size())));
    m_output.write(wire);
}

void wire_writer::write(std::span<const uint8_t> wire)
{
    if (m_has_message && !has_frames())
        throw bad_use("a second message, and only frames hold several; give --to frames");
    m_has_message = true;
    const bool is_text = m_format == input_format::hex || m_format == input_format::base64;
    if (!is_text && m_output.is_terminal())
        throw bad_use("raw bytes would go to the terminal; name a file with -o, or give --to hex");
    if (m_format == input_format::hex)
        m_output.write(hex_of_bytes(wire) + "\n");
    else if (m_format == input_format::base64)
        m_output.write(base64_of_bytes(wire) + "\n");
    else if (m_format == input_format::frames)
        write_frame(wire);
    else
        m_output.write(wire);
}

void wire_writer::commit()
{
    m_output.commit();
}

} // namespace mava_tum_cli
