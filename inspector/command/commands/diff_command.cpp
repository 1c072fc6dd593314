#include "bad_use.h"
#include "commands/all_commands.h"
#include "commands/decode_verdict.h"
#include "commands/find_by_name.h"
#include "inspector/library/compare.h"
#include "message/verdict.h"
#include "output/output_file.h"

#include <algorithm>

namespace mava_tum_cli
{

namespace
{

struct field_difference {
    std::string path;
    std::optional<std::string> first; // the value, as people read it; nothing: only the second message has the field
    std::optional<std::string> second;
};

class difference_list final : public difference_visitor
{
public:
    difference_list(wire_bytes first, wire_bytes second) : m_first(first), m_second(second) {}

    void on_difference(const occurrence *first, const occurrence *second) override
    {
        path_text path;
        append_path(path, first != nullptr ? &first->path : &second->path);
        found.push_back({std::string(path.view()), text_of(first, m_first), text_of(second, m_second)});
    }

    std::vector<field_difference> found;

private:
    static std::optional<std::string> text_of(const occurrence *at, wire_bytes wire)
    {
        if (at == nullptr)
            return std::nullopt;
        return at->field != nullptr && at->field->nested != nullptr ? "a record" : text_of_value(*at, wire);
    }

    wire_bytes m_first;
    wire_bytes m_second;
};

std::vector<field_difference> differences_of(const message_description &message, wire_bytes first, wire_bytes second)
{
    difference_list list(first, second);
    compare_messages(message, first, second, list);
    return std::move(list.found);
}

// Two messages with the same number.
struct message_pair {
    const message_source &first;
    const message_source &second;

    bool has_same_bytes() const
    {
        return std::ranges::equal(first.message(), second.message());
    }

    // Of the one that does not decode, with "A" or "B" in front of it; empty: both do.
    std::string fault(const message_description &message) const
    {
        for (const bool is_first : {true, false}) {
            const std::optional<std::string> fault = fault_of(message, (is_first ? first : second).message());
            if (fault)
                return fmt::format("{} does not decode: {}", is_first ? "A" : "B", *fault);
        }
        return "";
    }
};

// ---- what is written about a pair --------------------------------------------------------------------------------

class pair_writer
{
public:
    pair_writer(const command_options &options, output_file &output)
        : m_as_json(options.as_json), m_colour(options.colour, output.is_terminal()), m_output(output)
    {
    }

    void write(const message_pair &pair, const std::vector<field_difference> &differences)
    {
        if (m_as_json)
            return write_json(pair, differences);
        write_heading(pair);
        for (const field_difference &each : differences) {
            const std::string path = m_colour.paint(ink::name, each.path);
            if (each.first && each.second)
                m_output.write(fmt::format("{}: {} -> {}\n", path, *each.first, *each.second));
            else
                m_output.write(fmt::format(
                    "only in {}: {}: {}\n", each.first ? "A" : "B", path, each.first ? *each.first : *each.second));
        }
    }

    void write_broken(const message_pair &pair, const std::string &fault)
    {
        if (m_as_json) {
            json_writer writer = open(pair);
            writer.name("fault");
            writer.string(fault);
            return close(writer);
        }
        if (!is_one_of_several(pair))
            return; // the line on standard error says it
        write_heading(pair);
        m_output.write(fault + "\n");
    }

private:
    void write_heading(const message_pair &pair)
    {
        const message_place first = pair.first.place();
        const message_place second = pair.second.place();
        if (is_one_of_several(pair))
            m_output.write(fmt::format("message {}, at {} of A and {} of B:\n", std::max(first.number, second.number),
                place_in_file(first), place_in_file(second)));
    }

    static void write_place(json_writer &writer, std::string_view side, const message_place &place)
    {
        const bool is_packet = place.packet != 0;
        write_number(writer, fmt::format("{}_{}", is_packet ? "packet" : "offset", side),
            is_packet ? place.packet : place.offset);
    }

    static std::string place_in_file(const message_place &place)
    {
        return place.packet != 0 ? fmt::format("packet {}", place.packet) : fmt::format("byte {}", place.offset);
    }

    static bool is_one_of_several(const message_pair &pair)
    {
        return pair.first.has_several() || pair.second.has_several();
    }

    json_writer open(const message_pair &pair)
    {
        const message_place first = pair.first.place();
        const message_place second = pair.second.place();
        json_writer writer(
            m_output, is_one_of_several(pair) ? json_writer::layout::one_line : json_writer::layout::spread);
        writer.open_object();
        if (is_one_of_several(pair)) {
            write_number(writer, "number", std::max(first.number, second.number));
            write_place(writer, "a", first);
            write_place(writer, "b", second);
        }
        writer.name("same_bytes");
        writer.truth(pair.has_same_bytes());
        return writer;
    }

    void close(json_writer &writer)
    {
        writer.close();
        m_output.put('\n');
    }

    void write_json(const message_pair &pair, const std::vector<field_difference> &differences)
    {
        json_writer writer = open(pair);
        writer.name("differences");
        writer.open_array();
        for (const field_difference &each : differences) {
            writer.open_object(json_writer::layout::one_line);
            write_text(writer, "path", each.path);
            write_text(writer, "a", each.first);
            write_text(writer, "b", each.second);
            writer.close();
        }
        writer.close();
        close(writer);
    }

    static void write_number(json_writer &writer, std::string_view name, uint64_t number)
    {
        writer.name(name);
        writer.number(number);
    }

    static void write_text(json_writer &writer, std::string_view name, const std::optional<std::string> &text)
    {
        if (!text)
            return;
        writer.name(name);
        writer.string(*text);
    }

    bool m_as_json;
    colours m_colour;
    output_file &m_output;
};

// ---- all pairs -----------------------------------------------------------------------------------------------------

struct comparison {
    uint64_t pairs = 0;
    uint64_t different = 0; // of them
    uint64_t reencoded = 0; // the same fields in other bytes
    uint64_t only_in_first = 0;
    uint64_t only_in_second = 0;
    std::string first_fault;

    bool is_equal() const
    {
        return different + only_in_first + only_in_second == 0;
    }
};

void compare_pair(const message_description &message, const message_pair &pair, pair_writer &writer, bool write_equal,
    comparison &sum)
{
    ++sum.pairs;
    const std::string fault = pair.fault(message);
    if (!fault.empty()) {
        ++sum.different;
        if (sum.first_fault.empty())
            sum.first_fault =
                (fault.front() == 'A' ? pair.first : pair.second).full_place() + ": " + message.name + fault.substr(1);
        return writer.write_broken(pair, fault);
    }
    if (pair.has_same_bytes() && !write_equal)
        return;
    const std::vector<field_difference> differences =
        differences_of(message, pair.first.message(), pair.second.message());
    sum.different += differences.empty() ? 0 : 1;
    sum.reencoded += differences.empty() && !pair.has_same_bytes() ? 1 : 0;
    if (!differences.empty() || write_equal)
        writer.write(pair, differences);
}

uint64_t count_rest(message_source &source)
{
    uint64_t count = 1;
    while (source.next())
        ++count;
    return count;
}

std::string sum_in_words(const comparison &sum, bool has_several)
{
    const std::string equal = sum.reencoded == 0 ? "the same bytes" : "the same fields, in other bytes";
    if (!has_several)
        return sum.different == 0 ? equal + "\n" : "";
    std::string text = sum.different == 0
                           ? fmt::format("{}: {}", counted(sum.pairs, "message"), equal)
                           : fmt::format("{} of {} differ", sum.different, counted(sum.pairs, "message"));
    if (sum.only_in_first + sum.only_in_second != 0)
        text +=
            fmt::format("; {} more in {}", sum.only_in_first + sum.only_in_second, sum.only_in_first != 0 ? "A" : "B");
    return text + "\n";
}

} // namespace

exit_status run_diff(const command_options &options)
{
    const message_description &message = message_named(options.name);
    chosen_input input = options.input;
    if (input.files.front() == "-" && options.second_file == "-")
        throw bad_use("both messages cannot come from standard input; name a file for one of them");
    message_source first(input, plausibility_of(message));
    input.files = {options.second_file};
    message_source second(input, plausibility_of(message));
    output_file output(options.output);
    first.read_beside(output);
    second.read_beside(output);
    const bool has_several = first.has_several() || second.has_several();
    pair_writer writer(options, output);
    comparison sum;
    for (;;) {
        const bool has_first = first.next();
        const bool has_second = second.next();
        if (has_first && !has_second)
            sum.only_in_first = count_rest(first);
        if (has_second && !has_first)
            sum.only_in_second = count_rest(second);
        if (!has_first || !has_second)
            break;
        compare_pair(message, {first, second}, writer, options.as_json && !has_several, sum);
    }
    if (!options.as_json)
        output.write(sum_in_words(sum, has_several));
    output.commit();
    if (!sum.first_fault.empty())
        print_error("diff", sum.first_fault);
    return sum.is_equal() ? exit_ok : exit_broken_data;
}

} // namespace mava_tum_cli
