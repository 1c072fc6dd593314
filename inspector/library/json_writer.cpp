#include "inspector/library/json_writer.h"

#include "inspector/library/utf8_text.h"

namespace mava_tum_inspect
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

// Counts the leading characters that need no escape in JSON and on a terminal: printable ASCII without " and \\.
size_t plain_characters(std::string_view text)
{
    size_t count = 0;
    while (count < text.size() && !is_escaped(text[count]) && static_cast<unsigned char>(text[count]) < 0x7F)
        ++count;
    return count;
}

// Writes a character that is no ASCII, or one that does not stand as it is. Returns its bytes.
size_t write_other(text_output &output, std::string_view text, size_t position)
{
    const direction_control control = direction_control_at(text, position);
    if (control.bytes != 0) {
        write_code(output, control.code);
        return control.bytes;
    }
    if (is_escaped(text[position]))
        write_escaped(output, text[position]);
    else
        output.put(text[position]);
    return 1;
}

} // namespace

void write_json_string(text_output &output, std::string_view text)
{
    output.put('"');
    for (size_t at = 0; at < text.size();) {
        const std::string_view rest(text.data() + at, text.size() - at);
        const size_t plain = plain_characters(rest);
        output.write({rest.data(), plain});
        at += plain;
        if (at < text.size())
            at += write_other(output, text, at);
    }
    output.put('"');
}

void json_writer::open(char opening, char closing, layout chosen)
{
    start_value();
    m_output->put(opening);
    const bool is_inside_line = m_depth == 0 ? m_is_on_one_line : m_open[m_depth - 1].is_on_one_line;
    m_open[m_depth++] = {closing, is_inside_line || chosen == layout::one_line, false};
}

void json_writer::close()
{
    const level closed = m_open[--m_depth];
    if (closed.has_members && !closed.is_on_one_line)
        start_line();
    m_output->put(closed.closing);
}

void json_writer::start_line()
{
    m_output->put('\n');
    m_output->fill(indent_width * m_depth);
}

void json_writer::start_member()
{
    level &around = m_open[m_depth - 1];
    if (around.has_members)
        m_output->put(m_is_in_words ? ' ' : ',');
    around.has_members = true;
    if (!around.is_on_one_line)
        start_line();
}

void json_writer::start_value()
{
    if (!m_is_named && m_depth != 0)
        start_member();
    m_is_named = false;
}

void json_writer::name(std::string_view name)
{
    start_member();
    m_is_named = true;
    if (m_is_in_words) {
        m_output->write(name);
        return m_output->put('=');
    }
    m_output->put('"');
    m_output->write(name);
    m_output->write(m_open[m_depth - 1].is_on_one_line ? "\":" : "\": ");
}

void json_writer::number(uint64_t value)
{
    start_value();
    m_output->write_number(value);
}

void json_writer::signed_number(int64_t value)
{
    start_value();
    const auto magnitude = static_cast<uint64_t>(value);
    if (value < 0)
        m_output->put('-');
    m_output->write_number(value < 0 ? 0 - magnitude : magnitude);
}

void json_writer::truth(bool value)
{
    start_value();
    m_output->write(value ? "true" : "false");
}

void json_writer::string(std::string_view text)
{
    start_value();
    write_json_string(*m_output, text);
}

void json_writer::hex(std::span<const uint8_t> bytes)
{
    start_value();
    const bool is_quoted = !m_is_in_words || bytes.empty();
    if (is_quoted)
        m_output->put('"');
    m_output->write_hex(bytes);
    if (is_quoted)
        m_output->put('"');
}

void json_writer::address(std::string_view text)
{
    if (!m_is_in_words)
        return string(text);
    start_value();
    m_output->write(text);
}

void write_json_text(json_writer &writer, std::string_view text)
{
    if (plain_characters(text) == text.size() || is_plain_utf8(text))
        return writer.string(text);
    writer.open_object();
    writer.name("hex");
    writer.hex({reinterpret_cast<const uint8_t *>(text.data()), text.size()});
    writer.close();
}

} // namespace mava_tum_inspect
