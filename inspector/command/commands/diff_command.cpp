#include "commands/all_commands.h"
#include "commands/decode_verdict.h"
#include "commands/find_by_name.h"
#include "error_line.h"
#include "message/field_list.h"
#include "message/verdict.h"
#include "output/output_file.h"
#include "words.h"

#include <unordered_map>

namespace mava_tum_cli
{

namespace
{

using mava_tum_inspect::message_description;

// By path.
using field_index = std::unordered_map<std::string, std::string>;

struct difference_writer {
    const colours &colour;
    output_file &output;
    uint64_t differences = 0;

    void write(const char *what, const std::string &path, const std::string &values)
    {
        output.write(what + colour.paint(ink::name, path) + ": " + values + "\n");
        ++differences;
    }
};

field_index index_of(const std::vector<listed_field> &fields)
{
    field_index index;
    for (const listed_field &field : fields)
        index.emplace(field.path, field.value);
    return index;
}

void write_differences(
    const std::vector<listed_field> &first, const std::vector<listed_field> &second, difference_writer &writer)
{
    const field_index in_first = index_of(first);
    const field_index in_second = index_of(second);
    for (const listed_field &field : first) {
        const auto other = in_second.find(field.path);
        if (other == in_second.end())
            writer.write("only in A: ", field.path, field.value);
        else if (other->second != field.value)
            writer.write("", field.path, field.value + " -> " + other->second);
    }
    for (const listed_field &field : second)
        if (!in_first.contains(field.path))
            writer.write("only in B: ", field.path, field.value);
}

// Prints which of the two does not decode. True: both do.
bool both_decode(
    const message_description &message, const command_options &options, wire_bytes first, wire_bytes second)
{
    for (const bool is_first : {true, false}) {
        const std::optional<std::string> fault = fault_of(message, is_first ? first : second);
        if (!fault)
            continue;
        print_error("diff", fmt::format("{}: {} does not decode: {}", is_first ? options.file : options.second_file,
                                message.name, *fault));
        return false;
    }
    return true;
}

} // namespace

exit_status run_diff(const command_options &options)
{
    const message_description &message = message_named(options.name);
    if (options.file == "-" && options.second_file == "-")
        throw bad_use("both messages cannot come from standard input; name a file for one of them");
    const plausible_fn plausible = plausibility_of(message);
    const byte_vector first = read_single_message(options.file, options.format, plausible);
    const byte_vector second = read_single_message(options.second_file, options.format, plausible);
    if (!both_decode(message, options, first, second))
        return exit_broken_data;
    output_file output(options.output);
    const colours colour(options.colour, output.is_terminal());
    difference_writer writer{colour, output};
    write_differences(list_fields(message, first), list_fields(message, second), writer);
    if (writer.differences == 0)
        output.write(first == second ? "the same bytes\n" : "the same fields, in other bytes\n");
    output.commit();
    return writer.differences == 0 ? exit_ok : exit_broken_data;
}

} // namespace mava_tum_cli
