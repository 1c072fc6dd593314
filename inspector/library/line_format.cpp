// A line of an explanation as text: offset, bytes, words.
#include "inspector/library/text_builder.h"
#include "mava_tum_inspect.h"

#include <algorithm>
#include <cstring>

namespace
{

using mava_tum_inspect::text_builder;

constexpr std::size_t offset_columns = 8;
constexpr std::size_t byte_columns = 3; // two digits and a space
constexpr std::size_t longest_line = 512;

using line_text = text_builder<longest_line>;

void add_spaces(line_text &text, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        text.add(" ");
}

// Right-aligned. A line without bytes has no offset.
void add_offset(line_text &text, const mava_tum_inspect_line &line)
{
    line_text digits;
    if (line.byte_count != 0)
        digits.add_number(line.offset);
    const std::size_t width = digits.view().size();
    add_spaces(text, width < offset_columns ? offset_columns - width : 0);
    text.add(digits.view());
}

void add_bytes(line_text &text, const mava_tum_inspect_line &line, const uint8_t *data)
{
    for (uint32_t i = 0; i < line.byte_count; ++i)
        text.add(" ").add_hex(data[line.offset + i]);
}

const char *prefix_of(int32_t kind)
{
    switch (kind) {
    case MAVA_TUM_INSPECT_LINE_LENGTH:
    case MAVA_TUM_INSPECT_LINE_VALUE:
        return "  ";
    case MAVA_TUM_INSPECT_LINE_NOTE:
        return "  note: ";
    case MAVA_TUM_INSPECT_LINE_FAULT:
        return "fault: ";
    default:
        return "";
    }
}

} // namespace

extern "C" uint32_t mava_tum_inspect_format_line(
    const mava_tum_inspect_line *line, const uint8_t *data, char *buffer, uint32_t capacity)
{
    if (line == nullptr || (data == nullptr && line->byte_count != 0) || (buffer == nullptr && capacity != 0))
        return 0;
    line_text text;
    add_offset(text, *line);
    text.add(" ");
    add_bytes(text, *line, data);
    if (line->text[0] != '\0') {
        add_spaces(text, byte_columns * (MAVA_TUM_INSPECT_ROW_BYTES - line->byte_count) + 2 + 2 * line->depth);
        text.add(prefix_of(line->kind)).add(line->text);
    }
    if (capacity != 0) {
        const std::size_t kept = std::min<std::size_t>(text.view().size(), capacity - 1);
        std::memcpy(buffer, text.c_str(), kept);
        buffer[kept] = '\0';
    }
    return static_cast<uint32_t>(text.view().size());
}
