#include "sweeps/hostile_inputs.h"

#include "sweeps/expected_wire.h"

#include <algorithm>
#include <iterator>

namespace mava_tum_test
{

namespace
{

constexpr std::size_t wire_count = 200;
// Short ones, so that a mutation often hits a tag or a length.
constexpr std::size_t longest_wire_bytes = 400;

byte_vector::iterator at(byte_vector &wire, std::size_t offset)
{
    return wire.begin() + static_cast<std::ptrdiff_t>(offset);
}

void insert(byte_vector &wire, std::size_t offset, const byte_vector &added)
{
    wire.insert(at(wire, offset), added.begin(), added.end());
}

} // namespace

hostile_inputs::hostile_inputs(const message &tested, uint64_t seed) : random_(seed), skeleton_(*tested.skeleton)
{
    wires_.push_back(wire_of(full_record(skeleton_)).bytes);
    wires_.push_back(wire_of(hollow_record(skeleton_)).bytes);
    while (wires_.size() < wire_count) {
        const byte_vector wire = wire_of(random_record(skeleton_, random_)).bytes;
        if (wire.size() <= longest_wire_bytes)
            wires_.push_back(wire);
    }
}

byte_vector hostile_inputs::next()
{
    byte_vector wire = below(10) == 0 ? random_bytes() : wires_[below(wires_.size())];
    for (std::size_t remaining = below(5); remaining != 0; --remaining)
        mutate(wire);
    wire.resize(std::min(wire.size(), largest_bytes));
    return wire;
}

std::size_t hostile_inputs::below(std::size_t limit)
{
    return random_() % limit;
}

byte_vector hostile_inputs::random_bytes()
{
    byte_vector bytes(below(40));
    // Sometimes a tag: otherwise nearly every input would fail at its first byte.
    for (uint8_t &byte : bytes)
        byte = below(2) == 0 ? random_tag() : static_cast<uint8_t>(random_());
    return bytes;
}

// The tag of a field of this message, mostly with a possible wire type. Fields from 16 need a second byte.
uint8_t hostile_inputs::random_tag()
{
    constexpr uint8_t wire_types[] = {0, 0, 2, 2, 2, 5, 1, 3, 7};
    const uint32_t number = skeleton_.fields[below(skeleton_.fields.size())].number;
    return static_cast<uint8_t>(number << 3 | wire_types[below(std::size(wire_types))]);
}

void hostile_inputs::mutate(byte_vector &wire)
{
    if (wire.empty())
        wire.push_back(random_tag());
    switch (below(8)) {
    case 0:
    case 1:
        change_byte(wire);
        break;
    case 2:
        insert_field(wire);
        break;
    case 3:
        lengthen_varint(wire);
        break;
    case 4:
        repeat_range(wire);
        break;
    case 5:
        wire.resize(below(wire.size()));
        break;
    case 6:
        wire.erase(at(wire, below(wire.size())));
        break;
    default:
        // Two messages in a row: every field of the second is a second occurrence.
        insert(wire, wire.size(), wires_[below(wires_.size())]);
        break;
    }
}

void hostile_inputs::change_byte(byte_vector &wire)
{
    uint8_t &byte = wire[below(wire.size())];
    constexpr uint8_t extremes[] = {0x00, 0x01, 0x7F, 0x80, 0xFF};
    switch (below(3)) {
    case 0:
        byte = static_cast<uint8_t>(byte ^ 1u << below(8));
        break;
    case 1:
        byte = extremes[below(std::size(extremes))];
        break;
    default:
        byte = random_tag();
        break;
    }
}

void hostile_inputs::insert_field(byte_vector &wire)
{
    byte_vector field = {random_tag(), static_cast<uint8_t>(below(6))};
    field.resize(field.size() + below(6));
    insert(wire, below(wire.size() + 1), field);
}

// The last byte of a varint, or one that could be it, is extended by bytes without value.
void hostile_inputs::lengthen_varint(byte_vector &wire)
{
    const std::size_t offset = below(wire.size());
    wire[offset] |= 0x80;
    byte_vector companions(below(12), 0x80);
    companions.push_back(0x00);
    insert(wire, offset + 1, companions);
}

void hostile_inputs::repeat_range(byte_vector &wire)
{
    const std::size_t start = below(wire.size());
    const std::size_t length = 1 + below(wire.size() - start);
    const byte_vector range(at(wire, start), at(wire, start + length));
    insert(wire, below(2) == 0 ? start : wire.size(), range);
}

} // namespace mava_tum_test
