// Application records as JSON: every member by its name, a list as an array of the elements that are used.
#pragma once

#include "catalogue.h"
#include "json/json_values.h"

#include <cstddef>
#include <span>

namespace mava_tum_cli
{

using mava_tum_catalogue::member_kind;
using mava_tum_catalogue::record_layout;
using mava_tum_catalogue::record_member;

// Counts follow from the elements, and reserved members are neither read nor written.
constexpr bool is_in_json(const record_member &member)
{
    return member.kind != member_kind::count && member.kind != member_kind::reserved;
}

// `record` is a record of that layout.
json json_of_record(const record_layout &layout, const std::byte *record);

// Members that `value` does not name become zero. Throws bad_use that names the path.
void record_of_json(const record_layout &layout, const json &value, const std::string &path, std::byte *record);

} // namespace mava_tum_cli
