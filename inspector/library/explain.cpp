#include "inspector/library/explain.h"

#include "inspector/library/fault_text.h"
#include "inspector/library/note_text.h"
#include "inspector/library/value_text.h"

#include <cstring>

namespace mava_tum_inspect
{

namespace
{

class explainer final : public wire_visitor
{
public:
    explainer(const uint8_t *data, mava_tum_inspect_line_fn line_fn, void *context, mava_tum_inspect_verdict &verdict)
        : data_(data), line_fn_(line_fn), context_(context), verdict_(verdict)
    {
    }

    void on_value(const occurrence &at) override
    {
        tell_head(at);
        tell_value(at);
        tell_notes(at);
    }

    void on_unknown(const occurrence &at) override
    {
        on_value(at);
    }

    void on_record(const occurrence &at) override
    {
        tell_head(at);
        tell_notes(at);
    }

    void on_run(const occurrence &first, uint64_t elements) override
    {
        sentence text;
        text.add("a run of ").add_number(elements).add(elements == 1 ? " element" : " elements");
        tell_part(MAVA_TUM_INSPECT_LINE_NOTE, first, {first.tag.offset, 0}, text);
    }

    void on_undecoded(const occurrence &at) override
    {
        tell_head(at);
        sentence text;
        text.add("not decoded: its run is not whole");
        tell_part(MAVA_TUM_INSPECT_LINE_VALUE, at, at.value, text);
        tell_notes(at);
    }

    void on_fault(const wire_fault &fault) override
    {
        if (fault.rule != fault_rule::tag_cut && fault.rule != fault_rule::tag_behind_run_cut)
            tell_head(fault.at);
        else
            tell_cut_tag(fault.at);
        if (fault.at.length.bytes == 0)
            tell_cut_value(fault.at);
        sentence text;
        describe_fault(text, fault);
        path_text path;
        describe_fault_path(path, fault);
        tell(MAVA_TUM_INSPECT_LINE_FAULT, fault.at.depth, {fault.offset, 0}, path, text);
        fill_fault(verdict_, fault);
    }

    void on_unread(const extent &rest) override
    {
        sentence text;
        text.add("not read: ").add_number(rest.bytes).add(rest.bytes == 1 ? " byte" : " bytes");
        tell(MAVA_TUM_INSPECT_LINE_UNREAD, 0, rest, path_text(), text);
    }

private:
    // ---- the parts of a field ----

    // Tag and length.
    void tell_head(const occurrence &at)
    {
        sentence tag;
        describe_tag(tag, at);
        tell_part(MAVA_TUM_INSPECT_LINE_TAG, at, at.tag, tag);
        if (at.length.bytes == 0)
            return;
        sentence length;
        length.add("length ").add_number(at.stated_bytes);
        tell_part(MAVA_TUM_INSPECT_LINE_LENGTH, at, at.length, length);
    }

    // "qos[1]: field 11, array of records", "field_1: field 1, fixed32 instead of varint", "unknown field 99, varint"
    static void describe_tag(sentence &text, const occurrence &at)
    {
        if (at.field == nullptr) {
            text.add("unknown field ").add_number(at.path.number).add(", ").add(wire_type_name(at.wire_type));
            return;
        }
        path_text name;
        append_step(name, at.path);
        text.add(name.view()).add(": field ").add_number(at.path.number).add(", ");
        if (at.wire_type != wire_type_number(at.field->kind))
            text.add(wire_type_name(at.wire_type)).add(" instead of ");
        text.add(kind_name(at.field->kind));
        if (at.field->kind == field_kind::varint && at.field->value_bits == 64)
            text.add(" of 64 bits");
        if (at.field->address != address_kind::none)
            text.add(at.field->address == address_kind::ipv4 ? ", IPv4 address" : ", IPv6 address");
        if (at.field->nested != nullptr)
            text.add(" ").add(at.field->nested->name);
    }

    void tell_value(const occurrence &at)
    {
        if (at.value.bytes == 0)
            return;
        sentence text;
        describe_value(text, at, data_);
        tell_part(MAVA_TUM_INSPECT_LINE_VALUE, at, at.value, text);
    }

    void tell_notes(const occurrence &at)
    {
        for (const note told : all_notes) {
            if (!at.notes.has(told))
                continue;
            sentence text;
            describe_note(text, told, at, data_);
            tell_part(MAVA_TUM_INSPECT_LINE_NOTE, at, {at.tag.offset, 0}, text);
        }
    }

    // ---- a field with a fault ----

    void tell_cut_tag(const occurrence &at)
    {
        sentence text;
        text.add("a tag, cut short");
        path_text path;
        append_path(path, at.path.parent);
        tell(MAVA_TUM_INSPECT_LINE_TAG, at.depth, at.tag, path, text);
    }

    void tell_cut_value(const occurrence &at)
    {
        if (at.value.bytes == 0)
            return;
        sentence text;
        text.add("a value, cut short");
        tell_part(MAVA_TUM_INSPECT_LINE_VALUE, at, at.value, text);
    }

    // ---- lines ----

    void tell_part(int32_t kind, const occurrence &at, const extent &place, const sentence &text)
    {
        path_text path;
        append_path(path, &at.path);
        tell(kind, at.depth, place, path, text);
    }

    // One or more lines for the bytes.
    void tell(int32_t kind, uint32_t depth, const extent &place, const path_text &path, const sentence &text)
    {
        mava_tum_inspect_line line{kind, depth, place.offset, row_bytes(place.bytes), path.c_str(), text.c_str()};
        tell(line);
        for (uint64_t told = line.byte_count; told < place.bytes && !is_stopped(); told += line.byte_count) {
            line = {MAVA_TUM_INSPECT_LINE_MORE, depth, place.offset + told, row_bytes(place.bytes - told), path.c_str(),
                ""};
            tell(line);
        }
    }

    void tell(const mava_tum_inspect_line &line)
    {
        if (!is_stopped() && line_fn_(&line, context_) != 0)
            stop();
    }

    static uint32_t row_bytes(uint64_t bytes)
    {
        constexpr uint64_t most = MAVA_TUM_INSPECT_ROW_BYTES;
        return static_cast<uint32_t>(bytes < most ? bytes : most);
    }

    const uint8_t *data_;
    mava_tum_inspect_line_fn line_fn_;
    void *context_;
    mava_tum_inspect_verdict &verdict_;
};

template <std::size_t Size>
void copy_text(char (&destination)[Size], const text_builder<Size> &text)
{
    std::memcpy(destination, text.c_str(), text.view().size() + 1);
}

} // namespace

void fill_success(mava_tum_inspect_verdict &verdict, uint64_t length)
{
    sentence text;
    text.add_number(length).add(length == 1 ? " byte decodes: result 0" : " bytes decode: result 0");
    verdict = {};
    copy_text(verdict.text, text);
}

void fill_fault(mava_tum_inspect_verdict &verdict, const wire_fault &fault)
{
    sentence text;
    describe_fault(text, fault);
    path_text path;
    describe_fault_path(path, fault);
    verdict.result = fault.result;
    verdict.offset = fault.offset;
    copy_text(verdict.path, path);
    copy_text(verdict.text, text);
}

int32_t explain_message(const message_description &message, const uint8_t *data, uint64_t length,
    mava_tum_inspect_line_fn line_fn, void *context, mava_tum_inspect_verdict *verdict)
{
    mava_tum_inspect_verdict found;
    fill_success(found, length);
    explainer visitor(data, line_fn, context, found);
    walk_message(message, data, length, visitor);
    if (visitor.is_stopped())
        return MAVA_TUM_INSPECT_STOPPED;
    if (verdict != nullptr)
        *verdict = found;
    return MAVA_TUM_OK;
}

} // namespace mava_tum_inspect
