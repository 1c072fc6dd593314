#include "inspector/library/fault_text.h"

#include "codec/wire_types.h"

namespace mava_tum_inspect
{

namespace
{

// "`session_data.field_5`", "unknown field 99", "unknown field 99 of `session_data`"
void add_field(sentence &text, const wire_fault &fault)
{
    const path_step &step = fault.at.path;
    path_text path;
    if (fault.at.field != nullptr) {
        describe_fault_path(path, fault);
        text.add("`").add(path.view()).add("`");
        return;
    }
    text.add("unknown field ").add_number(step.number);
    if (step.parent != nullptr) {
        append_path(path, step.parent);
        text.add(" of `").add(path.view()).add("`");
    }
}

void add_cut_tag(sentence &text, const wire_fault &fault)
{
    path_text path;
    describe_fault_path(path, fault);
    text.add("a tag");
    if (!path.view().empty())
        text.add(" of `").add(path.view()).add("`");
    text.add(" is cut short");
}

void add_wrong_wire_type(sentence &text, const wire_fault &fault)
{
    add_field(text, fault);
    text.add(" is ").add(wire_type_name(fault.at.wire_type));
    text.add(" instead of ").add(wire_type_name(wire_type_number(fault.at.field->kind)));
}

void add_unsupported_wire_type(sentence &text, const wire_fault &fault)
{
    add_field(text, fault);
    text.add(" has wire type ").add_number(fault.at.wire_type).add(", which cannot be skipped,");
}

void add_value_beyond_end(sentence &text, const wire_fault &fault)
{
    add_field(text, fault);
    text.add(" claims ").add_number(fault.at.stated_bytes).add(" bytes where ");
    text.add_number(fault.at.value.bytes).add(fault.at.value.bytes == 1 ? " is left" : " are left");
}

void add_cut_fixed32(sentence &text, const wire_fault &fault)
{
    add_field(text, fault);
    text.add(" has ").add_number(fault.at.value.bytes).add(" of its 4 bytes");
}

// The rules whose sentence begins with the field.
const char *behind_field(fault_rule rule)
{
    switch (rule) {
    case fault_rule::varint_cut:
    case fault_rule::unknown_varint_cut:
        return " is cut short inside its varint";
    case fault_rule::second_bytes:
        return " (bytes) occurs a second time";
    case fault_rule::second_text:
        return " (text) occurs a second time";
    case fault_rule::second_run:
        return " occurs in a second, separate run";
    case fault_rule::text_too_long:
        return " has 2^32 - 1 bytes, which with a NUL fit no block,";
    case fault_rule::array_too_long:
        return " has more elements than 32 bits can count";
    default:
        return "";
    }
}

void add_rule(sentence &text, const wire_fault &fault)
{
    switch (fault.rule) {
    case fault_rule::tag_cut:
        return add_cut_tag(text, fault);
    case fault_rule::wrong_wire_type:
        return add_wrong_wire_type(text, fault);
    case fault_rule::unsupported_wire_type:
        return add_unsupported_wire_type(text, fault);
    case fault_rule::value_beyond_end:
        return add_value_beyond_end(text, fault);
    case fault_rule::fixed32_cut:
        return add_cut_fixed32(text, fault);
    case fault_rule::length_cut:
    case fault_rule::unknown_length_cut:
        text.add("the length of ");
        add_field(text, fault);
        text.add(" is cut short");
        return;
    case fault_rule::tag_behind_run_cut:
        text.add("the tag behind the run of ");
        add_field(text, fault);
        text.add(" is cut short");
        return;
    default:
        add_field(text, fault);
        text.add(behind_field(fault.rule));
    }
}

} // namespace

void describe_fault_path(path_text &path, const wire_fault &fault)
{
    append_path(path, fault.rule == fault_rule::tag_cut ? fault.at.path.parent : &fault.at.path);
}

void describe_fault(sentence &text, const wire_fault &fault)
{
    add_rule(text, fault);
    text.add(" at byte ").add_number(fault.offset).add(": result ").add_signed(fault.result);
}

const char *wire_type_name(uint32_t wire_type)
{
    static constexpr const char *names[] = {
        "varint", "fixed64", "length-delimited", "group start", "group end", "fixed32", "wire type 6", "wire type 7"};
    return names[wire_type & mava_tum::wire_type_mask];
}

} // namespace mava_tum_inspect
