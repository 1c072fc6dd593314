#include "message/field_difference.h"

#include <unordered_map>

namespace mava_tum_cli
{

namespace
{

// Values by path.
using field_index = std::unordered_map<std::string, std::string>;

field_index index_of(const std::vector<listed_field> &fields)
{
    field_index index;
    for (const listed_field &field : fields)
        index.emplace(field.path, field.value);
    return index;
}

} // namespace

std::vector<field_difference> differences_of(
    const mava_tum_inspect::message_description &message, wire_bytes first, wire_bytes second)
{
    const std::vector<listed_field> fields = list_fields(message, first);
    const std::vector<listed_field> others = list_fields(message, second);
    const field_index in_first = index_of(fields);
    const field_index in_second = index_of(others);
    std::vector<field_difference> differences;
    for (const listed_field &field : fields) {
        const auto other = in_second.find(field.path);
        if (other == in_second.end())
            differences.push_back({field.path, field.value, std::nullopt});
        else if (other->second != field.value)
            differences.push_back({field.path, field.value, other->second});
    }
    for (const listed_field &field : others)
        if (!in_first.contains(field.path))
            differences.push_back({field.path, std::nullopt, field.value});
    return differences;
}

} // namespace mava_tum_cli
