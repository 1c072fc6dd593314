#include "message/field_tree.h"

#include "inspector/library/wire_walk.h"
#include "message/verdict.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

constexpr size_t offset_width = 6;
constexpr size_t name_width = 26;
constexpr size_t kind_width = 18;
constexpr size_t tree_indent_width = 2;
constexpr size_t longest_line = 96; // of absent fields
constexpr std::string_view absent_label = "absent: ";

std::string_view short_kind_of(const occurrence &at)
{
    // One element is one record or one text.
    return !is_array_element(at.path) ? kind_of(at) : at.field->nested != nullptr ? "record" : "text";
}

void print_name(const occurrence &at, size_t width, const colours &colour, text_output &output)
{
    const std::string_view name = at.field == nullptr ? "(unknown)" : at.field->name;
    output.write(colour.start(ink::name));
    size_t written = output.write_number(at.path.number) + 1 + name.size();
    output.put(' ');
    output.write(name);
    if (is_array_element(at.path)) {
        output.put('[');
        written += output.write_number(at.path.index) + 2;
        output.put(']');
    }
    output.fill(written < width ? width - written : 0);
    output.write(colour.end(ink::name));
}

// All between the offset and the value.
void print_head(const occurrence &at, const colours &colour, text_output &output)
{
    const size_t indent = tree_indent_width * at.depth;
    output.fill(2 + indent);
    print_name(at, name_width - std::min(indent, name_width), colour, output);
    output.put(' ');
    output.write_padded(short_kind_of(at), kind_width);
}

// Of 256 places.
size_t place_of(const void *of, uint64_t more)
{
    return ((reinterpret_cast<uintptr_t>(of) >> 4) + more) * 0x9E3779B97F4A7C15 >> 56;
}

class tree_visitor final : public wire_visitor
{
public:
    tree_visitor(wire_bytes wire, tree_texts &texts, text_output &output)
        : m_wire(wire), m_texts(texts), m_colour(texts.colour()), m_output(output)
    {
    }

    void on_value(const occurrence &at) override
    {
        print_place(at);
        m_output.write(m_colour.start(ink::value));
        write_value(m_output, at, m_wire);
        m_output.write(m_colour.end(ink::value));
        end_line(at);
    }

    void on_unknown(const occurrence &at) override
    {
        on_value(at);
    }

    void on_record(const occurrence &at) override
    {
        print_place(at);
        print_size(at.value.bytes);
        end_line(at);
    }

    void on_record_end(const occurrence &at, uint32_t present) override
    {
        print_absent(*at.field->nested, present, at.depth + 1);
    }

    void on_undecoded(const occurrence &at) override
    {
        print_place(at);
        m_output.write(m_colour.start(ink::faint));
        print_size(at.value.bytes);
        m_output.write(", not decoded");
        m_output.write(m_colour.end(ink::faint));
        end_line(at);
    }

    void on_fault(const wire_fault &met) override
    {
        fault = fault_in_words(met);
        m_output.write(m_colour.start(ink::fault));
        m_output.write_right_aligned(met.offset, offset_width);
        m_output.write("  fault: ");
        m_output.write(*fault);
        m_output.write(m_colour.end(ink::fault));
        m_output.put('\n');
    }

    void on_unread(const extent &rest) override
    {
        m_output.write_right_aligned(rest.offset, offset_width);
        m_output.write("  " + counted(rest.bytes, "byte") + " not read\n");
    }

    void print_absent(const message_description &message, uint32_t present, size_t depth)
    {
        m_output.write(m_texts.absent(message, present, offset_width + 2 + tree_indent_width * depth));
    }

    std::optional<std::string> fault;

private:
    // All but the value.
    void print_place(const occurrence &at)
    {
        m_output.write(m_colour.start(ink::faint));
        m_output.write_right_aligned(at.tag.offset, offset_width);
        m_output.write(m_colour.end(ink::faint));
        if (at.field == nullptr || is_array_element(at.path))
            print_head(at, m_colour, m_output);
        else
            m_output.write(m_texts.head(at));
    }

    void print_size(uint64_t bytes)
    {
        m_output.write_number(bytes);
        m_output.write(bytes == 1 ? " byte" : " bytes");
    }

    void end_line(const occurrence &at)
    {
        if (at.notes.bits != 0) {
            for (const std::string &note : notes_in_words(at, m_wire))
                m_output.write(m_colour.paint(ink::faint, "  [" + note + "]"));
        }
        m_output.put('\n');
    }

    wire_bytes m_wire;
    tree_texts &m_texts;
    const colours &m_colour;
    text_output &m_output;
};

} // namespace

const std::string &tree_texts::absent(const message_description &message, uint32_t present, size_t indent)
{
    absent_lines &kept = m_absent[place_of(&message, present + indent)];
    if (kept.message != &message || kept.present != present || kept.indent != indent)
        kept = {&message, present, indent, m_has_absent ? made_absent(message, present, indent) : ""};
    return kept.text;
}

const std::string &tree_texts::head(const occurrence &at)
{
    field_head &kept = m_heads[place_of(at.field, at.depth)];
    if (kept.field != at.field || kept.depth != at.depth) {
        text_in_memory text;
        print_head(at, m_colour, text);
        kept = {at.field, at.depth, text.take()};
    }
    return kept.text;
}

// In lines of a bearable length.
std::string tree_texts::made_absent(const message_description &message, uint32_t present, size_t indent) const
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
            line = std::string(absent_label.size(), ' ') + name;
        } else {
            line += (line.empty() ? std::string(absent_label) : ", ") + name;
        }
    }
    if (!line.empty())
        end_line("");
    return text;
}

std::optional<std::string> print_tree(
    const message_description &message, wire_bytes wire, tree_texts &texts, text_output &output)
{
    tree_visitor visitor(wire, texts, output);
    const walk_result result = walk_message(message, wire.data(), wire.size(), visitor);
    visitor.print_absent(message, result.present, 0);
    return visitor.fault;
}

} // namespace mava_tum_cli
