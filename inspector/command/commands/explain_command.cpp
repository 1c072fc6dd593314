#include "commands/all_commands.h"
#include "commands/decode_verdict.h"
#include "commands/find_by_name.h"
#include "inspector/library/print.h"
#include "mava_tum_inspect.h"
#include "message/message_head.h"
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

int32_t write_line(const mava_tum_inspect_line *line, void *context)
{
    const auto &writer = *static_cast<const line_writer *>(context);
    std::array<char, line_capacity> text{};
    mava_tum_inspect_format_line(line, writer.wire.data(), text.data(), line_capacity);
    writer.output.write(writer.colour.paint(ink_of(line->kind), text.data()) + "\n");
    return 0;
}

// ---- as JSON -------------------------------------------------------------------------------------------------

struct json_line_writer {
    std::span<const uint8_t> wire;
    json_writer &writer;
};

std::string_view kind_of_line(int32_t line_kind)
{
    constexpr std::string_view names[] = {"tag", "length", "value", "more", "note", "fault", "unread"};
    return names[line_kind];
}

int32_t write_json_line(const mava_tum_inspect_line *line, void *context)
{
    const auto &[wire, writer] = *static_cast<const json_line_writer *>(context);
    writer.open_object(json_writer::layout::one_line);
    writer.name("kind");
    writer.string(kind_of_line(line->kind));
    writer.name("depth");
    writer.number(line->depth);
    writer.name("offset");
    writer.number(line->offset);
    writer.name("bytes");
    writer.hex(wire.subspan(line->offset, line->byte_count));
    writer.name("path");
    writer.string(line->path);
    writer.name("text");
    writer.string(line->text);
    writer.close();
    return 0;
}

void explain_as_json(const message_source &source, const char *message, output_file &output)
{
    const std::span<const uint8_t> wire = source.message();
    mava_tum_inspect_verdict verdict{};
    mava_tum_inspect_judge(message, wire.data(), wire.size(), &verdict);
    json_writer writer(output, layout_of(source));
    open_message(writer, source.place(), message, wire.size());
    write_verdict(writer, verdict.result, verdict.path, verdict.offset, verdict.text);
    writer.name("lines");
    writer.open_array();
    json_line_writer lines{wire, writer};
    mava_tum_inspect_explain(message, wire.data(), wire.size(), write_json_line, &lines, nullptr);
    writer.close();
    writer.close();
    output.put('\n');
}

// ---- for people ----------------------------------------------------------------------------------------------

void explain_in_words(const message_source &source, const char *message, const colours &colour, output_file &output)
{
    output.write(frame_heading(source, message));
    const std::span<const uint8_t> wire = source.message();
    line_writer writer{wire, colour, output};
    mava_tum_inspect_verdict verdict{};
    mava_tum_inspect_explain(message, wire.data(), wire.size(), write_line, &writer, &verdict);
    if (verdict.result == MAVA_TUM_OK)
        output.write(std::string(verdict.text) + "\n");
}

} // namespace

exit_status run_explain(const command_options &options)
{
    const mava_tum_inspect::message_description &message = message_named(options.name);
    message_source source(options.input, plausibility_of(message));
    output_file output(options.output);
    source.read_beside(output);
    const colours colour(options.colour, output.is_terminal());
    fault_report report("explain", message);
    while (source.next()) {
        if (options.as_json)
            explain_as_json(source, message.name, output);
        else
            explain_in_words(source, message.name, colour, output);
        report.look_at(source);
    }
    output.commit();
    return report.finish();
}

} // namespace mava_tum_cli
