#include "app/called_adapters.h"
#include "bad_use.h"
#include "commands/all_commands.h"
#include "commands/decode_verdict.h"
#include "commands/find_by_name.h"
#include "commands/wire_writer.h"
#include "input/message_source.h"
#include "message/message_head.h"
#include "output/output_file.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

using mava_tum_inspect::adapter_description;

// "qos (bit 0 of feature_mask is not set), field_7"
std::string in_words(const std::vector<unsent_member> &unsent)
{
    std::string words;
    for (const unsent_member &member : unsent) {
        words += (words.empty() ? "" : ", ") + member.name;
        if (member.feature_bit)
            words += fmt::format(" (bit {} of feature_mask is not set)", *member.feature_bit);
    }
    return words;
}

exit_status run_app_encode(const adapter_description &adapter, const command_options &options)
{
    std::string unsent; // of the first record that has such members
    write_all_documents(options, [&](const json &document) {
        byte_vector wire = encode_record(adapter, document);
        if (unsent.empty())
            unsent = in_words(unsent_members(adapter, document, wire));
        return wire;
    });
    if (!unsent.empty())
        print_error("app", "these members are not sent: " + unsent);
    return exit_ok;
}

// What is broken is printed as far as it arrives: that is what the application sees. One document a line when there are
// several messages.
exit_status run_app_decode(const adapter_description &adapter, const command_options &options)
{
    const mava_tum_inspect::message_description &message = *adapter.carried;
    message_source source(options.input, plausibility_of(message));
    output_file output(options.output);
    source.read_beside(output);
    fault_report report("app", message);
    while (source.next()) {
        json_writer writer(output, layout_of(source));
        write_json(writer, decode_record(adapter, source.message()));
        output.put('\n');
        report.look_at(source);
    }
    output.commit();
    return report.finish();
}

} // namespace

exit_status run_app(const command_options &options)
{
    const adapter_description &adapter = adapter_named(options.name);
    return options.direction == "encode" ? run_app_encode(adapter, options) : run_app_decode(adapter, options);
}

} // namespace mava_tum_cli
