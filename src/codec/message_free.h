// The free of a whole record. Lengths of bytes fields, scalars and presence bits stay as they are.
#pragma once

#include "codec/operations.h"

namespace mava_tum
{

template <class Record, class... Field>
[[gnu::always_inline]] inline void release_fields(field_list<Field...>, Record &record, const block_sink &blocks)
{
    (Field::release(record, blocks), ...);
}

// Inlined into the free of the record around it: most records own nothing, the others a few pointers.
template <class Record>
[[gnu::always_inline]] inline void release_record(Record &record, const block_sink &blocks)
{
    release_fields(fields_of<Record>{}, record, blocks);
}

} // namespace mava_tum
