#include "commands/all_commands.h"
#include "commands/decode_verdict.h"
#include "commands/find_by_name.h"
#include "mava_tum_inspect.h"
#include "output/output_file.h"
#include "words.h"

namespace mava_tum_cli
{

namespace
{

struct finding_writer {
    std::string place; // of the message; empty if it is the only one
    output_file &output;
};

void write_finding(const mava_tum_inspect_finding *finding, void *context)
{
    auto &writer = *static_cast<finding_writer *>(context);
    writer.output.write(writer.place + finding->text + "\n");
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
    message_source source(options.file, options.format, plausibility_of(*adapter.carried));
    output_file output(options.output);
    source.show_progress_beside(output);
    check_sum sum;
    while (source.next()) {
        const std::span<const uint8_t> wire = source.message();
        finding_writer writer{
            source.has_frames() ? fmt::format("frame {} at byte {}: ", source.number(), source.begin()) : "", output};
        mava_tum_inspect_check_result result{};
        mava_tum_inspect_check(adapter.name, wire.data(), wire.size(), write_finding, &writer, &result);
        sum.add(result);
    }
    output.write(sum.to_string());
    output.commit();
    return sum.findings == 0 ? exit_ok : exit_broken_data;
}

} // namespace mava_tum_cli
