// All messages of the catalogue, each with the data for the sweeps.
#pragma once

#include "mava_tum.h"
#include "support/record_calls.h"
#include "sweeps/record_access.h"
#include "sweeps/record_value.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mava_tum_test
{

// Name, record size and exported functions come from the catalogue, the fields from message_fields.h.
struct message : mava_tum_catalogue::message {
    const record_value *skeleton = nullptr;

    // See record_access.h.
    record_value (*read)(const void *record) = nullptr;
    record_value (*blank)(const void *record) = nullptr;
    void (*fill)(void *record, const record_value &value, record_memory &memory) = nullptr;
    std::vector<mava_tum_bytes> (*collect_bytes)(const void *record) = nullptr;
};

const std::vector<message> &all_messages();

// The messages that a test applies to.
std::vector<message> messages_where(bool (*applies)(const message &tested));

// Names one test per message after it.
inline std::string name_of_message(const testing::TestParamInfo<message> &info)
{
    return info.param.name;
}

inline void PrintTo(const message &value, std::ostream *stream)
{
    *stream << value.name;
}

template <class record_type>
message message_of()
{
    message result{mava_tum_catalogue::message_of<record_type>()};
    result.skeleton = &skeleton_of<record_type>();
    result.read = [](const void *record) { return read_record(*static_cast<const record_type *>(record)); };
    result.blank = [](const void *record) { return blank_of(*static_cast<const record_type *>(record)); };
    result.fill = [](void *record, const record_value &value, record_memory &memory) {
        fill_record(*static_cast<record_type *>(record), value, memory);
    };
    result.collect_bytes = [](const void *record) {
        return mava_tum_test::collect_bytes(*static_cast<const record_type *>(record));
    };
    return result;
}

} // namespace mava_tum_test
