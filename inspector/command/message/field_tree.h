// A message as a tree of lines: where each field begins, its number and name, its kind, its value.
#pragma once

#include "inspector/library/field_value.h"
#include "inspector/library/message_table.h"
#include "output/colours.h"
#include "output/output_file.h"

#include <array>
#include <optional>
#include <string>

namespace mava_tum_cli
{

// The lines that name the fields which are absent from a record. Records of one kind often lack the same fields: the
// lines are made once and kept, up to a number of them.
class absent_fields
{
public:
    explicit absent_fields(const colours &colour) : m_colour(colour) {}

    // Of a record with these bits in its mask; `indent` is how many blanks stand before the lines.
    const std::string &lines(const mava_tum_inspect::message_description &message, uint32_t present, size_t indent);

private:
    struct kept_lines {
        const mava_tum_inspect::message_description *message = nullptr;
        uint32_t present = 0;
        size_t indent = 0;
        std::string text;
    };

    std::string made(const mava_tum_inspect::message_description &message, uint32_t present, size_t indent) const;

    const colours &m_colour;
    std::array<kept_lines, 256> m_kept;
};

// `absent` null: absent fields are left out. Returns the fault in words; nothing: the message decodes.
std::optional<std::string> print_tree(const mava_tum_inspect::message_description &message, wire_bytes wire,
    absent_fields *absent, const colours &colour, text_output &output);

} // namespace mava_tum_cli
