#include "sweeps/random_records.h"

#include <algorithm>

namespace mava_tum_test
{

namespace
{

bool chance(random_source &random, unsigned percent)
{
    return random() % 100 < percent;
}

// Most values are short, a few long.
std::size_t random_length(random_source &random)
{
    const unsigned draw = static_cast<unsigned>(random() % 1000);
    if (draw < 100)
        return 0;
    if (draw < 950)
        return random() % 40;
    if (draw < 998)
        return random() % 400;
    return random() % 5000;
}

std::size_t random_count(random_source &random)
{
    const unsigned draw = static_cast<unsigned>(random() % 1000);
    if (draw < 980)
        return random() % 5;
    return draw < 998 ? random() % 20 : random() % 250;
}

uint64_t random_integer(field_kind kind, random_source &random)
{
    const unsigned width = kind == field_kind::varint64 ? 64 : 32;
    const uint64_t value = kind == field_kind::varint64 ? random() : random() & 0xFFFFFFFF;
    return value >> (random() % width);
}

void fill_randomly(record_value &record, random_source &random);

void fill_randomly(field_value &field, random_source &random)
{
    switch (field.kind) {
    case field_kind::bytes:
        if (!chance(random, 5))
            field.content = random_text(random_length(random), random);
        field.integer = field.content ? field.content->size() : 0;
        break;
    case field_kind::text:
        if (!chance(random, 5))
            field.content = random_text(random_length(random), random);
        break;
    case field_kind::record:
        fill_randomly(field.records.front(), random);
        break;
    case field_kind::records:
        field.integer = random_count(random);
        field.records.assign(field.integer, *field.element_skeleton);
        for (record_value &element : field.records)
            fill_randomly(element, random);
        break;
    case field_kind::texts:
        field.integer = random_count(random);
        field.texts.resize(field.integer);
        for (std::optional<byte_vector> &text : field.texts) {
            if (!chance(random, 5))
                text = random_text(random_length(random), random);
        }
        break;
    default:
        field.integer = random_integer(field.kind, random);
        break;
    }
}

void fill_randomly(record_value &record, random_source &random)
{
    record.spare_bits = random() & record.all_spare_bits;
    const unsigned present_percent = 25 * static_cast<unsigned>(random() % 5);
    for (field_value &field : record.fields) {
        field.present = chance(random, present_percent);
        // Mostly, only present fields have content, so that there are also records with few fields.
        if (field.present || chance(random, 10))
            fill_randomly(field, random);
    }
}

void fill_fully(record_value &record, uint32_t &counter)
{
    for (field_value &field : record.fields) {
        field.present = true;
        ++counter;
        const std::size_t length = 1 + counter % 19;
        switch (field.kind) {
        case field_kind::bytes:
            field.integer = length;
            [[fallthrough]];
        case field_kind::text:
            field.content = byte_vector(length, static_cast<uint8_t>('a' + counter % 26));
            break;
        case field_kind::record:
            fill_fully(field.records.front(), counter);
            break;
        case field_kind::records:
            field.integer = 3;
            field.records.assign(3, *field.element_skeleton);
            for (record_value &element : field.records)
                fill_fully(element, counter);
            break;
        case field_kind::texts:
            field.integer = 3;
            for (std::size_t i = 0; i < field.integer; ++i)
                field.texts.emplace_back(byte_vector(length + i, static_cast<uint8_t>('A' + counter % 26)));
            break;
        case field_kind::varint64:
            field.integer = ~uint64_t{0} >> (7 * (counter % 9));
            break;
        default:
            field.integer = uint32_t{0xFEDCBA98} >> (7 * (counter % 5));
            break;
        }
    }
}

void fill_hollow(field_value &field)
{
    field.present = true;
    if (field.kind == field_kind::bytes || field.kind == field_kind::text)
        field.content.emplace();
    if (field.kind == field_kind::records) {
        field.integer = 3;
        field.records.assign(3, *field.element_skeleton);
    }
    if (field.kind == field_kind::texts) {
        field.integer = 3;
        field.texts = {byte_vector(), std::nullopt, byte_vector()};
    }
}

// Bits without content, which an encoder does not write: null texts, lists without elements or with null texts only; in
// nested records whose bit is clear.
void mark_missing(record_value &record)
{
    for (field_value &field : record.fields) {
        field.present = field.kind == field_kind::text || is_list(field.kind);
        if (field.kind == field_kind::texts) {
            field.integer = 2;
            field.texts.resize(2);
        }
        if (field.kind == field_kind::record)
            mark_missing(field.records.front());
    }
}

} // namespace

record_value full_record(const record_value &skeleton)
{
    record_value record = skeleton;
    uint32_t counter = 0;
    fill_fully(record, counter);
    return record;
}

record_value hollow_record(const record_value &skeleton)
{
    record_value record = skeleton;
    for (field_value &field : record.fields)
        fill_hollow(field);
    return record;
}

std::vector<named_record> seeds_of(const record_value &skeleton)
{
    const record_value full = full_record(skeleton);
    std::vector<named_record> seeds = {
        {"full", full}, {"hollow", hollow_record(skeleton)}, {"missing", skeleton}, {"every second field", skeleton}};
    mark_missing(seeds[2].value);
    for (std::size_t i = 0; i < full.fields.size(); ++i) {
        if (i % 2 == 0)
            seeds[3].value.fields[i] = full.fields[i];
        record_value alone = skeleton;
        alone.fields[i] = full.fields[i];
        seeds.push_back({"field " + std::to_string(full.fields[i].number) + " alone", alone});
    }
    return seeds;
}

record_value random_record(const record_value &skeleton, random_source &random)
{
    record_value record = skeleton;
    fill_randomly(record, random);
    return record;
}

void fill_list(field_value &list, std::size_t count, random_source &random)
{
    fill_list_with_empty_elements(list, count);
    for (record_value &element : list.records)
        fill_randomly(element, random);
    for (std::optional<byte_vector> &text : list.texts)
        text = random_text(random_length(random), random);
}

void fill_list_with_empty_elements(field_value &list, std::size_t count)
{
    list.present = true;
    list.integer = count;
    if (list.kind == field_kind::records)
        list.records.assign(count, *list.element_skeleton);
    else
        list.texts.assign(count, byte_vector());
}

std::size_t field_count_of(const record_value &skeleton)
{
    std::size_t count = skeleton.fields.size();
    for (const field_value &field : skeleton.fields) {
        if (field.kind == field_kind::record)
            count += field_count_of(field.records.front());
        if (field.kind == field_kind::records)
            count += field_count_of(*field.element_skeleton);
    }
    return count;
}

// Any bytes except NUL: the character set does not matter.
byte_vector random_text(std::size_t length, random_source &random)
{
    byte_vector text(length);
    std::generate(text.begin(), text.end(), [&random] { return static_cast<uint8_t>(1 + random() % 255); });
    return text;
}

} // namespace mava_tum_test
