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

// Texts that many records have in common. They are made once and kept, up to a number of them.
class tree_texts
{
public:
    // `has_absent` false: absent fields are left out.
    tree_texts(const colours &colour, bool has_absent) : m_colour(colour), m_has_absent(has_absent) {}

    const colours &colour() const
    {
        return m_colour;
    }

    // The lines that name the fields which are absent from a record with these bits in its mask; `indent` is how many
    // blanks stand before the lines.
    const std::string &absent(const message_description &message, uint32_t present, size_t indent);

    // Number, name and kind of a known field that is no element of an array.
    const std::string &head(const occurrence &at);

private:
    struct absent_lines {
        const message_description *message = nullptr;
        uint32_t present = 0;
        size_t indent = 0;
        std::string text;
    };

    struct field_head {
        const field_description *field = nullptr;
        uint32_t depth = 0;
        std::string text;
    };

    std::string made_absent(const message_description &message, uint32_t present, size_t indent) const;

    const colours &m_colour;
    bool m_has_absent;
    std::array<absent_lines, 256> m_absent;
    std::array<field_head, 256> m_heads;
};

// Returns the fault in words; nothing: the message decodes.
std::optional<std::string> print_tree(
    const message_description &message, wire_bytes wire, tree_texts &texts, text_output &output);

} // namespace mava_tum_cli
