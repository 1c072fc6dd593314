// Every message, application record and adapter of the public headers: as types, and as tables for programs that select
// one at run time.
#pragma once

#include "catalogue_rows.h"

namespace mava_tum_catalogue
{

// In the order of codec_contract.h.
constexpr std::span<const message> all_messages()
{
    return tables::messages;
}

constexpr std::span<const adapter> all_adapters()
{
    return tables::adapters;
}

template <class Record>
constexpr const message &message_of()
{
    return tables::messages[message_row<Record>::place];
}

template <class Record>
constexpr const record_layout &layout_of()
{
    return tables::records[record_place<Record>];
}

// Null if there is none. `name` is without mava_tum_.
constexpr const message *find_message(std::string_view name)
{
    for (const message &each : all_messages())
        if (each.name == name)
            return &each;
    return nullptr;
}

// Null if there is none. `name` is as in tum_nal_data_gpb_encode_tum_<name>.
constexpr const adapter *find_adapter(std::string_view name)
{
    for (const adapter &each : all_adapters())
        if (each.name == name)
            return &each;
    return nullptr;
}

} // namespace mava_tum_catalogue
