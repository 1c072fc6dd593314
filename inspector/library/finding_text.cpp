#include "inspector/library/finding_text.h"

namespace mava_tum_inspect
{

namespace
{

constexpr uint32_t narrow_count_bits = 8;

void add_field_at(sentence &text, const occurrence &at)
{
    path_text path;
    append_path(path, &at.path);
    text.add("`").add(path.view()).add("`");
}

// " has 70 characters at byte 12, of which 64 arrive in `session_name` (L21)"
void add_excess(sentence &text, const raw_finding &finding, const char *units, const char *number)
{
    text.add(" has ").add_number(finding.found).add(units).add(" at byte ").add_number(finding.at.tag.offset);
    text.add(", of which ").add_number(finding.allowed).add(finding.allowed == 1 ? " arrives" : " arrive");
    text.add(" in `").add(finding.limit->member).add("`").add(number);
}

void add_list_cut(sentence &text, const raw_finding &finding)
{
    add_excess(text, finding, finding.found == 1 ? " element" : " elements", "");
    const bool wraps = finding.limit->count_bits == narrow_count_bits && finding.found >> narrow_count_bits != 0;
    text.add(wraps ? ": its count is taken modulo 256 (L17)" : " (L17)");
}

void add_text_cut(sentence &text, const raw_finding &finding)
{
    const bool fills_array = finding.allowed + 1 == finding.limit->member_bytes;
    const bool is_element = finding.limit->kind == limit_kind::texts;
    add_excess(text, finding, " characters", fills_array || is_element ? " (L21)" : " (L22)");
}

void add_padding(sentence &text, const raw_finding &finding)
{
    text.add(" has ").add_number(finding.found).add(finding.found == 1 ? " byte" : " bytes").add(" at byte ");
    text.add_number(finding.at.tag.offset).add(": in `").add(finding.limit->member).add("`, of ");
    text.add_number(finding.allowed).add(" bytes, zeros follow them (L19)");
}

void add_number_cut(sentence &text, const raw_finding &finding)
{
    const uint64_t kept = finding.at.number_value & ((uint64_t{1} << finding.allowed) - 1);
    text.add(" is ").add_number(finding.at.number_value).add(" at byte ").add_number(finding.at.tag.offset);
    text.add(": `").add(finding.limit->member).add("` has ").add_number(finding.allowed);
    text.add(" bits and keeps ").add_number(kept).add(" (L20)");
}

void add_text_end(sentence &text, const raw_finding &finding)
{
    text.add(" has a NUL at byte ").add_number(finding.at.value.offset + finding.allowed);
    text.add(": ").add_number(finding.allowed).add(" of ").add_number(finding.found);
    text.add(" characters arrive in `").add(finding.limit->member).add("` (L21)");
}

void add_part_missing(sentence &text, const raw_finding &finding)
{
    const field_description *part = find_field(*finding.at.record, finding.limit->only_with);
    text.add(" does not arrive in `").add(finding.limit->member).add("`: it goes with `").add(part->name);
    text.add("`, which is absent (L24)");
}

} // namespace

void describe_finding(sentence &text, const raw_finding &finding)
{
    add_field_at(text, finding.at);
    switch (finding.kind) {
    case MAVA_TUM_INSPECT_LIST_CUT:
        return add_list_cut(text, finding);
    case MAVA_TUM_INSPECT_TEXT_CUT:
        return add_text_cut(text, finding);
    case MAVA_TUM_INSPECT_TEXT_ENDS:
        return add_text_end(text, finding);
    case MAVA_TUM_INSPECT_BYTES_CUT:
        return add_excess(text, finding, " bytes", " (L19)");
    case MAVA_TUM_INSPECT_BYTES_PADDED:
        return add_padding(text, finding);
    case MAVA_TUM_INSPECT_NUMBER_CUT:
        return add_number_cut(text, finding);
    case MAVA_TUM_INSPECT_PART_MISSING:
        return add_part_missing(text, finding);
    case MAVA_TUM_INSPECT_NO_MEMBER:
        text.add(" at byte ")
            .add_number(finding.at.tag.offset)
            .add(" does not arrive: the record has no member for it");
        return;
    case MAVA_TUM_INSPECT_REPLACED:
        text.add(" occurs again at byte ").add_number(finding.at.tag.offset).add(": what it held before is lost");
        text.add(finding.at.notes.has(note::replaced_record) ? " (L11)" : "");
        return;
    default:
        text.add(" at byte ").add_number(finding.at.tag.offset).add(" does not arrive: ").add(finding.at.record->name);
        text.add(" does not know it");
    }
}

} // namespace mava_tum_inspect
