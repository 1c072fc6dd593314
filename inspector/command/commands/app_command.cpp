#include "app/record_json.h"
#include "commands/all_commands.h"
#include "commands/decode_verdict.h"
#include "commands/find_by_name.h"
#include "commands/layout_of.h"
#include "commands/wire_writer.h"
#include "input/message_source.h"
#include "output/output_file.h"

#include <cstddef>
#include <memory>

namespace mava_tum_cli
{

namespace
{

using mava_tum_inspect::adapter_description;

// Aligned for any record.
std::unique_ptr<std::byte[]> block_for(const record_layout &layout)
{
    return std::make_unique<std::byte[]>(layout.size_bytes);
}

byte_vector encode_record(const adapter_description &adapter, const json &document)
{
    const auto record = block_for(*adapter.sent);
    record_of_json(*adapter.sent, document, "", record.get());
    byte_vector wire(adapter.encode(record.get(), nullptr, 0));
    adapter.encode(record.get(), wire.data(), static_cast<uint32_t>(wire.size()));
    return wire;
}

json decode_record(const adapter_description &adapter, std::span<const uint8_t> wire)
{
    const auto record = block_for(*adapter.received);
    adapter.decode(wire.data(), static_cast<uint32_t>(wire.size()), record.get());
    return json_of_record(*adapter.received, record.get());
}

exit_status run_app_encode(const adapter_description &adapter, const command_options &options)
{
    write_all_documents(options, [&adapter](const json &document) { return encode_record(adapter, document); });
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
