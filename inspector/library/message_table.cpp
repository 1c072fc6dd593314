#include "inspector/library/message_table.h"

#include "codec/wire_types.h"

namespace mava_tum_inspect
{

namespace
{

bool carries_alone(const adapter_description &adapter)
{
    std::size_t carriers = 0;
    for (const adapter_description &other : all_adapters())
        carriers += other.carried == adapter.carried ? 1 : 0;
    return carriers == 1;
}

} // namespace

const field_description *find_field(const message_description &message, std::string_view name)
{
    for (const field_description &field : message.fields)
        if (field.name == name)
            return &field;
    return nullptr;
}

const adapter_description *find_adapter(std::string_view name)
{
    if (const adapter_description *adapter = mava_tum_catalogue::find_adapter(name))
        return adapter;
    for (const adapter_description &adapter : all_adapters())
        if (adapter.carried->name == name && carries_alone(adapter))
            return &adapter;
    return nullptr;
}

const member_limit *find_limit(std::span<const member_limit> members, uint32_t number)
{
    for (const member_limit &member : members)
        if (member.number == number)
            return &member;
    return nullptr;
}

const char *kind_name(field_kind kind)
{
    switch (kind) {
    case field_kind::varint:
        return "varint";
    case field_kind::fixed32:
        return "fixed32";
    case field_kind::bytes:
        return "bytes";
    case field_kind::text:
        return "text";
    case field_kind::record:
        return "record";
    case field_kind::record_array:
        return "array of records";
    case field_kind::text_array:
        return "array of texts";
    }
    return "";
}

uint32_t wire_type_number(field_kind kind)
{
    if (kind == field_kind::varint)
        return static_cast<uint32_t>(mava_tum::wire_type::varint);
    if (kind == field_kind::fixed32)
        return static_cast<uint32_t>(mava_tum::wire_type::fixed32);
    return static_cast<uint32_t>(mava_tum::wire_type::length_delimited);
}

} // namespace mava_tum_inspect
