// Members of records as raw memory: a base address and an offset, read and written bytewise.
#pragma once

#include "model/message_tables.h"

#include <cstdint>
#include <cstring>

namespace mava_tum_model
{

template <class value_type>
value_type load(const uint8_t *record, uint32_t offset)
{
    value_type value;
    std::memcpy(&value, record + offset, sizeof value);
    return value;
}

template <class value_type>
void store(uint8_t *record, uint32_t offset, value_type value)
{
    std::memcpy(record + offset, &value, sizeof value);
}

// An integer of `bytes` bytes, in the byte order of the machine, as in the record. Storing keeps the low bytes.
inline void store_number(uint8_t *at, uint64_t value, uint32_t bytes)
{
    switch (bytes) {
    case 1:
        store(at, 0, static_cast<uint8_t>(value));
        break;
    case 2:
        store(at, 0, static_cast<uint16_t>(value));
        break;
    case 4:
        store(at, 0, static_cast<uint32_t>(value));
        break;
    default:
        store(at, 0, value);
    }
}

inline uint64_t load_number(const uint8_t *at, uint32_t bytes)
{
    switch (bytes) {
    case 1:
        return load<uint8_t>(at, 0);
    case 2:
        return load<uint16_t>(at, 0);
    case 4:
        return load<uint32_t>(at, 0);
    default:
        return load<uint64_t>(at, 0);
    }
}

inline uint8_t *load_pointer(const uint8_t *record, uint32_t offset)
{
    return load<uint8_t *>(record, offset);
}

// A bytes field is a pointer and, at offset 8, its 64-bit length.
constexpr uint32_t bytes_length_offset = 8;

inline uint64_t load_bytes_length(const uint8_t *record, const field &of)
{
    return load<uint64_t>(record, of.offset + bytes_length_offset);
}

inline uint32_t load_mask(const message &of, const uint8_t *record)
{
    switch (of.mask_bytes) {
    case 1:
        return load<uint8_t>(record, of.mask_offset);
    case 2:
        return load<uint16_t>(record, of.mask_offset);
    default:
        return load<uint32_t>(record, of.mask_offset);
    }
}

inline void store_mask(const message &of, uint8_t *record, uint32_t mask)
{
    switch (of.mask_bytes) {
    case 1:
        store(record, of.mask_offset, static_cast<uint8_t>(mask));
        break;
    case 2:
        store(record, of.mask_offset, static_cast<uint16_t>(mask));
        break;
    default:
        store(record, of.mask_offset, mask);
    }
}

inline uint32_t bit_of(const field &of)
{
    return uint32_t{1} << (of.number - 1);
}

inline bool is_present(const message &in, const uint8_t *record, const field &of)
{
    return (load_mask(in, record) & bit_of(of)) != 0;
}

inline void set_present(const message &in, uint8_t *record, const field &of, bool present)
{
    const uint32_t mask = load_mask(in, record);
    store_mask(in, record, present ? mask | bit_of(of) : mask & ~bit_of(of));
}

inline uint32_t element_bytes(const field &of)
{
    return of.kind == field_kind::text_array ? static_cast<uint32_t>(sizeof(char *)) : of.nested->record_bytes;
}

} // namespace mava_tum_model
