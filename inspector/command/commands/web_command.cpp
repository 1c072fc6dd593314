#include "bad_use.h"
#include "commands/all_commands.h"
#include "commands/find_by_name.h"
#include "input/digit_text.h"
#include "json/json_values.h"
#include "output/output_file.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

constexpr std::string_view nothing_given = R"(id="given">null<)";
constexpr size_t most_bytes = size_t{64} << 20; // more makes a page that browsers do not open in a reasonable time

std::string text_of_file(const std::string &path)
{
    const byte_vector bytes = input_stream(path).read_all();
    return {bytes.begin(), bytes.end()};
}

// The value as text for a script element: characters that could end the element are escaped.
std::string inside_script(const json &value)
{
    std::string text = value.dump(-1, ' ', true, json::error_handler_t::replace);
    for (size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at))
        text.replace(at, 1, "\\u003c");
    return text;
}

json given_input(const command_options &options)
{
    input_stream stream(options.input.files.front());
    const byte_vector content = stream.read_all();
    if (content.size() > most_bytes)
        throw bad_use(fmt::format("{}: {} bytes, and a page holds at most {}; open the file in an empty page",
            stream.name(), content.size(), most_bytes));
    const std::string message = options.name.empty() ? "" : message_named(options.name).name;
    return {{"name", stream.name()}, {"message", message}, {"format", name_of(options.input.format)},
        {"bytes", base64_of_bytes(content)}};
}

} // namespace

exit_status run_web(const command_options &options)
{
    std::string page = text_of_file(options.page);
    const size_t place = page.find(nothing_given);
    if (place == std::string::npos)
        throw bad_use(fmt::format("{}: is no inspector.html of this program; name one with --page", options.page));
    output_file output(options.output);
    const size_t begin = place + nothing_given.find("null");
    output.write(std::string_view(page).substr(0, begin));
    output.write(inside_script(given_input(options)));
    output.write(std::string_view(page).substr(begin + std::string_view("null").size()));
    output.commit();
    return exit_ok;
}

} // namespace mava_tum_cli
