#include "growth/growing_input.h"

#include <algorithm>

namespace bench
{
namespace
{

using mava_tum_model::field;
using mava_tum_model::field_kind;
using mava_tum_model::message;

constexpr size_t longest_varint = 10;
constexpr uint32_t highest_number = (1u << 29) - 1;

enum class order { ascending, descending };

wire_bytes content_of(const message &of, order in, bool all_fields);

// A small value: here, the search for the field is expensive.
void append_field(wire_bytes &wire, const field &member, order in)
{
    switch (member.kind) {
    case field_kind::varint32:
    case field_kind::varint64:
        append_tag(wire, member.number, varint_type);
        append_varint(wire, member.number);
        break;
    case field_kind::fixed32:
        append_tag(wire, member.number, fixed32_type);
        append(wire, {1, 2, 3, 4});
        break;
    case field_kind::bytes:
    case field_kind::text:
    case field_kind::text_array:
        append_delimited(wire, member.number, {'a'});
        break;
    case field_kind::record:
    case field_kind::record_array:
        append_delimited(wire, member.number, content_of(*member.nested, in, true));
        break;
    }
}

// Every field once, or every field that may be repeated.
wire_bytes content_of(const message &of, order in, bool all_fields)
{
    std::vector<const field *> members;
    for (const field &member : of.fields) {
        if (all_fields || may_repeat(member))
            members.push_back(&member);
    }
    if (in == order::descending)
        std::ranges::reverse(members);
    wire_bytes wire;
    for (const field *member : members)
        append_field(wire, *member, in);
    return wire;
}

wire_bytes unknown_of_each_type(uint32_t number)
{
    wire_bytes wire;
    append_tag(wire, number, varint_type);
    append(wire, {0});
    append_tag(wire, number, fixed64_type);
    append(wire, wire_bytes(8));
    append_tag(wire, number, delimited_type);
    append(wire, {0});
    append_tag(wire, number, fixed32_type);
    append(wire, wire_bytes(4));
    return wire;
}

void add_unknown_fields(std::vector<growing_input> &inputs, const message &of)
{
    wire_bytes shortest;
    append_tag(shortest, static_cast<uint32_t>(of.fields.size()) + 1, varint_type);
    append(shortest, {0});
    inputs.push_back({"unknown fields", {}, shortest, {}, {}});
    inputs.push_back({"unknown fields of each type", {}, unknown_of_each_type(highest_number), {}, {}});

    wire_bytes before_the_last = shortest;
    for (size_t i = of.fields.size(); i != 0; --i) {
        if (may_repeat(of.fields[i - 1])) {
            append_field(before_the_last, of.fields[i - 1], order::descending);
            inputs.push_back({"unknown before the last", {}, before_the_last, {}, {}});
            return;
        }
    }
}

void add_long_varints(std::vector<growing_input> &inputs, const message &of)
{
    wire_bytes unit;
    for (const field &member : of.fields) {
        if (!is_varint(member))
            continue;
        append_tag(unit, member.number, varint_type, longest_varint);
        append_varint(unit, member.number, longest_varint);
    }
    if (unit.empty())
        return;
    const auto first = std::ranges::find_if(of.fields, is_varint);
    inputs.push_back({"over-long varints", {}, unit, {}, {}});
    wire_bytes tag;
    append_tag(tag, first->number, varint_type);
    inputs.push_back({"one endless varint", tag, {0x80}, {0}, {}});
    tag[0] |= 0x80;
    inputs.push_back({"one endless tag", tag, {0x80}, {0, 0}, {}});
}

void add_runs(std::vector<growing_input> &inputs, const message &of)
{
    for (const field &member : of.fields) {
        if (!is_array(member))
            continue;
        const std::string where = " of field " + std::to_string(member.number);
        wire_bytes unit;
        append_delimited(unit, member.number, {});
        inputs.push_back({"empty elements" + where, {}, unit, {}, {}});
        if (member.nested == nullptr)
            continue;
        unit.clear();
        append_delimited(unit, member.number, content_of(*member.nested, order::descending, true));
        inputs.push_back({"reversed elements" + where, {}, unit, {}, {}});
    }
}

void add_records(std::vector<growing_input> &inputs, const message &of)
{
    wire_bytes empty;
    wire_bytes full;
    for (const field &member : of.fields) {
        if (member.kind != field_kind::record)
            continue;
        append_delimited(empty, member.number, {});
        append_field(full, member, order::ascending);
    }
    if (empty.empty())
        return;
    inputs.push_back({"empty records again", {}, empty, {}, {}});
    inputs.push_back({"full records again", {}, full, {}, {}});
}

} // namespace

std::vector<growing_input> worst_inputs(const message &of)
{
    std::vector<growing_input> inputs;
    const wire_bytes reversed = content_of(of, order::descending, false);
    if (!reversed.empty())
        inputs.push_back({"reverse order", {}, reversed, {}, {}});
    add_unknown_fields(inputs, of);
    add_long_varints(inputs, of);
    add_runs(inputs, of);
    add_records(inputs, of);
    return inputs;
}

} // namespace bench
