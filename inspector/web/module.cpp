// The door of the WebAssembly module: one request, a JSON object, in; text, bytes and one line about what went wrong
// out, through the host. A request names a command and what the command line would say:
//
//     {"command": "check", "name": "session_context", "input": "-", "format": "hex", "json": true}
//
// list, decode, encode, explain, check, guess, diff and app are the program's own. The others are the page's:
//
//     message   the bytes of message `number`; text: whether it was found, there can be several, and it is a capture
//     frames    all messages: for each five doubles: offset (of captures: number of the packet), bytes, result of a
//               decode as `name`, offset of its fault, number of its direction; text: the directions
//     look      what is wrong with a message, what it needs, and its adapters
//     rows      the rows of its tree (module.h)
//     texts     the texts of `count` rows from `first`
//     adapter   what an application would get of it, through the adapter `name`
//     edit      the bytes with `value` at `path` of its JSON, or without what is there
//     report    the lines of explain, for a bug report; `redacted`: without values
//
// Returns the exit status of the command.
#include "module.h"
#include "app/called_adapters.h"
#include "bad_use.h"
#include "commands/all_commands.h"
#include "commands/decode_verdict.h"
#include "commands/find_by_name.h"
#include "mava_tum_inspect.h"
#include "message/decoded_json.h"
#include "message/message_from_json.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fmt/format.h>
#include <map>
#include <memory>
#include <new>

namespace mava_tum_cli
{

namespace
{

using mava_tum_inspect::adapter_description;
using mava_tum_inspect::message_description;

constexpr uint32_t most_findings = 500; // that are written out; all are counted

// ---- the request -------------------------------------------------------------------------------------------------

std::string text_in(const json &request, const char *name, const char *otherwise = "")
{
    return request.value(name, std::string(otherwise));
}

input_format format_named(const std::string &name)
{
    for (const input_format format : {input_format::raw, input_format::hex, input_format::base64, input_format::frames,
             input_format::dump, input_format::c, input_format::capture})
        if (name == name_of(format))
            return format;
    return input_format::automatic;
}

capture_choice packets_of(const json &request)
{
    const std::string side = text_in(request, "side");
    const std::string protocol = text_in(request, "transport");
    capture_choice choice;
    choice.ports = request.value("ports", choice.ports);
    choice.side = side == "from" ? port_side::from : side == "both" ? port_side::both : port_side::to;
    if (protocol == "udp" || protocol == "tcp")
        choice.protocol = protocol == "udp" ? transport::udp : transport::tcp;
    return choice;
}

command_options options_of(const json &request)
{
    command_options options;
    options.name = text_in(request, "name");
    options.direction = text_in(request, "direction", "decode");
    options.input.files = {text_in(request, "input", "-")};
    options.input.format = format_named(text_in(request, "format"));
    options.input.packets = packets_of(request);
    options.input.number = request.value("number", uint64_t{0});
    options.second_file = text_in(request, "second");
    options.as_json = request.value("json", false);
    options.with_fields = request.value("fields", false);
    options.without_absent = request.value("no_absent", false);
    options.colour = colour_choice::never;
    return options;
}

plausible_fn plausibility_for(const json &request)
{
    const std::string name = text_in(request, "name");
    return name.empty() ? plausible_fn(plausibility_of_any) : plausibility_of(message_named(name));
}

byte_vector whole_input(const json &request)
{
    input_stream stream(text_in(request, "input", "-"));
    return stream.read_all();
}

// ---- what goes out -----------------------------------------------------------------------------------------------

void send_text(std::string_view text)
{
    host_write(host_channel::output, text.data(), text.size());
}

void send_json(const json &value)
{
    send_text(value.dump(-1, ' ', false, json::error_handler_t::replace));
}

void send_bytes(std::span<const uint8_t> bytes)
{
    host_write(host_channel::bytes, bytes.data(), bytes.size());
}

// ---- messages in an input ------------------------------------------------------------------------------------------

exit_status run_message(const json &request)
{
    message_source source(options_of(request).input, plausibility_for(request));
    const bool is_there = source.next(); // a capture may have none
    if (is_there)
        send_bytes(source.message());
    send_json({{"several", source.has_several()}, {"capture", source.is_capture()}, {"found", is_there}});
    return exit_ok;
}

class frame_rows
{
public:
    void add(const message_source &source, const mava_tum_inspect_verdict &verdict)
    {
        const message_place place = source.place();
        const double row[] = {static_cast<double>(source.is_capture() ? place.packet : place.offset),
            static_cast<double>(source.message().size()), static_cast<double>(verdict.result),
            static_cast<double>(verdict.offset), direction_number(place.direction)};
        m_rows.insert(m_rows.end(), std::begin(row), std::end(row));
        if (m_rows.size() >= 16384)
            flush();
    }

    void flush()
    {
        host_write(host_channel::bytes, m_rows.data(), m_rows.size() * sizeof m_rows[0]);
        m_rows.clear();
    }

    const json &directions() const
    {
        return m_directions;
    }

private:
    double direction_number(std::string_view direction)
    {
        const auto [found, is_new] = m_numbers.try_emplace(std::string(direction), m_directions.size());
        if (is_new)
            m_directions.push_back(direction);
        return static_cast<double>(found->second);
    }

    std::vector<double> m_rows;
    std::map<std::string, size_t> m_numbers;
    json m_directions = json::array();
};

exit_status run_frames(const json &request)
{
    const message_description &message = message_named(text_in(request, "name"));
    message_source source(options_of(request).input, plausibility_of(message));
    frame_rows rows;
    mava_tum_inspect_verdict verdict{};
    try {
        while (source.next()) {
            mava_tum_inspect_judge(message.name, source.message().data(), source.message().size(), &verdict);
            rows.add(source, verdict);
        }
    } catch (const bad_use &) {
        rows.flush();
        throw; // what was read before is shown with the reason
    }
    rows.flush();
    send_json(rows.directions());
    return exit_ok;
}

// ---- one message -------------------------------------------------------------------------------------------------

void *allocate(uint64_t size_bytes, void *)
{
    return std::malloc(static_cast<size_t>(size_bytes));
}

void release(void *block, void *)
{
    std::free(block);
}

// Of the message with its bytes fields left where they are, as the library sends it again; 0: it does not decode.
uint32_t segments_of(const message_description &message, const byte_vector &wire)
{
    const auto record = std::make_unique<std::byte[]>(message.record_bytes);
    uint32_t segments = 0;
    if (message.decode(record.get(), wire.data(), wire.size(), allocate, nullptr, MAVA_TUM_ALIAS) == MAVA_TUM_OK)
        message.encode(record.get(), nullptr, 0, nullptr, &segments, MAVA_TUM_ALIAS);
    message.free(record.get(), release, nullptr, MAVA_TUM_ALIAS);
    return segments;
}

json memory_of(const message_description &message, const byte_vector &wire)
{
    uint64_t blocks = 0;
    uint64_t bytes = 0;
    mava_tum_inspect_memory(message.name, wire.data(), wire.size(), 0, &blocks, &bytes);
    return {{"blocks", blocks}, {"bytes", bytes}};
}

exit_status run_look(const json &request)
{
    const message_description &message = message_named(text_in(request, "name"));
    const byte_vector wire = whole_input(request);
    mava_tum_inspect_verdict verdict{};
    mava_tum_inspect_judge(message.name, wire.data(), wire.size(), &verdict);
    json look{{"message", message.name}, {"bytes", wire.size()}, {"result", verdict.result},
        {"memory", memory_of(message, wire)}, {"adapters", json::array()}};
    if (verdict.result == MAVA_TUM_OK)
        look["segments"] = segments_of(message, wire);
    else
        look["fault"] = {{"path", verdict.path}, {"offset", verdict.offset}, {"rule", verdict.text}};
    for (const adapter_description &adapter : mava_tum_inspect::all_adapters())
        if (adapter.carried == &message)
            look["adapters"].push_back({{"name", adapter.name}, {"max_size", adapter.max_size}});
    send_json(look);
    return verdict.result == MAVA_TUM_OK ? exit_ok : exit_broken_data;
}

exit_status run_rows(const json &request)
{
    write_rows(message_named(text_in(request, "name")), whole_input(request));
    return exit_ok;
}

exit_status run_texts(const json &request)
{
    output_file output("");
    write_row_texts(message_named(text_in(request, "name")), whole_input(request), request.value("first", uint64_t{0}),
        request.value("count", uint64_t{0}), output);
    output.commit();
    return exit_ok;
}

int32_t add_finding(const mava_tum_inspect_finding *finding, void *context)
{
    json &findings = *static_cast<json *>(context);
    findings.push_back({{"path", finding->path}, {"offset", finding->offset}, {"text", finding->text}});
    return 0;
}

exit_status run_adapter(const json &request)
{
    const adapter_description &adapter = adapter_named(text_in(request, "name"));
    const byte_vector wire = whole_input(request);
    json findings = json::array();
    mava_tum_inspect_check_result result{};
    mava_tum_inspect_check(adapter.name, wire.data(), wire.size(), most_findings, add_finding, &findings, &result);
    // As text: a page would round numbers of 64 bits.
    const std::string record = decode_record(adapter, wire).dump(2, ' ', false, json::error_handler_t::replace);
    send_json({{"adapter", adapter.name}, {"finding_count", result.finding_count}, {"findings", findings},
        {"record_bytes", result.record_bytes}, {"record", record}});
    return result.finding_count == 0 ? exit_ok : exit_broken_data;
}

// ---- edits -------------------------------------------------------------------------------------------------------

json record_of(const message_description &message, const byte_vector &wire)
{
    text_in_memory text;
    print_json(message, wire, {}, {.layout = json_writer::layout::one_line}, text);
    return json::parse(text.take())["record"];
}

exit_status run_edit(const json &request)
{
    const message_description &message = message_named(text_in(request, "name"));
    const std::string path = text_in(request, "path");
    const json::json_pointer pointer(path);
    json record = record_of(message, whole_input(request));
    if (request.contains("value"))
        record[pointer] = request["value"];
    else if (record.contains(pointer) && !pointer.empty() && record[pointer.parent_pointer()].is_array())
        record[pointer.parent_pointer()].erase(std::stoul(pointer.back()));
    else if (record.contains(pointer) && !pointer.empty())
        record[pointer.parent_pointer()].erase(pointer.back());
    else
        throw bad_use(fmt::format("{}: there is no such field to remove", path));
    send_bytes(encode_json(message, record));
    return exit_ok;
}

// ---- a report ------------------------------------------------------------------------------------------------------

struct report_writer {
    std::span<const uint8_t> wire;
    bool is_redacted;
    std::string text;
};

bool holds_a_value(const mava_tum_inspect_line &line)
{
    return line.kind == MAVA_TUM_INSPECT_LINE_VALUE || line.kind == MAVA_TUM_INSPECT_LINE_MORE ||
           line.kind == MAVA_TUM_INSPECT_LINE_UNREAD;
}

int32_t add_report_line(const mava_tum_inspect_line *line, void *context)
{
    auto &writer = *static_cast<report_writer *>(context);
    if (writer.is_redacted && holds_a_value(*line)) {
        writer.text += fmt::format(
            "{:>8}  {:{}}({} left out)\n", line->offset, "", 24 + 2 * line->depth, counted(line->byte_count, "byte"));
        return 0;
    }
    std::array<char, 1024> text{};
    mava_tum_inspect_format_line(line, writer.wire.data(), text.data(), text.size());
    writer.text += text.data();
    writer.text += '\n';
    return 0;
}

exit_status run_report(const json &request)
{
    const message_description &message = message_named(text_in(request, "name"));
    const byte_vector wire = whole_input(request);
    report_writer writer{wire, request.value("redacted", false), {}};
    mava_tum_inspect_verdict verdict{};
    mava_tum_inspect_explain(message.name, wire.data(), wire.size(), add_report_line, &writer, &verdict);
    send_text(fmt::format("mava-tum {}: {}, {} bytes: result {}\n{}", MAVA_TUM_COMMAND_VERSION, message.name,
        wire.size(), verdict.result, writer.text));
    return exit_ok;
}

// ---- all commands --------------------------------------------------------------------------------------------------

struct program_command {
    std::string_view name;
    exit_status (*run)(const command_options &options);
};

constexpr program_command program_commands[] = {{"list", run_list}, {"decode", run_decode}, {"encode", run_encode},
    {"explain", run_explain}, {"check", run_check}, {"guess", run_guess}, {"diff", run_diff}, {"app", run_app}};

struct page_command {
    std::string_view name;
    exit_status (*run)(const json &request);
};

constexpr page_command page_commands[] = {{"message", run_message}, {"frames", run_frames}, {"look", run_look},
    {"rows", run_rows}, {"texts", run_texts}, {"adapter", run_adapter}, {"edit", run_edit}, {"report", run_report}};

exit_status run(const json &request)
{
    const std::string name = text_in(request, "command");
    for (const page_command &each : page_commands)
        if (name == each.name)
            return each.run(request);
    for (const program_command &each : program_commands)
        if (name == each.name)
            return each.run(options_of(request));
    throw bad_use(fmt::format("there is no command \"{}\"", name));
}

} // namespace

} // namespace mava_tum_cli

extern "C" {

// For the host, to write a request to. Null: out of memory.
__attribute__((export_name("block"))) void *mava_tum_web_block(uint32_t size_bytes)
{
    return std::malloc(size_bytes);
}

// Runs the request of `size_bytes` bytes in a block, and releases the block.
__attribute__((export_name("run"))) int32_t mava_tum_web_run(char *request, uint32_t size_bytes)
{
    using namespace mava_tum_cli;
    const std::string text(request, size_bytes);
    std::free(request);
    try {
        return run(json::parse(text));
    } catch (const std::bad_alloc &) {
        print_error("", "not enough memory for this input");
    } catch (const std::exception &error) {
        print_error("", error.what());
    }
    return exit_bad_use;
}
}
