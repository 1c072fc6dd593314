// From the words of the command line to a command, and from what it throws to a line on standard error.
#include "bad_use.h"
#include "command_help.h"
#include "commands/all_commands.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <fmt/format.h>
#include <utility>
#include <vector>

namespace mava_tum_cli
{

namespace
{

constexpr const char *program_name = "mava-tum";

// ---- arguments that several commands have --------------------------------------------------------------------

void add_message(CLI::App &command, command_options &options)
{
    command.add_option("MESSAGE", options.name, "the message, as `mava-tum list` names it")->required();
}

void add_adapter(CLI::App &command, command_options &options)
{
    command.add_option("NAME", options.name, "the application record, as `mava-tum list` names its adapter")
        ->required();
}

// An option whose value is one of some names.
template <class Value>
void add_choice(CLI::App &command, const std::string &option, Value &target,
    const std::vector<std::pair<std::string, Value>> &choices, const std::string &help, const std::string &value_name)
{
    std::vector<std::string> names;
    for (const auto &choice : choices)
        names.push_back(choice.first);
    const auto take = [&target, choices](const std::string &chosen) {
        for (const auto &[name, value] : choices)
            if (name == chosen)
                target = value;
    };
    command.add_option_function<std::string>(option, take, help)->check(CLI::IsMember(names))->option_text(value_name);
}

void add_format(CLI::App &command, command_options &options)
{
    add_choice<input_format>(command, "-f,--format", options.input.format,
        {{"auto", input_format::automatic}, {"raw", input_format::raw}, {"hex", input_format::hex},
            {"base64", input_format::base64}, {"frames", input_format::frames}, {"dump", input_format::dump},
            {"c", input_format::c}, {"capture", input_format::capture}},
        "what the input is written in: auto, raw, hex, base64, frames (each message after its length in 4 bytes, "
        "big-endian), dump (of xxd, hexdump, od or tshark), c (an array or escapes) or capture (pcap or pcapng)",
        "FORMAT");
}

// Which packets of a capture are read.
void add_packets(CLI::App &command, command_options &options)
{
    CLI::Option *port = command.add_option(
        "--port", options.input.packets.ports, "of a capture: only packets to this UDP or TCP port; may be repeated");
    port->option_text("PORT")->allow_extra_args(false)->check(CLI::Range(1, 65535));
    add_choice<port_side>(command, "--side", options.input.packets.side,
        {{"to", port_side::to}, {"from", port_side::from}, {"both", port_side::both}},
        "of a capture: packets to the port, from it, or both", "SIDE");
    command.get_option("--side")->needs(port);
    add_choice<std::optional<transport>>(command, "--transport", options.input.packets.protocol,
        {{"udp", transport::udp}, {"tcp", transport::tcp}, {"both", std::nullopt}},
        "of a capture: udp (a datagram is a message), tcp (frames) or both", "TRANSPORT");
}

void add_number(CLI::App &command, command_options &options)
{
    command.add_option("--message", options.input.number, "only this message of each file, counted from 1")
        ->option_text("NUMBER")
        ->check(CLI::PositiveNumber);
}

void add_file(CLI::App &command, command_options &options)
{
    command.add_option(
        "FILE", options.input.files, "the input, in any number of files; - or nothing is standard input");
    add_format(command, options);
    add_packets(command, options);
    add_number(command, options);
}

void add_output(CLI::App &command, command_options &options)
{
    command.add_option("-o,--output", options.output, "write to this file, which appears when it is complete")
        ->option_text("FILE");
}

void add_written_as(CLI::App &command, command_options &options)
{
    add_choice<input_format>(command, "-t,--to", options.written_as,
        {{"raw", input_format::raw}, {"hex", input_format::hex}, {"base64", input_format::base64},
            {"frames", input_format::frames}},
        "how to write the message: raw, hex, base64 or frames", "FORMAT");
}

CLI::Option *add_json(CLI::App &command, command_options &options)
{
    return command.add_flag("-j,--json", options.as_json, "print JSON");
}

void add_colour(CLI::App &command, command_options &options)
{
    add_choice<colour_choice>(command, "--color", options.colour,
        {{"auto", colour_choice::automatic}, {"always", colour_choice::always}, {"never", colour_choice::never}},
        "auto (on a terminal, unless NO_COLOR is set), always or never", "WHEN");
}

// ---- the commands --------------------------------------------------------------------------------------------

void declare_decode(CLI::App &command, command_options &options)
{
    add_message(command, options);
    add_file(command, options);
    CLI::Option *json = add_json(command, options);
    command.add_flag("--fields", options.with_fields, "with --json: say where each field stands, or that it is absent")
        ->needs(json);
    command.add_flag("--no-absent", options.without_absent, "do not name the fields that are absent");
    add_output(command, options);
    add_colour(command, options);
}

void declare_explain(CLI::App &command, command_options &options)
{
    add_message(command, options);
    add_file(command, options);
    add_json(command, options);
    add_output(command, options);
    add_colour(command, options);
}

void declare_encode(CLI::App &command, command_options &options)
{
    add_message(command, options);
    command.add_option(
        "FILE.json", options.input.files, "messages as JSON, in any number of files; - or nothing is standard input");
    add_output(command, options);
    add_written_as(command, options);
}

void declare_app(CLI::App &command, command_options &options)
{
    add_adapter(command, options);
    command.add_option("DIRECTION", options.direction, "encode: JSON to wire bytes; decode: wire bytes to JSON")
        ->required()
        ->check(CLI::IsMember({"encode", "decode"}));
    add_file(command, options);
    add_output(command, options);
    add_written_as(command, options);
}

void declare_check(CLI::App &command, command_options &options)
{
    add_adapter(command, options);
    add_file(command, options);
    add_json(command, options);
    add_output(command, options);
}

void declare_guess(CLI::App &command, command_options &options)
{
    add_file(command, options);
    add_json(command, options);
    add_output(command, options);
}

void declare_diff(CLI::App &command, command_options &options)
{
    add_message(command, options);
    command.add_option("A", options.input.files.front(), "the messages of one side; - is standard input")->required();
    command.add_option("B", options.second_file, "those of the other")->required();
    add_format(command, options);
    add_packets(command, options);
    add_number(command, options);
    add_json(command, options);
    add_output(command, options);
    add_colour(command, options);
}

void declare_list(CLI::App &command, command_options &options)
{
    command.add_option("MESSAGE", options.name, "list the fields of this message");
    add_json(command, options);
    add_output(command, options);
}

void declare_web(CLI::App &command, command_options &options)
{
    command.add_option("FILE", options.input.files.front(), "the input; - or nothing is standard input");
    command.add_option("--name", options.name, "the message, as `mava-tum list` names it; otherwise it is guessed")
        ->option_text("MESSAGE");
    options.page = MAVA_TUM_WEB_PAGE;
    command.add_option("--page", options.page, "the page to put the input into, if not the installed one")
        ->option_text("FILE");
    add_format(command, options);
    add_output(command, options);
}

struct command {
    const char *name;
    const char *summary;
    const char *examples;
    void (*declare)(CLI::App &, command_options &);
    exit_status (*run)(const command_options &);
};

const command all_commands[] = {
    {"decode", "Print the fields of messages as a tree or as JSON", help::decode, declare_decode, run_decode},
    {"explain", "Print the bytes of messages with their meaning, and what is wrong with them", help::explain,
        declare_explain, run_explain},
    {"encode", "Make messages from JSON", help::encode, declare_encode, run_encode},
    {"app", "The same as an application sees it: its records through the adapters", help::app, declare_app, run_app},
    {"check", "Tell whether messages fit into an application's record", help::check, declare_check, run_check},
    {"guess", "Tell which messages some bytes can be", help::guess, declare_guess, run_guess},
    {"diff", "Compare messages field by field", help::diff, declare_diff, run_diff},
    {"list", "List the messages and their adapters, or the fields of one", help::list, declare_list, run_list},
    {"web", "Write a web page that shows the input, and needs no network", help::web, declare_web, run_web},
};

void declare_all(CLI::App &program, command_options &options)
{
    program.name(program_name);
    program.set_version_flag("-V,--version", std::string(program_name) + " " + MAVA_TUM_COMMAND_VERSION);
    program.require_subcommand(1);
    program.footer(help::overview);
    for (const command &each : all_commands) {
        CLI::App *subcommand = program.add_subcommand(each.name, each.summary);
        each.declare(*subcommand, options);
        subcommand->footer(each.examples);
    }
}

// ---- errors --------------------------------------------------------------------------------------------------

int refuse(const std::string &command, const std::string &what)
{
    print_error(command, what);
    return exit_bad_use;
}

int refuse_arguments(const CLI::App &program, const CLI::ParseError &error)
{
    std::string command;
    for (const CLI::App *subcommand : program.get_subcommands())
        command = subcommand->get_name();
    return refuse(
        command, fmt::format("{}; see {}{}{} --help", error.what(), program_name, command.empty() ? "" : " ", command));
}

// What the parser would only call a missing subcommand.
int refuse_command(const std::string &word)
{
    std::string names;
    for (const command &each : all_commands)
        names += (names.empty() ? "" : ", ") + std::string(each.name);
    return refuse("", fmt::format("there is no command \"{}\"; name one of {}", word, names));
}

bool is_command(std::string_view word)
{
    return std::ranges::any_of(all_commands, [word](const command &each) { return word == each.name; });
}

int run_chosen(const CLI::App &program, const command_options &options)
{
    const std::string chosen = program.get_subcommands().front()->get_name();
    const command *found =
        std::ranges::find_if(all_commands, [&chosen](const command &each) { return chosen == each.name; });
    try {
        return found->run(options);
    } catch (const bad_use &error) {
        return refuse(chosen, error.what());
    } catch (const std::bad_alloc &) {
        return refuse(chosen, "not enough memory for this input; give smaller messages");
    }
}

// Returns an exit_status.
int run_command_line(int argc, char **argv)
{
    if (argc > 1 && argv[1][0] != '-' && !is_command(argv[1]))
        return refuse_command(argv[1]);
    CLI::App program("Looks inside the wire bytes of tum messages.");
    command_options options;
    declare_all(program, options);
    try {
        program.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0)
            return program.exit(error);
        return refuse_arguments(program, error);
    }
    return run_chosen(program, options);
}

} // namespace

} // namespace mava_tum_cli

int main(int argc, char **argv)
{
    return mava_tum_cli::run_command_line(argc, argv);
}
