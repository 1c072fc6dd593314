#include "bad_use.h"
#include "commands/all_commands.h"
#include "commands/decode_verdict.h"
#include "input/message_source.h"
#include "mava_tum_inspect.h"
#include "message/message_head.h"
#include "output/output_file.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace mava_tum_cli
{

namespace
{

using candidates = std::vector<mava_tum_inspect_candidate>;

constexpr size_t shown_of_several = 3;

// The likeliest first.
candidates guess(std::span<const uint8_t> wire)
{
    candidates found(mava_tum_inspect_message_count());
    found.resize(mava_tum_inspect_guess(wire.data(), wire.size(), found.data(), static_cast<uint32_t>(found.size())));
    return found;
}

// ---- one message -------------------------------------------------------------------------------------------------

void print_table(const candidates &found, output_file &output)
{
    output.write(fmt::format("{:<28}{:>14}{:>15}{:>10}{:>15}\n", "message", "unknown bytes", "unknown fields",
        "odd forms", "absent fields"));
    for (const mava_tum_inspect_candidate &one : found)
        output.write(fmt::format("{:<28}{:>14}{:>15}{:>10}{:>15}\n", one.message, one.unknown_bytes, one.unknown_fields,
            one.odd_forms, one.absent_fields));
}

void print_line(const message_source &source, const candidates &found, output_file &output)
{
    std::string names;
    for (size_t i = 0; i < found.size() && i < shown_of_several; ++i)
        names += (i == 0 ? "" : ", ") + std::string(found[i].message);
    if (found.size() > shown_of_several)
        names += fmt::format(" and {} more", found.size() - shown_of_several);
    output.write(fmt::format("{}, {}: {}\n", source.place().to_string(), counted(source.message().size(), "byte"),
        found.empty() ? "no message" : names));
}

void print_json(const message_source &source, const candidates &found, output_file &output)
{
    json_writer writer(output, layout_of(source));
    open_message(writer, source.place(), "", source.message().size());
    writer.name("candidates");
    writer.open_array();
    for (const mava_tum_inspect_candidate &one : found) {
        writer.open_object(json_writer::layout::one_line);
        writer.name("message");
        writer.string(one.message);
        for (const auto &[name, number] :
            {std::pair{"unknown_bytes", one.unknown_bytes}, {"unknown_fields", one.unknown_fields},
                {"odd_forms", one.odd_forms}, {"absent_fields", uint64_t{one.absent_fields}}}) {
            writer.name(name);
            writer.number(number);
        }
        writer.close();
    }
    writer.close();
    writer.close();
    output.put('\n');
}

// ---- all of them ---------------------------------------------------------------------------------------------------

// How many messages of the input each of the 40 can be, and what would not fit.
class guess_sum
{
public:
    void add(const candidates &found)
    {
        ++m_messages;
        for (const mava_tum_inspect_candidate &one : found) {
            entry &sum = entry_of(one.message);
            ++sum.messages;
            sum.unknown_bytes += one.unknown_bytes;
            sum.odd_forms += one.odd_forms;
        }
    }

    // The likeliest first.
    void print(output_file &output)
    {
        std::ranges::stable_sort(m_entries, [](const entry &one, const entry &other) {
            return std::tuple(other.messages, one.unknown_bytes, one.odd_forms) <
                   std::tuple(one.messages, other.unknown_bytes, other.odd_forms);
        });
        output.write(
            fmt::format("\n{:<28}{:>20}{:>15}{:>10}\n", "message", "messages it can be", "unknown bytes", "odd forms"));
        for (const entry &sum : m_entries)
            output.write(fmt::format("{:<28}{:>20}{:>15}{:>10}\n", sum.message,
                fmt::format("{} of {}", sum.messages, m_messages), sum.unknown_bytes, sum.odd_forms));
    }

private:
    struct entry {
        std::string_view message;
        uint64_t messages = 0;
        uint64_t unknown_bytes = 0;
        uint64_t odd_forms = 0;
    };

    entry &entry_of(std::string_view message)
    {
        const auto found = std::ranges::find(m_entries, message, &entry::message);
        return found != m_entries.end() ? *found : m_entries.emplace_back(entry{message});
    }

    std::vector<entry> m_entries;
    uint64_t m_messages = 0;
};

} // namespace

plausibility plausibility_of_any(std::span<const uint8_t> wire)
{
    const candidates found = guess(wire);
    if (found.empty())
        return plausibility::none;
    const mava_tum_inspect_candidate &best = found.front();
    return best.unknown_bytes == 0 && best.odd_forms == 0 ? plausibility::exact : plausibility::decodes;
}

exit_status run_guess(const command_options &options)
{
    message_source source(options.input, plausibility_of_any);
    output_file output(options.output);
    source.read_beside(output);
    std::string first_unknown;
    guess_sum sum;
    while (source.next()) {
        const candidates found = guess(source.message());
        sum.add(found);
        if (found.empty() && first_unknown.empty())
            first_unknown = source.full_place();
        if (options.as_json)
            print_json(source, found, output);
        else if (source.has_several())
            print_line(source, found, output);
        else if (!found.empty())
            print_table(found, output);
    }
    if (source.has_several() && !options.as_json)
        sum.print(output);
    output.commit();
    if (first_unknown.empty())
        return exit_ok;
    print_error("guess", fmt::format("{}: none of the {} messages decodes from these bytes; see where one breaks with "
                                     "mava-tum explain MESSAGE",
                             first_unknown, mava_tum_inspect_message_count()));
    return exit_broken_data;
}

} // namespace mava_tum_cli
