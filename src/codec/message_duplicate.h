// The duplicate of a whole record. It never stops early: what cannot be copied is left empty and absent.
#pragma once

#include "codec/operations.h"
#include "mava_tum/codec_contract.h"

namespace mava_tum
{

template <class Record, class... Field>
[[gnu::always_inline]] inline bool copy_fields(
    field_list<Field...>, Record &destination, const Record &source, const block_source &blocks)
{
    bool complete = true;
    uint32_t lost = 0;
    ((complete &= Field::copy(destination, source, blocks, lost)), ...);
    set_presence(destination, own_bits<Record>, source.presence_mask & ~lost);
    return complete;
}

template <class Record>
[[gnu::noinline]] bool copy_record(Record &destination, const Record &source, const block_source &blocks)
{
    return copy_fields(fields_of<Record>{}, destination, source, blocks);
}

// The exported duplicates.
template <class Record>
int32_t duplicate_message(Record &destination, const Record &source, const block_source &blocks)
{
    return copy_record(destination, source, blocks) ? MAVA_TUM_OK : MAVA_TUM_NO_MEMORY;
}

} // namespace mava_tum
