#include "app/record_json.h"

#include "bad_use.h"
#include "record_number.h"

#include <algorithm>
#include <cstring>
#include <fmt/format.h>
#include <limits>

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

uint64_t largest_of(size_t size_bytes)
{
    return std::numeric_limits<uint64_t>::max() >> (64 - 8 * size_bytes);
}

void store_bytes(const json &value, const std::string &path, size_t size_bytes, std::byte *to)
{
    const byte_vector bytes = bytes_of_json(value, path);
    if (bytes.size() != size_bytes)
        throw bad_use(fmt::format("{}: expected {} bytes, found {}", path, size_bytes, bytes.size()));
    std::memcpy(to, bytes.data(), bytes.size());
}

void store_text(const json &value, const std::string &path, size_t size_bytes, std::byte *to)
{
    const std::string text = text_of_json(value, path);
    if (text.size() >= size_bytes)
        throw bad_use(
            fmt::format("{}: expected a text of at most {} bytes, found {}", path, size_bytes - 1, text.size()));
    std::memcpy(to, text.c_str(), text.size() + 1);
}

void store_element(const record_member &member, const json &value, const std::string &path, std::byte *to)
{
    if (member.kind == member_kind::numbers)
        store_number(to, member.element_bytes, number_of_json(value, path, largest_of(member.element_bytes)));
    else if (member.kind == member_kind::texts)
        store_text(value, path, member.element_bytes, to);
    else
        record_of_json(*member.layout, value, path, to);
}

void store_elements(const record_member &member, const json &value, const std::string &path, std::byte *record)
{
    if (!value.is_array() || value.size() > member.slots())
        refuse_value(path, fmt::format("an array of at most {} elements", member.slots()), value);
    for (size_t slot = 0; slot < value.size(); ++slot)
        store_element(
            member, value[slot], element_path(path, slot), record + member.offset + slot * member.element_bytes);
    if (member.count_bytes != 0)
        store_number(record + member.count_offset, member.count_bytes, value.size());
}

void store_member(const record_member &member, const json &value, const std::string &path, std::byte *record)
{
    std::byte *to = record + member.offset;
    switch (member.kind) {
    case member_kind::number:
        return store_number(to, member.size_bytes, number_of_json(value, path, largest_of(member.size_bytes)));
    case member_kind::ipv4:
        return store_number(to, member.size_bytes, ipv4_of_json(value, path));
    case member_kind::ipv6:
    case member_kind::bytes:
        return store_bytes(value, path, member.size_bytes, to);
    case member_kind::text:
        return store_text(value, path, member.size_bytes, to);
    case member_kind::record:
        return record_of_json(*member.layout, value, path, to);
    default:
        return store_elements(member, value, path, record);
    }
}

const record_member &member_named(const record_layout &layout, const std::string &name, const std::string &path)
{
    std::string known;
    for (const record_member &member : layout.members) {
        if (!is_in_json(member))
            continue;
        if (member.name == name)
            return member;
        known += (known.empty() ? "" : ", ") + std::string(member.name);
    }
    throw bad_use(fmt::format("{}: {} has no such member; it has {}", path, layout.name, known));
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

void record_of_json(const record_layout &layout, const json &value, const std::string &path, std::byte *record)
{
    if (!value.is_object())
        refuse_value(path, fmt::format("an object with the members of {}", layout.name), value);
    std::memset(record, 0, layout.size_bytes);
    for (const auto &[name, member_value] : value.items()) {
        const std::string place = member_path(path, name);
        store_member(member_named(layout, name, place), member_value, place, record);
    }
}

} // namespace mava_tum_cli
