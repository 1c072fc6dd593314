#include "commands/all_commands.h"
#include "commands/find_by_name.h"
#include "commands/write_wire.h"
#include "message/message_from_json.h"
#include "json/json_file.h"

namespace mava_tum_cli
{

exit_status run_encode(const command_options &options)
{
    const mava_tum_inspect::message_description &message = message_named(options.name);
    const json document = read_json_file(options.file);
    write_wire(at_place(options.file, [&] { return encode_json(message, document); }), options);
    return exit_ok;
}

} // namespace mava_tum_cli
