#include "commands/all_commands.h"
#include "commands/decode_verdict.h"
#include "commands/find_by_name.h"
#include "mava_tum_inspect.h"
#include "message/message_head.h"
#include "output/output_file.h"

namespace mava_tum_cli
{

namespace
{

// ---- one message, for people ----

struct finding_writer {
    std::string place; // of the message; empty if it is the only one
    output_file &output;
};

int32_t write_finding(const mava_tum_inspect_finding *finding, void *context)
{
    auto &writer = *static_cast<finding_writer *>(context);
    writer.output.write(writer.place + finding->text + "\n");
    return 0;
}

mava_tum_inspect_check_result check_in_words(const char *adapter, const message_source &source, output_file &output)
{
    const message_place place = source.place();
    finding_writer writer{place.is_empty() ? "" : place.to_string() + ": ", output};
    mava_tum_inspect_check_result result{};
    mava_tum_inspect_check(
        adapter, source.message().data(), source.message().size(), UINT64_MAX, write_finding, &writer, &result);
    return result;
}

// ---- one message, as JSON ----

std::string_view kind_of_finding(int32_t kind)
{
    constexpr std::string_view names[] = {"fault", "list_cut", "text_cut", "text_ends", "bytes_cut", "bytes_padded",
        "number_cut", "no_member", "part_missing", "replaced", "unknown_field"};
    return names[kind];
}

int32_t write_json_finding(const mava_tum_inspect_finding *finding, void *context)
{
    auto &writer = *static_cast<json_writer *>(context);
    writer.open_object(json_writer::layout::one_line);
    writer.name("kind");
    writer.string(kind_of_finding(finding->kind));
    writer.name("path");
    writer.string(finding->path);
    writer.name("offset");
    writer.number(finding->offset);
    writer.name("found");
    writer.number(finding->found);
    writer.name("allowed");
    writer.number(finding->allowed);
    writer.name("text");
    writer.string(finding->text);
    writer.close();
    return 0;
}

mava_tum_inspect_check_result check_as_json(
    const mava_tum_inspect::adapter_description &adapter, const message_source &source, output_file &output)
{
    const std::span<const uint8_t> wire = source.message();
    json_writer writer(output, layout_of(source));
    open_message(writer, source.place(), adapter.carried->name, wire.size());
    writer.name("adapter");
    writer.string(adapter.name);
    writer.name("findings");
    writer.open_array();
    mava_tum_inspect_check_result result{};
    mava_tum_inspect_check(adapter.name, wire.data(), wire.size(), UINT64_MAX, write_json_finding, &writer, &result);
    writer.close();
    writer.name("record_bytes");
    writer.number(result.record_bytes);
    writer.close();
    output.put('\n');
    return result;
}

// The sum of all messages.
struct check_sum {
    uint64_t messages = 0;
    uint64_t findings = 0;
    uint64_t record_bytes = 0;

    void add(const mava_tum_inspect_check_result &result)
    {
        ++messages;
        findings += result.finding_count;
        record_bytes = result.record_bytes;
    }

    std::string to_string() const
    {
        return fmt::format("{}{}; the record has {}\n", messages == 1 ? "" : counted(messages, "message") + ", ",
            counted(findings, "finding"), counted(record_bytes, "byte"));
    }
};

} // namespace

exit_status run_check(const command_options &options)
{
    const mava_tum_inspect::adapter_description &adapter = adapter_named(options.name);
    message_source source(options.input, plausibility_of(*adapter.carried));
    output_file output(options.output);
    source.read_beside(output);
    check_sum sum;
    while (source.next())
        sum.add(
            options.as_json ? check_as_json(adapter, source, output) : check_in_words(adapter.name, source, output));
    if (!options.as_json)
        output.write(sum.to_string());
    output.commit();
    return sum.findings == 0 ? exit_ok : exit_broken_data;
}

} // namespace mava_tum_cli
