#include "inspector/library/wire_walk.h"

#include "codec/wire_types.h"
#include "inspector/library/payload_notes.h"
#include "mava_tum/codec_contract.h"

namespace mava_tum_inspect
{

namespace
{

using mava_tum::wire_type;

constexpr uint32_t tag_bits = 32;
constexpr uint32_t length_bits = 32;

uint32_t presence_bit(const field_description &field)
{
    return 1u << (field.number - 1);
}

class walker
{
public:
    walker(const uint8_t *data, const extent &place, wire_visitor &visitor)
        : cursor_{data, place.offset, place.offset + place.bytes}, length_(cursor_.end), visitor_(visitor)
    {
    }

    walk_result walk(const message_description &message, const path_step *parent)
    {
        const record_frame frame{message, parent, 0};
        if (!walk_fields(frame, result_.present) && goes_on() && cursor_.position < length_)
            visitor_.on_unread({cursor_.position, length_ - cursor_.position});
        return result_;
    }

private:
    // A record of the walk.
    struct record_frame {
        const message_description &record;
        const path_step *parent; // null: it is the message itself
        uint32_t depth;
    };

    // Returns false if a fault has ended the decode, or the visitor has stopped. So do all functions below.
    bool walk_fields(const record_frame &frame, uint32_t &present)
    {
        while (cursor_.position != cursor_.end) {
            occurrence at = started(frame);
            if (!read_tag(at))
                return fail(at, fault_rule::tag_cut, at.tag.offset);
            if (!walk_field(frame, at, present))
                return false;
        }
        return true;
    }

    bool walk_field(const record_frame &frame, occurrence &at, uint32_t &present)
    {
        at.field = find_field(frame.record, at.path.number);
        at.path.field = at.field;
        if (at.field == nullptr)
            return walk_unknown(at);
        if (at.wire_type != wire_type_number(at.field->kind))
            return fail(at, fault_rule::wrong_wire_type, at.tag.offset);
        const bool seen = (present & presence_bit(*at.field)) != 0;
        if (!walk_known(frame, at, seen))
            return false;
        present |= presence_bit(*at.field);
        return true;
    }

    bool walk_known(const record_frame &frame, occurrence &at, bool seen)
    {
        switch (at.field->kind) {
        case field_kind::varint:
            return walk_varint(at, seen);
        case field_kind::fixed32:
            return walk_fixed32(at, seen);
        case field_kind::bytes:
            return seen ? fail(at, fault_rule::second_bytes, at.tag.offset) : walk_payload(at);
        case field_kind::text:
            return seen ? fail(at, fault_rule::second_text, at.tag.offset) : walk_payload(at);
        case field_kind::record:
            return walk_nested(at, seen);
        case field_kind::record_array:
        case field_kind::text_array:
            return seen ? fail(at, fault_rule::second_run, at.tag.offset) : walk_run(frame, at);
        }
        return true;
    }

    // ---- scalars: the last occurrence is kept ----

    bool walk_varint(occurrence &at, bool seen)
    {
        at.value.offset = cursor_.position;
        const varint_read varint = read_varint(cursor_, at.field->value_bits);
        at.value.bytes = varint.bytes;
        if (!varint.is_whole)
            return fail(at, fault_rule::varint_cut, at.value.offset);
        at.number_value = varint.value;
        at.notes.add_if(varint.is_over_long, note::over_long_value);
        at.notes.add_if(varint.lost_bits, note::cut_value);
        return deliver_scalar(at, seen);
    }

    bool walk_fixed32(occurrence &at, bool seen)
    {
        const fixed32_read fixed32 = read_fixed32(cursor_);
        at.value = fixed32.place;
        if (!fixed32.is_whole)
            return fail(at, fault_rule::fixed32_cut, fixed32.place.offset);
        at.number_value = fixed32.value;
        return deliver_scalar(at, seen);
    }

    bool deliver_scalar(occurrence &at, bool seen)
    {
        at.stated_bytes = at.value.bytes;
        at.notes.add_if(seen, note::replaced_value);
        visitor_.on_value(at);
        return goes_on();
    }

    // ---- bytes and texts ----

    bool walk_payload(occurrence &at)
    {
        const fault_rule broken = read_payload(at);
        if (broken != fault_rule::none)
            return fail(at, broken, at.length.offset);
        return deliver_payload(at);
    }

    bool deliver_payload(occurrence &at)
    {
        const bool is_text = at.field->kind != field_kind::bytes;
        if (is_text && at.value.bytes == UINT32_MAX)
            return fail(at, fault_rule::text_too_long, at.length.offset);
        add_payload_notes(at, cursor_.data);
        cursor_.position += at.value.bytes;
        visitor_.on_value(at);
        return goes_on();
    }

    // ---- nested records ----

    // L11: a second occurrence resets the record.
    bool walk_nested(occurrence &at, bool seen)
    {
        const fault_rule broken = read_payload(at);
        if (broken != fault_rule::none)
            return fail(at, broken, at.length.offset);
        at.notes.add_if(seen, note::replaced_record);
        return walk_body(at);
    }

    bool walk_body(occurrence &at)
    {
        visitor_.on_record(at);
        if (!goes_on())
            return false;
        const uint64_t outer_end = cursor_.end;
        cursor_.end = at.value.offset + at.value.bytes;
        uint32_t present = 0;
        if (!walk_fields({*at.field->nested, &at.path, at.depth + 1}, present))
            return false;
        cursor_.end = outer_end;
        visitor_.on_record_end(at, present);
        return goes_on();
    }

    // ---- arrays: a run is counted before its elements are decoded ----

    struct run_scan {
        uint64_t elements = 0; // complete ones
        fault_rule rule = fault_rule::none;
    };

    // `first` has its tag only; the cursor is after it. With `report`, calls the visitor for every complete element,
    // and for the fault.
    run_scan scan_run(const record_frame &frame, const occurrence &first, bool report)
    {
        run_scan scan;
        occurrence entry = first;
        for (;; ++scan.elements) {
            entry.path.index = scan.elements;
            scan.rule = read_payload(entry);
            if (scan.rule != fault_rule::none)
                break;
            if (report)
                visitor_.on_undecoded(entry);
            if (!goes_on())
                return scan;
            cursor_.position += entry.value.bytes;
            if (cursor_.position == cursor_.end)
                return {scan.elements + 1, fault_rule::none};
            entry = started(frame);
            if (!read_tag(entry)) {
                scan.rule = fault_rule::tag_behind_run_cut;
                entry.field = first.field;
                entry.path = first.path;
                break;
            }
            if (!continues(entry, first))
                return {scan.elements + 1, fault_rule::none};
        }
        if (report)
            fail(
                entry, scan.rule, scan.rule == fault_rule::tag_behind_run_cut ? entry.tag.offset : entry.length.offset);
        return scan;
    }

    // L5: a run is recognised by its field number alone.
    static bool continues(occurrence &entry, const occurrence &first)
    {
        entry.field = first.field;
        entry.path.field = first.field;
        entry.notes.add_if(entry.wire_type != first.wire_type, note::wire_type_in_run);
        return entry.path.number == first.path.number;
    }

    bool walk_run(const record_frame &frame, occurrence &first)
    {
        const uint64_t behind_tag = cursor_.position;
        const run_scan scan = scan_run(frame, first, false);
        cursor_.position = behind_tag;
        if (scan.rule != fault_rule::none) {
            scan_run(frame, first, true);
            return false;
        }
        if (scan.elements > UINT32_MAX)
            return fail(first, fault_rule::array_too_long, first.tag.offset);
        visitor_.on_run(first, scan.elements);
        return goes_on() && walk_elements(frame, first, scan.elements);
    }

    // The run has been counted: all of it is inside the record.
    bool walk_elements(const record_frame &frame, const occurrence &first, uint64_t elements)
    {
        occurrence entry = first;
        for (uint64_t index = 0; index < elements; ++index) {
            if (index != 0) {
                entry = started(frame);
                read_tag(entry);
                continues(entry, first);
            }
            entry.path.index = index;
            read_payload(entry);
            const bool is_record = entry.field->kind == field_kind::record_array;
            if (!(is_record ? walk_body(entry) : deliver_payload(entry)))
                return false;
        }
        return true;
    }

    // ---- unknown fields ----

    bool walk_unknown(occurrence &at)
    {
        at.notes.add_if(true, at.path.number == 0 ? note::number_zero : note::unknown_field);
        switch (static_cast<wire_type>(at.wire_type)) {
        case wire_type::varint:
            return skip_varint(at);
        case wire_type::fixed64:
            return skip_bytes(at, mava_tum::fixed64_bytes);
        case wire_type::length_delimited:
            return skip_length_delimited(at);
        case wire_type::fixed32:
            return skip_bytes(at, mava_tum::fixed32_bytes);
        default:
            return fail(at, fault_rule::unsupported_wire_type, at.tag.offset);
        }
    }

    bool skip_varint(occurrence &at)
    {
        at.value.offset = cursor_.position;
        const varint_read varint = read_varint(cursor_, 64);
        at.value.bytes = varint.bytes;
        if (!varint.is_whole)
            return fail(at, fault_rule::unknown_varint_cut, at.value.offset);
        at.number_value = varint.value;
        at.stated_bytes = varint.bytes;
        visitor_.on_unknown(at);
        return goes_on();
    }

    bool skip_length_delimited(occurrence &at)
    {
        const varint_read length = read_length(at);
        if (!length.is_whole)
            return fail(at, fault_rule::unknown_length_cut, at.length.offset);
        return skip_bytes(at, length.value);
    }

    // L3: no bounds test. A value that ends behind the record ends the record, with success.
    bool skip_bytes(occurrence &at, uint64_t bytes)
    {
        at.stated_bytes = bytes;
        at.value = {cursor_.position, bytes < cursor_.left() ? bytes : cursor_.left()};
        at.notes.add_if(at.value.bytes < bytes, note::beyond_end);
        cursor_.position += at.value.bytes;
        visitor_.on_unknown(at);
        return goes_on();
    }

    // ---- parts of an occurrence ----

    occurrence started(const record_frame &frame) const
    {
        return occurrence(frame.record, frame.parent, frame.depth);
    }

    bool read_tag(occurrence &at)
    {
        at.tag.offset = cursor_.position;
        const varint_read tag = read_varint(cursor_, tag_bits);
        at.tag.bytes = tag.bytes;
        at.path.number = mava_tum::field_number_of(static_cast<uint32_t>(tag.value));
        at.wire_type = static_cast<uint32_t>(tag.value) & mava_tum::wire_type_mask;
        at.notes.add_if(tag.is_over_long, note::over_long_tag);
        at.notes.add_if(tag.lost_bits, note::cut_tag);
        return tag.is_whole;
    }

    varint_read read_length(occurrence &at)
    {
        at.length.offset = cursor_.position;
        const varint_read length = read_varint(cursor_, length_bits);
        at.length.bytes = length.bytes;
        at.notes.add_if(length.is_whole && length.is_over_long, note::over_long_length);
        at.notes.add_if(length.is_whole && length.lost_bits, note::cut_length);
        return length;
    }

    // Reads a length, and tests that its value is inside. The cursor is then before the value.
    fault_rule read_payload(occurrence &at)
    {
        const varint_read length = read_length(at);
        if (!length.is_whole)
            return fault_rule::length_cut;
        at.stated_bytes = length.value;
        const bool is_inside = length.value <= cursor_.left();
        at.value = {cursor_.position, is_inside ? length.value : cursor_.left()};
        return is_inside ? fault_rule::none : fault_rule::value_beyond_end;
    }

    bool goes_on() const
    {
        return !visitor_.is_stopped();
    }

    // Always false, for callers that return it.
    bool fail(const occurrence &at, fault_rule rule, uint64_t offset)
    {
        result_.rule = rule;
        result_.offset = offset;
        visitor_.on_fault({rule, result_of(rule), offset, at});
        return false;
    }

    wire_cursor cursor_;
    uint64_t length_;
    wire_visitor &visitor_;
    walk_result result_;
};

} // namespace

int32_t result_of(fault_rule rule)
{
    switch (rule) {
    case fault_rule::none:
        return MAVA_TUM_OK;
    case fault_rule::unsupported_wire_type:
        return MAVA_TUM_UNSUPPORTED_WIRE_TYPE;
    case fault_rule::wrong_wire_type:
        return MAVA_TUM_WRONG_WIRE_TYPE;
    case fault_rule::text_too_long:
    case fault_rule::array_too_long:
        return MAVA_TUM_NO_MEMORY;
    default:
        return MAVA_TUM_TRUNCATED;
    }
}

walk_result walk_message(
    const message_description &message, const uint8_t *data, uint64_t length, wire_visitor &visitor)
{
    return walk_record(message, nullptr, data, {0, length}, visitor);
}

walk_result walk_record(const message_description &record, const path_step *parent, const uint8_t *data,
    const extent &place, wire_visitor &visitor)
{
    return walker(data, place, visitor).walk(record, parent);
}

} // namespace mava_tum_inspect
