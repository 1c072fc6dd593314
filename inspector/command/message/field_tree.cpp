#include "message/field_tree.h"

#include "inspector/library/wire_walk.h"
#include "message/verdict.h"
#include "words.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

using mava_tum_inspect::extent;
using mava_tum_inspect::field_description;
using mava_tum_inspect::message_description;
using mava_tum_inspect::occurrence;
using mava_tum_inspect::wire_fault;

constexpr size_t offset_width = 6;
constexpr size_t name_width = 26;
constexpr size_t kind_width = 18;
constexpr size_t indent_width = 2;
constexpr size_t longest_line = 96;
constexpr std::string_view absent_label = "absent: ";

class tree_visitor : public mava_tum_inspect::wire_visitor
{
public:
    tree_visitor(wire_bytes wire, const colours &colour, output_file &output)
        : m_wire(wire), m_colour(colour), m_output(output)
    {
    }

    void on_value(const occurrence &at) override
    {
        print_field(at, ink::value, text_of_value(at, m_wire));
    }

    void on_unknown(const occurrence &at) override
    {
        print_field(at, ink::value, text_of_value(at, m_wire));
    }

    void on_record(const occurrence &at) override
    {
        print_field(at, ink::plain, counted(at.value.bytes, "byte"));
    }

    void on_record_end(const occurrence &at, uint32_t present) override
    {
        print_absent(*at.field->nested, present, at.depth + 1);
    }

    void on_undecoded(const occurrence &at) override
    {
        print_field(at, ink::faint, counted(at.value.bytes, "byte") + ", not decoded");
    }

    void on_fault(const wire_fault &fault) override
    {
        m_output.write(m_colour.paint(ink::fault,
                           fmt::format("{:>{}}  fault: {}", fault.offset, offset_width, fault_in_words(fault))) +
                       "\n");
    }

    void on_unread(const extent &rest) override
    {
        m_output.write(fmt::format("{:>{}}  {} not read\n", rest.offset, offset_width, counted(rest.bytes, "byte")));
    }

    // In lines of a bearable length.
    void print_absent(const message_description &message, uint32_t present, size_t depth)
    {
        const std::string indent(offset_width + 2 + indent_width * depth, ' ');
        std::string line;
        for (const field_description &field : message.fields) {
            if ((present >> (field.number - 1) & 1) != 0)
                continue;
            const std::string name = fmt::format("{} {}", field.number, field.name);
            if (!line.empty() && indent.size() + line.size() + name.size() > longest_line) {
                print_faint(indent, line + ",");
                line = std::string(absent_label.size(), ' ') + name;
            } else {
                line += (line.empty() ? std::string(absent_label) : ", ") + name;
            }
        }
        if (!line.empty())
            print_faint(indent, line);
    }

private:
    void print_faint(const std::string &indent, const std::string &text)
    {
        m_output.write(indent + m_colour.paint(ink::faint, text) + "\n");
    }

    static std::string name_of(const occurrence &at)
    {
        if (at.field == nullptr)
            return fmt::format("{} (unknown)", at.path.number);
        if (is_array_element(at.path))
            return fmt::format("{} {}[{}]", at.path.number, at.field->name, at.path.index);
        return fmt::format("{} {}", at.path.number, at.field->name);
    }

    static std::string short_kind_of(const occurrence &at)
    {
        // One element is one record or one text.
        return !is_array_element(at.path) ? kind_of(at) : at.field->nested != nullptr ? "record" : "text";
    }

    void print_field(const occurrence &at, ink value_ink, const std::string &value)
    {
        const size_t indent = indent_width * at.depth;
        const std::string name = fmt::format("{:<{}}", name_of(at), name_width - std::min(indent, name_width));
        std::string line = m_colour.paint(ink::faint, fmt::format("{:>{}}", at.tag.offset, offset_width)) + "  " +
                           std::string(indent, ' ') + m_colour.paint(ink::name, name) + " " +
                           fmt::format("{:<{}}", short_kind_of(at), kind_width) + m_colour.paint(value_ink, value);
        for (const std::string &note : notes_in_words(at, m_wire))
            line += m_colour.paint(ink::faint, "  [" + note + "]");
        m_output.write(line + "\n");
    }

    wire_bytes m_wire;
    const colours &m_colour;
    output_file &m_output;
};

} // namespace

void print_tree(const message_description &message, wire_bytes wire, const colours &colour, output_file &output)
{
    tree_visitor visitor(wire, colour, output);
    const mava_tum_inspect::walk_result result =
        mava_tum_inspect::walk_message(message, wire.data(), wire.size(), visitor);
    visitor.print_absent(message, result.present, 0);
}

} // namespace mava_tum_cli
