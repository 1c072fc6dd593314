#include "commands/all_commands.h"
#include "commands/find_by_name.h"
#include "commands/wire_writer.h"
#include "message/message_from_json.h"

namespace mava_tum_cli
{

exit_status run_encode(const command_options &options)
{
    const mava_tum_inspect::message_description &message = message_named(options.name);
    write_all_documents(options, [&message](const json &document) { return encode_json(message, document); });
    return exit_ok;
}

} // namespace mava_tum_cli
