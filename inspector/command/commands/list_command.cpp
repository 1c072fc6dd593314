#include "commands/all_commands.h"
#include "commands/find_by_name.h"
#include "output/output_file.h"
#include "json/json_values.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

using mava_tum_inspect::adapter_description;
using mava_tum_inspect::field_description;
using mava_tum_inspect::message_description;

std::string adapters_of(const message_description &message)
{
    std::string names;
    for (const adapter_description &adapter : mava_tum_inspect::all_adapters())
        if (adapter.carried == &message)
            names += (names.empty() ? "" : ", ") + std::string(adapter.name);
    return names;
}

// What a field holds, beside its kind.
std::string content_of(const field_description &field)
{
    if (field.nested != nullptr)
        return field.nested->name;
    if (field.kind == mava_tum_inspect::field_kind::varint)
        return fmt::format("{} bits", field.value_bits);
    if (field.address == mava_tum_inspect::address_kind::ipv4)
        return "IPv4 address";
    return field.address == mava_tum_inspect::address_kind::ipv6 ? "IPv6 address" : "";
}

std::string line_without_trailing_blanks(std::string line)
{
    line.erase(line.find_last_not_of(' ') + 1);
    return line + "\n";
}

void list_messages(output_file &output)
{
    output.write(fmt::format("{:<28}{:>6}  {}\n", "message", "fields", "adapters"));
    for (const message_description &message : mava_tum_inspect::all_messages())
        output.write(line_without_trailing_blanks(
            fmt::format("{:<28}{:>6}  {}", message.name, message.fields.size(), adapters_of(message))));
}

void list_fields(const message_description &message, output_file &output)
{
    output.write(fmt::format("{:>5}  {:<18}{:<18}{}\n", "field", "name", "kind", "content"));
    for (const field_description &field : message.fields)
        output.write(line_without_trailing_blanks(fmt::format("{:>5}  {:<18}{:<18}{}", field.number, field.name,
            mava_tum_inspect::kind_name(field.kind), content_of(field))));
}

json json_of_field(const field_description &field)
{
    json object{{"number", field.number}, {"name", field.name}, {"kind", mava_tum_inspect::kind_name(field.kind)}};
    const std::string content = content_of(field);
    if (!content.empty())
        object[field.nested != nullptr ? "message" : "content"] = content;
    return object;
}

json json_of_message(const message_description &message)
{
    json fields = json::array();
    for (const field_description &field : message.fields)
        fields.push_back(json_of_field(field));
    return {{"name", message.name}, {"fields", fields}};
}

void list_as_json(const command_options &options, output_file &output)
{
    if (!options.name.empty()) {
        output.write(json_of_message(message_named(options.name)).dump(2) + "\n");
        return;
    }
    json messages = json::array();
    for (const message_description &message : mava_tum_inspect::all_messages())
        messages.push_back(json_of_message(message));
    output.write(messages.dump(2) + "\n");
}

} // namespace

exit_status run_list(const command_options &options)
{
    output_file output(options.output);
    if (options.as_json)
        list_as_json(options, output);
    else if (options.name.empty())
        list_messages(output);
    else
        list_fields(message_named(options.name), output);
    output.commit();
    return exit_ok;
}

} // namespace mava_tum_cli
