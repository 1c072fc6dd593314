#include "random_documents.h"

#include <string>

namespace mava_tum_test
{

using mava_tum_cli::member_kind;
using mava_tum_cli::record_layout;
using mava_tum_cli::record_member;
using mava_tum_inspect::address_kind;
using mava_tum_inspect::field_description;
using mava_tum_inspect::field_kind;
using mava_tum_inspect::message_description;

size_t random_documents::below(size_t limit)
{
    return m_random() % limit;
}

uint64_t random_documents::number(unsigned bits)
{
    const uint64_t wide = uint64_t{m_random()} << 32 | m_random();
    return wide >> (64 - bits) >> below(bits);
}

json random_documents::ipv4()
{
    return mava_tum_cli::json_of_ipv4(m_random());
}

json random_documents::ipv6()
{
    return "2001:db8::" + std::to_string(1 + below(9));
}

json random_documents::bytes(size_t count)
{
    mava_tum_cli::byte_vector content(count);
    for (uint8_t &byte : content)
        byte = static_cast<uint8_t>(m_random());
    return mava_tum_cli::json_of_bytes(content, false);
}

// Some are no UTF-8.
json random_documents::text(size_t longest)
{
    const char *const parts[] = {"a", "\"", "\\", "\n", "\xC3\xA9", "user@example.com", "/", "\xFF"};
    std::string content;
    for (size_t count = below(6); count != 0; --count) {
        const std::string part = parts[below(std::size(parts))];
        if (content.size() + part.size() <= longest)
            content += part;
    }
    return mava_tum_cli::json_of_text(content);
}

json random_documents::message(const message_description &message)
{
    json document = json::object();
    for (const field_description &each : message.fields)
        if (below(2) == 0)
            document[each.name] = field(each);
    return document;
}

json random_documents::field(const field_description &field)
{
    switch (field.kind) {
    case field_kind::varint:
        return number(field.value_bits);
    case field_kind::fixed32:
        return ipv4();
    case field_kind::bytes:
        return field.address == address_kind::ipv6 ? ipv6() : bytes(below(20));
    case field_kind::text:
        return text(200);
    case field_kind::record:
        return message(*field.nested);
    default:
        break;
    }
    json array = json::array();
    for (size_t count = 1 + below(3); count != 0; --count)
        array.push_back(field.nested != nullptr ? message(*field.nested) : text(200));
    return array;
}

json random_documents::record(const record_layout &layout)
{
    json document = json::object();
    for (const record_member &each : layout.members)
        if (mava_tum_cli::is_in_json(each))
            document[std::string(each.name)] = member(each);
    return document;
}

json random_documents::member(const record_member &member)
{
    switch (member.kind) {
    case member_kind::number:
        return number(static_cast<unsigned>(8 * member.size_bytes));
    case member_kind::ipv4:
        return ipv4();
    case member_kind::ipv6:
        return ipv6();
    case member_kind::bytes:
        return bytes(member.size_bytes);
    case member_kind::text:
        return text(member.size_bytes - 1);
    case member_kind::record:
        return record(*member.layout);
    default:
        return elements(member);
    }
}

json random_documents::elements(const record_member &member)
{
    json array = json::array();
    const size_t count = member.kind == member_kind::numbers ? member.slots() : below(member.slots() + 1);
    for (size_t i = 0; i < count; ++i) {
        if (member.kind == member_kind::numbers)
            array.push_back(number(32));
        else
            array.push_back(
                member.kind == member_kind::texts ? text(member.element_bytes - 1) : record(*member.layout));
    }
    return array;
}

} // namespace mava_tum_test
