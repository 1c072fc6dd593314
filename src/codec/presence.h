// A record's presence mask: field n owns bit n-1; the bits above the last field are reserved; never modified.
#pragma once

#include <cstdint>

namespace mava_tum
{

constexpr uint32_t presence_bit(uint32_t field_number)
{
    return 1u << (field_number - 1);
}

// The bits of fields 1 to `field_count`.
constexpr uint32_t presence_bits_up_to(uint32_t field_count)
{
    return field_count == 32 ? ~0u : (1u << field_count) - 1;
}

// Sets bits of a record that has been reset.
template <class Record>
[[gnu::always_inline]] inline void add_presence(Record &record, uint32_t present)
{
    using mask = decltype(record.presence_mask);
    record.presence_mask = static_cast<mask>(record.presence_mask | present);
}

// Replaces the own bits of `record` and keeps the reserved ones.
template <class Record>
[[gnu::always_inline]] inline void set_presence(Record &record, uint32_t own_bits, uint32_t present)
{
    using mask = decltype(record.presence_mask);
    record.presence_mask = static_cast<mask>((record.presence_mask & ~own_bits) | (present & own_bits));
}

} // namespace mava_tum
