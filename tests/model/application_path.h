// From the path of a member to the field of the message.
#pragma once

#include "model/application_layout.h"

#include <cstdlib>
#include <iterator>

namespace mava_tum_model
{

inline const field &field_numbered(const message &of, uint8_t number)
{
    for (const field &member : of.fields) {
        if (member.number == number)
            return member;
    }
    std::abort(); // a mistake in the tables
}

// The innermost message, the offset of its record in the outer one, and the field.
struct path_end {
    const message *of;
    uint32_t record_offset;
    const field *leaf;
};

inline path_end walk(const message &of, const field_path &path)
{
    path_end end = {&of, 0, &field_numbered(of, path.numbers[0])};
    for (std::size_t step = 1; step < std::size(path.numbers) && path.numbers[step] != 0; ++step) {
        end.record_offset += end.leaf->offset;
        end.of = end.leaf->nested;
        end.leaf = &field_numbered(*end.of, path.numbers[step]);
    }
    return end;
}

} // namespace mava_tum_model
