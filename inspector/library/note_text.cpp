#include "inspector/library/note_text.h"

#include "codec/wire_types.h"
#include "inspector/library/payload_notes.h"

namespace mava_tum_inspect
{

namespace
{

// "the tag takes 5 bytes where 1 is enough (L2)"
void add_over_long(sentence &text, const char *part, const extent &place, uint64_t value, const char *number)
{
    const uint64_t enough = varint_bytes(value);
    text.add(part).add(" takes ").add_number(place.bytes).add(" bytes where ").add_number(enough);
    text.add(enough == 1 ? " is enough " : " are enough ").add(number);
}

void add_lost_bits(sentence &text, const char *part, uint32_t bits, const char *number)
{
    text.add("the bits of ").add(part).add(" above ").add_number(bits).add(" are dropped ").add(number);
}

uint64_t tag_value(const occurrence &at)
{
    return uint64_t{at.path.number} << mava_tum::wire_type_bits | at.wire_type;
}

void add_beyond_end(sentence &text, const occurrence &at)
{
    text.add("ends ").add_number(at.stated_bytes - at.value.bytes).add(" bytes beyond the end of its ");
    text.add(at.depth == 0 ? "message" : "record").add(", which ends here with success (L3)");
}

void add_nul(sentence &text, const occurrence &at, const uint8_t *data)
{
    const uint64_t kept = text_bytes(data + at.value.offset, at.value.bytes);
    text.add("a NUL ends the text after ").add_number(kept).add(" of ").add_number(at.value.bytes).add(" bytes (L8)");
}

void describe_form(sentence &text, note told, const occurrence &at)
{
    switch (told) {
    case note::over_long_tag:
        return add_over_long(text, "the tag", at.tag, tag_value(at), "(L2)");
    case note::cut_tag:
        return add_lost_bits(text, "the tag", 32, "(L2)");
    case note::over_long_length:
        return add_over_long(text, "the length", at.length, at.stated_bytes, "(L1)");
    case note::cut_length:
        return add_lost_bits(text, "the length", 32, "(L1)");
    case note::over_long_value:
        return add_over_long(text, "the value", at.value, at.number_value, "(L1)");
    case note::cut_value:
        return add_lost_bits(text, "the value", at.field->value_bits, "(L1)");
    default:
        return;
    }
}

} // namespace

void describe_note(sentence &text, note told, const occurrence &at, const uint8_t *data)
{
    switch (told) {
    case note::unknown_field:
        text.add("skipped: ").add(at.record->name).add(" does not know it");
        return;
    case note::number_zero:
        text.add("skipped: no field has the number 0 (L4)");
        return;
    case note::beyond_end:
        return add_beyond_end(text, at);
    case note::wire_type_in_run:
        text.add("read as length-delimited: inside a run the wire type is not looked at (L5)");
        return;
    case note::replaced_value:
        text.add("occurs again: the last value wins");
        return;
    case note::replaced_record:
        text.add("occurs again: replaces the record before it, without merging (L11)");
        return;
    case note::nul_in_text:
        return add_nul(text, at, data);
    case note::no_utf8:
        text.add("is no UTF-8 (L9)");
        return;
    case note::no_address:
        text.add("an IPv6 address has 16 bytes; any length is accepted (L13)");
        return;
    default:
        return describe_form(text, told, at);
    }
}

} // namespace mava_tum_inspect
