#include "app/record_json.h"

#include "record_number.h"

#include <algorithm>
#include <cstring>

namespace mava_tum_cli
{

namespace
{

json json_of_char_array(const std::byte *from, size_t size_bytes)
{
    const auto *text = reinterpret_cast<const char *>(from);
    return json_of_text({text, strnlen(text, size_bytes)});
}

json json_of_element(const record_member &member, const std::byte *element)
{
    if (member.kind == member_kind::numbers)
        return load_number(element, member.element_bytes);
    if (member.kind == member_kind::texts)
        return json_of_char_array(element, member.element_bytes);
    return json_of_record(*member.layout, element);
}

// A count above the number of slots means all of them.
size_t used_slots(const record_member &member, const std::byte *record)
{
    if (member.count_bytes == 0)
        return member.slots();
    return std::min<size_t>(load_number(record + member.count_offset, member.count_bytes), member.slots());
}

json json_of_member(const record_member &member, const std::byte *record)
{
    const std::byte *from = record + member.offset;
    switch (member.kind) {
    case member_kind::number:
        return load_number(from, member.size_bytes);
    case member_kind::ipv4:
        return json_of_ipv4(static_cast<uint32_t>(load_number(from, member.size_bytes)));
    case member_kind::ipv6:
    case member_kind::bytes:
        return json_of_bytes(
            {reinterpret_cast<const uint8_t *>(from), member.size_bytes}, member.kind == member_kind::ipv6);
    case member_kind::text:
        return json_of_char_array(from, member.size_bytes);
    case member_kind::record:
        return json_of_record(*member.layout, from);
    default:
        break;
    }
    json elements = json::array();
    for (size_t slot = 0; slot < used_slots(member, record); ++slot)
        elements.push_back(json_of_element(member, from + slot * member.element_bytes));
    return elements;
}

} // namespace

json json_of_record(const record_layout &layout, const std::byte *record)
{
    json object = json::object();
    for (const record_member &member : layout.members)
        if (is_in_json(member))
            object[std::string(member.name)] = json_of_member(member, record);
    return object;
}

} // namespace mava_tum_cli
