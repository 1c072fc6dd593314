#include "commands/all_commands.h"
#include "commands/decode_verdict.h"
#include "commands/find_by_name.h"
#include "commands/frame_heading.h"
#include "mava_tum_inspect.h"
#include "output/output_file.h"

#include <array>

namespace mava_tum_cli
{

namespace
{

constexpr size_t line_capacity = 1024; // more than any line has

struct line_writer {
    std::span<const uint8_t> wire;
    const colours &colour;
    output_file &output;
};

ink ink_of(int32_t line_kind)
{
    switch (line_kind) {
    case MAVA_TUM_INSPECT_LINE_TAG:
        return ink::name;
    case MAVA_TUM_INSPECT_LINE_NOTE:
    case MAVA_TUM_INSPECT_LINE_UNREAD:
        return ink::faint;
    case MAVA_TUM_INSPECT_LINE_FAULT:
        return ink::fault;
    default:
        return ink::plain;
    }
}

void write_line(const mava_tum_inspect_line *line, void *context)
{
    const auto &writer = *static_cast<const line_writer *>(context);
    std::array<char, line_capacity> text{};
    mava_tum_inspect_format_line(line, writer.wire.data(), text.data(), line_capacity);
    writer.output.write(writer.colour.paint(ink_of(line->kind), text.data()) + "\n");
}

} // namespace

exit_status run_explain(const command_options &options)
{
    const mava_tum_inspect::message_description &message = message_named(options.name);
    message_source source(options.file, options.format, plausibility_of(message));
    output_file output(options.output);
    source.show_progress_beside(output);
    const colours colour(options.colour, output.is_terminal());
    fault_report report("explain", message);
    while (source.next()) {
        output.write(frame_heading(source, message.name));
        const std::span<const uint8_t> wire = source.message();
        line_writer writer{wire, colour, output};
        mava_tum_inspect_verdict verdict{};
        mava_tum_inspect_explain(message.name, wire.data(), wire.size(), write_line, &writer, &verdict);
        if (verdict.result == MAVA_TUM_OK)
            output.write(std::string(verdict.text) + "\n");
        report.look_at(source);
    }
    output.commit();
    return report.finish();
}

} // namespace mava_tum_cli
