#include "model/record_changes.h"

#include "model/raw_memory.h"

namespace mava_tum_model
{

namespace
{

uint8_t constant_bytes[] = "sixteen constant bytes";

void change_bytes(const field &member, uint8_t *record, random_source &random)
{
    const uint64_t length = load_bytes_length(record, member);
    if (load_pointer(record, member.offset) == nullptr) {
        store(record, member.offset, static_cast<uint8_t *>(constant_bytes));
        store(record, member.offset + bytes_length_offset, random.below(sizeof constant_bytes));
    } else {
        store(record, member.offset + bytes_length_offset, random.below(length + 1));
    }
}

void change_text(uint8_t *record, uint32_t offset, random_source &random)
{
    uint8_t *text = load_pointer(record, offset);
    if (text == nullptr)
        store(record, offset, static_cast<uint8_t *>(constant_bytes));
    else if (random.one_in(2))
        store(record, offset, static_cast<uint8_t *>(nullptr));
    else if (text != constant_bytes)
        text[0] = random.one_in(2) ? 0 : text[0];
}

void change_array(const field &member, uint8_t *record, random_source &random, bool change_count)
{
    uint8_t *array = load_pointer(record, member.offset);
    if (array == nullptr)
        return;
    uint32_t count = load<uint32_t>(record, member.count_offset);
    if (change_count) {
        count = static_cast<uint32_t>(random.below(uint64_t{count} + 1));
        store(record, member.count_offset, count);
    }
    for (uint64_t index = 0; index < count; ++index) {
        uint8_t *element = array + index * element_bytes(member);
        if (member.kind == field_kind::record_array)
            change_record(*member.nested, element, random);
        else if (random.one_in(3))
            change_text(element, 0, random);
    }
}

void change_member(const field &member, uint8_t *record, random_source &random)
{
    const bool change = random.one_in(4);
    switch (member.kind) {
    case field_kind::varint32:
    case field_kind::fixed32:
        if (change)
            store(record, member.offset, static_cast<uint32_t>(random.boundary_value()));
        break;
    case field_kind::varint64:
        if (change)
            store(record, member.offset, random.boundary_value());
        break;
    case field_kind::bytes:
        if (change)
            change_bytes(member, record, random);
        break;
    case field_kind::text:
        if (change)
            change_text(record, member.offset, random);
        break;
    case field_kind::record:
        change_record(*member.nested, record + member.offset, random);
        break;
    default:
        change_array(member, record, random, change);
    }
}

} // namespace

void change_record(const message &of, uint8_t *record, random_source &random)
{
    for (const field &member : of.fields)
        change_member(member, record, random);
    const uint32_t flipped = static_cast<uint32_t>(random.next() & random.next());
    store_mask(of, record, load_mask(of, record) ^ flipped);
}

bool claim_huge_length(const message &of, uint8_t *record, random_source &random)
{
    for (const field &member : of.fields) {
        if (member.kind == field_kind::record && claim_huge_length(*member.nested, record + member.offset, random))
            return true;
        if (member.kind == field_kind::bytes && load_pointer(record, member.offset) != nullptr) {
            const uint64_t huge = (uint64_t{1} << 32) + random.below(uint64_t{1} << (random.below(30)));
            store(record, member.offset + bytes_length_offset, huge);
            return true;
        }
    }
    return false;
}

void fill_members(const message &of, uint8_t *record)
{
    store_mask(of, record, ~uint32_t{0});
    for (const field &member : of.fields) {
        switch (member.kind) {
        case field_kind::varint32:
        case field_kind::fixed32:
            store(record, member.offset, ~uint32_t{0});
            break;
        case field_kind::bytes:
            store(record, member.offset, ~uint64_t{0});
            store(record, member.offset + bytes_length_offset, ~uint64_t{0});
            break;
        case field_kind::varint64:
        case field_kind::text:
            store(record, member.offset, ~uint64_t{0});
            break;
        case field_kind::record:
            fill_members(*member.nested, record + member.offset);
            break;
        default:
            store(record, member.offset, ~uint64_t{0});
            store(record, member.count_offset, ~uint32_t{0});
        }
    }
}

} // namespace mava_tum_model
