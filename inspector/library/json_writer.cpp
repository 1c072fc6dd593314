#include "inspector/library/json_writer.h"

#include "inspector/library/utf8_text.h"

namespace mava_tum_cli
{

namespace
{

constexpr size_t indent_width = 2;

void write_code(text_output &output, uint32_t code)
{
    const uint8_t bytes[] = {static_cast<uint8_t>(code >> 8), static_cast<uint8_t>(code)};
    output.write("\\u");
    output.write_hex(bytes);
}

void write_escaped(text_output &output, char character)
{
    constexpr std::string_view short_forms = "\"\"\\\\\bb\ff\nn\rr\tt"; // each character with its letter
    for (size_t i = 0; i < short_forms.size(); i += 2) {
        if (short_forms[i] != character)
            continue;
        output.put('\\');
        output.put(short_forms[i + 1]);
        return;
    }
    write_code(output, static_cast<unsigned char>(character));
}

bool is_escaped(char character)
{
    return static_cast<unsigned char>(character) < ' ' || character == '"' || character == '\\';
}

// Writes what cannot stand at `position` as it is. Returns how many bytes that were; 0: it can.
size_t write_if_escaped(text_output &output, std::string_view text, size_t position, std::string_view before)
{
    const direction_control control = direction_control_at(text, position);
    if (!is_escaped(text[position]) && control.bytes == 0)
        return 0;
    output.write(before);
    if (control.bytes == 0) {
        write_escaped(output, text[position]);
        return 1;
    }
    write_code(output, control.code);
    return control.bytes;
}

} // namespace

void write_json_string(text_output &output, std::string_view text)
{
    output.put('"');
    size_t written = 0;
    for (size_t at = 0; at < text.size();) {
        const size_t escaped = write_if_escaped(output, text, at, text.substr(written, at - written));
        at += escaped == 0 ? 1 : escaped;
        if (escaped != 0)
            written = at;
    }
    output.write(text.substr(written));
    output.put('"');
}

void json_writer::open(char opening, char closing, layout chosen)
{
    start_value();
    m_output.put(opening);
    const layout around = m_open.empty() ? m_whole : m_open.back().is_on_one_line ? layout::one_line : layout::spread;
    m_open.push_back({closing, around == layout::one_line || chosen == layout::one_line});
}

void json_writer::close()
{
    const level closed = m_open.back();
    m_open.pop_back();
    if (closed.has_members && !closed.is_on_one_line)
        start_line();
    m_output.put(closed.closing);
}

void json_writer::start_line()
{
    m_output.put('\n');
    m_output.fill(indent_width * m_open.size());
}

void json_writer::start_member()
{
    level &around = m_open.back();
    if (around.has_members)
        m_output.put(',');
    around.has_members = true;
    if (!around.is_on_one_line)
        start_line();
}

void json_writer::start_value()
{
    if (!m_is_named && !m_open.empty())
        start_member();
    m_is_named = false;
}

void json_writer::name(std::string_view name)
{
    start_member();
    m_output.put('"');
    m_output.write(name);
    m_output.write(m_open.back().is_on_one_line ? "\":" : "\": ");
    m_is_named = true;
}

void json_writer::number(uint64_t value)
{
    start_value();
    m_output.write_number(value);
}

void json_writer::signed_number(int64_t value)
{
    start_value();
    const auto magnitude = static_cast<uint64_t>(value);
    if (value < 0)
        m_output.put('-');
    m_output.write_number(value < 0 ? 0 - magnitude : magnitude);
}

void json_writer::truth(bool value)
{
    start_value();
    m_output.write(value ? "true" : "false");
}

void json_writer::string(std::string_view text)
{
    start_value();
    write_json_string(m_output, text);
}

void json_writer::hex(std::span<const uint8_t> bytes)
{
    start_value();
    m_output.put('"');
    m_output.write_hex(bytes);
    m_output.put('"');
}

void write_json_text(json_writer &writer, std::string_view text)
{
    if (is_plain_utf8(text))
        return writer.string(text);
    writer.open_object();
    writer.name("hex");
    writer.hex({reinterpret_cast<const uint8_t *>(text.data()), text.size()});
    writer.close();
}

} // namespace mava_tum_cli
