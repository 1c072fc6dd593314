#include "commands/all_commands.h"
#include "commands/decode_verdict.h"
#include "commands/find_by_name.h"
#include "commands/frame_heading.h"
#include "message/decoded_json.h"
#include "message/field_tree.h"
#include "output/output_file.h"

namespace mava_tum_cli
{

exit_status run_decode(const command_options &options)
{
    const mava_tum_inspect::message_description &message = message_named(options.name);
    message_source source(options.file, options.format, plausibility_of(message));
    output_file output(options.output);
    source.show_progress_beside(output);
    const colours colour(options.colour, output.is_terminal());
    fault_report report("decode", message);
    while (source.next()) {
        if (options.as_json) {
            output.write(decode_to_json(message, source.message(), source.has_frames()).text + "\n");
        } else {
            output.write(frame_heading(source, message.name));
            print_tree(message, source.message(), colour, output);
        }
        report.look_at(source);
    }
    output.commit();
    return report.finish();
}

} // namespace mava_tum_cli
