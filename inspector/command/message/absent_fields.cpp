#include "message/absent_fields.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

using mava_tum_inspect::field_description;
using mava_tum_inspect::message_description;

namespace
{

constexpr size_t longest_line = 96;
constexpr std::string_view label = "absent: ";

} // namespace

const std::string &absent_fields::lines(const message_description &message, uint32_t present, size_t indent)
{
    const uint64_t mixed = (present + (reinterpret_cast<uintptr_t>(&message) >> 4) + indent) * 0x9E3779B97F4A7C15;
    kept_lines &kept = m_kept[mixed >> 56];
    if (kept.message != &message || kept.present != present || kept.indent != indent)
        kept = {&message, present, indent, made(message, present, indent)};
    return kept.text;
}

// In lines of a bearable length.
std::string absent_fields::made(const message_description &message, uint32_t present, size_t indent) const
{
    std::string text;
    std::string line;
    const auto end_line = [&](std::string_view last) {
        text.append(indent, ' ').append(m_colour.paint(ink::faint, line.append(last))).append("\n");
    };
    for (const field_description &field : message.fields) {
        if ((present >> (field.number - 1) & 1) != 0)
            continue;
        const std::string name = fmt::format("{} {}", field.number, field.name);
        if (!line.empty() && indent + line.size() + name.size() > longest_line) {
            end_line(",");
            line = std::string(label.size(), ' ') + name;
        } else {
            line += (line.empty() ? std::string(label) : ", ") + name;
        }
    }
    if (!line.empty())
        end_line("");
    return text;
}

} // namespace mava_tum_cli
