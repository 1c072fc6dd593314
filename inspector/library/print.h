// Fields that occur several times in a record where one counts: the last one replaces the others. JSON that is written
// as the bytes come has to know it at the first.
#pragma once

#include "inspector/library/wire_walk.h"
#include "inspector/library/field_value.h"

#include <array>
#include <vector>

namespace mava_tum_cli
{

class last_occurrences
{
public:
    // `may_repeat` false: no field of the message occurs twice, and nothing has to be looked for.
    last_occurrences(const mava_tum_inspect::message_description &message, wire_bytes wire, bool may_repeat);

    // A record begins, whose fields come next.
    void enter(const mava_tum_inspect::occurrence &record);
    void leave();

    // Of a field of the record that was entered last.
    bool is_last(const mava_tum_inspect::occurrence &at) const;

private:
    static constexpr size_t numbers = 33; // of fields, from 1: each owns a bit of a mask
    using offsets = std::array<uint64_t, numbers>;

    void look_through(const mava_tum_inspect::message_description &record, uint64_t begin, uint64_t bytes);

    wire_bytes m_wire;
    bool m_may_repeat;
    std::vector<offsets> m_last; // of each record that is open
};

} // namespace mava_tum_cli
