#include "record_hash.h"

#include "model/raw_memory.h"

#include <algorithm>

namespace mava_tum_behaviour
{

using namespace mava_tum_model;

namespace
{

constexpr std::size_t largest_record = 656;

enum kind_of_place : uint64_t { nowhere, in_input, in_blocks, in_other_blocks, fresh, elsewhere };

uint64_t name(kind_of_place kind, uint64_t block, uint64_t offset)
{
    return kind << 60 | block << 32 | offset;
}

void name_pointers(const message &of, uint8_t *record, const known_places &places)
{
    for (const field &member : of.fields) {
        switch (member.kind) {
        case field_kind::bytes:
        case field_kind::text:
        case field_kind::record_array:
        case field_kind::text_array:
            store(record, member.offset, name_of(load_pointer(record, member.offset), places));
            break;
        case field_kind::record:
            name_pointers(*member.nested, record + member.offset, places);
            break;
        default:
            break;
        }
    }
}

// How many of the `wanted` bytes at `pointer` are inside a block.
uint64_t readable(const uint8_t *pointer, uint64_t wanted, const known_places &places)
{
    block_arena::place where = places.blocks.place_of(pointer);
    if (where.block == 0)
        where = places.other_blocks.place_of(pointer);
    return std::min(where.bytes_left, wanted);
}

void add_text(call_hash &hash, const uint8_t *text, const known_places &places)
{
    hash.add(name_of(text, places));
    hash.add_bytes(text, readable(text, ~uint64_t{0}, places));
}

void add_array(call_hash &hash, const field &member, const uint8_t *record, const known_places &places)
{
    const uint8_t *array = load_pointer(record, member.offset);
    const uint64_t size = element_bytes(member);
    const uint64_t count = readable(array, load<uint32_t>(record, member.count_offset) * size, places) / size;
    for (uint64_t index = 0; index < count; ++index) {
        const uint8_t *element = array + index * size;
        if (member.kind == field_kind::text_array)
            add_text(hash, load_pointer(element, 0), places);
        else
            add_record(hash, *member.nested, element, places);
    }
}

void add_contents(call_hash &hash, const message &of, const uint8_t *record, const known_places &places)
{
    for (const field &member : of.fields) {
        const uint8_t *pointer = record + member.offset;
        switch (member.kind) {
        case field_kind::bytes:
            pointer = load_pointer(record, member.offset);
            hash.add_bytes(pointer, readable(pointer, load_bytes_length(record, member), places));
            break;
        case field_kind::text:
            add_text(hash, load_pointer(record, member.offset), places);
            break;
        case field_kind::record:
            add_contents(hash, *member.nested, pointer, places);
            break;
        case field_kind::record_array:
        case field_kind::text_array:
            add_array(hash, member, record, places);
            break;
        default:
            break;
        }
    }
}

} // namespace

uint64_t name_of(const void *pointer, const known_places &places)
{
    const uint8_t *at = static_cast<const uint8_t *>(pointer);
    uint8_t never_set[sizeof at];
    std::memset(never_set, fresh_byte, sizeof never_set);
    if (at == nullptr)
        return name(nowhere, 0, 0);
    if (std::memcmp(&at, never_set, sizeof at) == 0)
        return name(fresh, 0, 0);
    const uint8_t *input = places.input.data();
    if (at >= input && at <= input + places.input.size())
        return name(in_input, 0, static_cast<uint64_t>(at - input));
    const block_arena::place own = places.blocks.place_of(at);
    if (own.block != 0)
        return name(in_blocks, own.block, own.offset);
    const block_arena::place other = places.other_blocks.place_of(at);
    return other.block != 0 ? name(in_other_blocks, other.block, other.offset) : name(elsewhere, 0, 0);
}

void add_record(call_hash &hash, const message &of, const uint8_t *record, const known_places &places)
{
    uint8_t named[largest_record];
    std::memcpy(named, record, of.record_bytes);
    name_pointers(of, named, places);
    hash.add_bytes(named, of.record_bytes);
    add_contents(hash, of, record, places);
}

} // namespace mava_tum_behaviour
