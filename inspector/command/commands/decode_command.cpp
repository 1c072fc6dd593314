#include "commands/all_commands.h"
#include "commands/decode_verdict.h"
#include "commands/find_by_name.h"
#include "message/decoded_json.h"
#include "message/field_tree.h"
#include "message/message_head.h"
#include "output/output_file.h"

namespace mava_tum_cli
{

namespace
{

json_style style_of(const command_options &options, const message_source &source)
{
    return {layout_of(source), options.with_fields, !options.without_absent};
}

} // namespace

exit_status run_decode(const command_options &options)
{
    const mava_tum_inspect::message_description &message = message_named(options.name);
    message_source source(options.input, plausibility_of(message));
    output_file output(options.output);
    source.read_beside(output);
    const colours colour(options.colour, output.is_terminal());
    const json_style style = style_of(options, source);
    tree_texts texts(colour, !options.without_absent);
    fault_report report("decode", message);
    while (source.next()) {
        if (options.as_json) {
            report.add(source, print_json(message, source.message(), source.place(), style, output));
            continue;
        }
        output.write(frame_heading(source, message.name));
        report.add(source, print_tree(message, source.message(), texts, output));
    }
    output.commit();
    return report.finish();
}

} // namespace mava_tum_cli
