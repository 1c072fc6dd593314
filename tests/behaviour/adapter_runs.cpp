#include "adapter_runs.h"

#include "model/raw_memory.h"

#include <algorithm>

namespace mava_tum_behaviour
{

using namespace mava_tum_model;

namespace
{

enum source_of_record : std::size_t { received, changed, random_values };
constexpr const char *source_names[] = {"received", "changed", "random"};

std::string function_name(const char *direction, const mava_tum_fuzz::adapter &of)
{
    return std::string("tum_nal_data_gpb_") + direction + "_tum_" + of.name;
}

// Always with a NUL.
void fill_text(uint8_t *text, uint32_t bytes, random_source &random)
{
    std::memset(text, fresh_byte, bytes);
    const uint64_t length = random.one_in(3) ? 0 : random.one_in(4) ? bytes - 1 : random.below(bytes);
    for (uint64_t index = 0; index < length; ++index)
        text[index] = static_cast<uint8_t>(1 + random.below(255));
    text[length] = 0;
}

void fill_record(const application_layout &layout, uint8_t *record, random_source &random);

void fill_list(const slot &list, uint8_t *elements, random_source &random)
{
    for (uint32_t index = 0; index < list.slots; ++index) {
        if (list.element == nullptr)
            fill_text(elements + index * list.bytes, list.bytes, random);
        else
            fill_record(*list.element, elements + index * list.element->extent.bytes, random);
    }
}

void fill_slot(const slot &member, uint8_t *at, random_source &random)
{
    switch (member.kind) {
    case slot_kind::number:
        store_number(at, random.one_in(3) ? 0 : random.boundary_value(), member.bytes);
        break;
    case slot_kind::count:
        store_number(at, random.one_in(8) ? random.next() : random.below(uint64_t{member.slots} + 2), member.bytes);
        break;
    case slot_kind::text:
        fill_text(at, member.bytes, random);
        break;
    case slot_kind::address:
    case slot_kind::bytes:
        for (uint32_t index = 0; index < member.bytes; ++index)
            at[index] = static_cast<uint8_t>(random.one_in(3) ? 0 : random.next());
        break;
    case slot_kind::part:
        fill_record(*member.element, at, random);
        break;
    case slot_kind::list:
        fill_list(member, at, random);
        break;
    default:
        break;
    }
}

void fill_record(const application_layout &layout, uint8_t *record, random_source &random)
{
    for_each_slot(layout, [&](const slot &member, uint32_t offset) {
        fill_slot(member, record + offset, random);
        return true;
    });
}

// Texts must keep their NUL: zero bytes stay, others become random.
void change_bytes(std::span<uint8_t> record, random_source &random)
{
    for (uint8_t &byte : record) {
        if (byte != 0 && random.one_in(8))
            byte = static_cast<uint8_t>(random.one_in(6) ? 0 : random.next() | 1);
    }
}

} // namespace

adapter_runs::adapter_runs(behaviour_table &table, std::size_t adapter_index)
    : adapter_(mava_tum_fuzz::adapter_at(adapter_index)), sent_layout_(*sent_layout(adapter_.name)),
      decode_row_(table.new_row(function_name("decode", adapter_), "received"))
{
    for (std::size_t source = 0; source < std::size(encode_rows_); ++source)
        encode_rows_[source] = &table.new_row(function_name("encode", adapter_), source_names[source]);
}

void adapter_runs::decode(std::span<const uint8_t> wire)
{
    adapter_.decode(wire.data(), static_cast<uint32_t>(wire.size()), received_.prepare(adapter_.received->size_bytes));
    call_hash hash;
    received_.add_bytes(hash);
    decode_row_.add(wire, 0, hash);
}

// The input of an encode is the record.
void adapter_runs::encode(behaviour_row &row, uint64_t seed)
{
    const uint8_t *record = sent_.buffer().data();
    encode_at_all_capacities(
        output_, row, sent_.buffer(), seed & 0xFFFFFFFF, [&](uint8_t *buffer, uint64_t capacity, call_hash &) {
            return adapter_.encode(record, buffer, static_cast<uint32_t>(capacity));
        });
}

void adapter_runs::run(const wire_input &input)
{
    decode(input.wire);
    random_source random(input.seed);
    const uint64_t part = random.below(6);
    if (!input.every_part && part > random_values)
        return;
    uint8_t *sent = sent_.prepare(adapter_.sent->size_bytes);
    mava_tum_fuzz::make_record_to_send(adapter_, sent, received_.buffer().data());
    if (input.every_part || part == received)
        encode(*encode_rows_[received], input.seed);
    if (input.every_part || part == changed) {
        change_bytes({sent, adapter_.sent->size_bytes}, random);
        encode(*encode_rows_[changed], input.seed);
    }
    if (input.every_part || part == random_values) {
        fill_record(sent_layout_, sent_.prepare(adapter_.sent->size_bytes), random);
        encode(*encode_rows_[random_values], input.seed);
    }
}

} // namespace mava_tum_behaviour
