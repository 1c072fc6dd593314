#include "sweeps/expected_record.h"

#include "mava_tum/codec_contract.h"
#include "sweeps/expected_wire.h"

#include <algorithm>

namespace mava_tum_test
{

namespace
{

// Array and count are stored before the elements are decoded; the bit comes last.
int32_t expect_elements(field_value &field, const field_value &sent, allocation_plan &plan, bool alias)
{
    if (!plan.allocate(sent.integer * sent.element_bytes))
        return MAVA_TUM_NO_MEMORY;
    field.integer = sent.integer;
    field.records.assign(sent.records.size(), *field.element_skeleton);
    for (std::size_t i = 0; i < sent.records.size(); ++i) {
        const int32_t result = expect_decode(field.records[i], sent.records[i], plan, alias);
        if (result != MAVA_TUM_OK)
            return result;
    }
    return MAVA_TUM_OK;
}

// The same for texts. Slots behind the one that cannot be had stay null.
int32_t expect_texts(field_value &field, const field_value &sent, allocation_plan &plan)
{
    const std::vector<byte_vector> texts = texts_on_wire(sent);
    if (!plan.allocate(texts.size() * sent.element_bytes))
        return MAVA_TUM_NO_MEMORY;
    field.integer = texts.size();
    field.texts.resize(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!plan.allocate(texts[i].size() + 1))
            return MAVA_TUM_NO_MEMORY;
        field.texts[i] = texts[i];
    }
    return MAVA_TUM_OK;
}

int32_t expect_field(field_value &field, const field_value &sent, allocation_plan &plan, bool alias)
{
    switch (sent.kind) {
    case field_kind::record:
        return expect_decode(field.records.front(), sent.records.front(), plan, alias);
    case field_kind::records:
        return expect_elements(field, sent, plan, alias);
    case field_kind::texts:
        return expect_texts(field, sent, plan);
    case field_kind::bytes:
        if (!alias && !plan.allocate(sent.integer))
            return MAVA_TUM_NO_MEMORY;
        // Also an empty one has a pointer once it has been received.
        field.content = sent.content.value_or(byte_vector());
        break;
    case field_kind::text:
        if (!plan.allocate(sent.content->size() + 1))
            return MAVA_TUM_NO_MEMORY;
        field.content = sent.content;
        break;
    default:
        break;
    }
    field.integer = sent.integer;
    return MAVA_TUM_OK;
}

// A field whose block cannot be had stays empty and loses its bit.
int32_t expect_duplicate_block(field_value &field, const field_value &source, uint64_t size, allocation_plan &plan)
{
    if (!plan.allocate(size)) {
        field.present = false;
        return MAVA_TUM_NO_MEMORY;
    }
    field.integer = source.integer;
    field.content = source.content;
    return MAVA_TUM_OK;
}

int32_t expect_duplicate_elements(field_value &field, const field_value &source, allocation_plan &plan)
{
    int32_t result = expect_duplicate_block(field, source, source.integer * source.element_bytes, plan);
    if (result != MAVA_TUM_OK)
        return result;
    field.records.assign(source.records.size(), *field.element_skeleton);
    for (std::size_t i = 0; i < source.records.size(); ++i)
        result = std::min(result, expect_duplicate(field.records[i], source.records[i], plan));
    return result;
}

// A text that cannot be had leaves its slot null; the others are copied all the same.
int32_t expect_duplicate_texts(field_value &field, const field_value &source, allocation_plan &plan)
{
    int32_t result = expect_duplicate_block(field, source, source.integer * source.element_bytes, plan);
    if (result != MAVA_TUM_OK)
        return result;
    field.texts.resize(source.texts.size());
    for (std::size_t i = 0; i < source.texts.size(); ++i) {
        if (source.texts[i] && plan.allocate(source.texts[i]->size() + 1))
            field.texts[i] = source.texts[i];
        else if (source.texts[i])
            result = MAVA_TUM_NO_MEMORY;
    }
    return result;
}

int32_t expect_duplicate_field(field_value &field, const field_value &source, allocation_plan &plan)
{
    field.present = source.present;
    switch (source.kind) {
    case field_kind::record:
        return expect_duplicate(field.records.front(), source.records.front(), plan);
    case field_kind::records:
        return source.integer == 0 ? MAVA_TUM_OK : expect_duplicate_elements(field, source, plan);
    case field_kind::texts:
        return source.integer == 0 ? MAVA_TUM_OK : expect_duplicate_texts(field, source, plan);
    case field_kind::bytes:
        return source.integer == 0 ? MAVA_TUM_OK : expect_duplicate_block(field, source, source.integer, plan);
    case field_kind::text:
        return !source.content ? MAVA_TUM_OK : expect_duplicate_block(field, source, source.content->size() + 1, plan);
    default:
        field.integer = source.integer;
        return MAVA_TUM_OK;
    }
}

// In schema order, elements before their array.
void expect_release(field_value &field, bool alias, std::vector<uint64_t> &released)
{
    const bool owns_content = field.kind == field_kind::text || (field.kind == field_kind::bytes && !alias);
    if (owns_content && field.content) {
        released.push_back(field.content->size() + (field.kind == field_kind::text ? 1 : 0));
        field.content.reset();
    }
    for (record_value &nested : field.records) {
        const std::vector<uint64_t> inner = expect_free(nested, alias);
        released.insert(released.end(), inner.begin(), inner.end());
    }
    for (const byte_vector &text : texts_on_wire(field))
        released.push_back(text.size() + 1);
    if (is_list(field.kind)) {
        if (!field.records.empty() || !field.texts.empty())
            released.push_back(field.integer * field.element_bytes);
        field.integer = 0;
        field.records.clear();
        field.texts.clear();
    }
}

void remove_field(field_value &field)
{
    field.present = false;
    field.integer = 0;
    field.content.reset();
    field.texts.clear();
    if (field.kind == field_kind::records)
        field.records.clear();
    std::for_each(field.records.begin(), field.records.end(), clear_fields);
}

void keep_elements(field_value &field, std::size_t count)
{
    if (count == 0)
        remove_field(field);
    if (count == 0 || !is_list(field.kind))
        return;
    field.integer = count;
    if (field.kind == field_kind::records) {
        field.records.resize(count);
        return;
    }
    std::erase(field.texts, std::nullopt);
    field.texts.resize(count);
}

} // namespace

int32_t expect_decode(record_value &record, const record_value &sent, allocation_plan &plan, bool alias)
{
    for (std::size_t i = 0; i < sent.fields.size(); ++i) {
        if (!is_written(sent.fields[i]))
            continue;
        const int32_t result = expect_field(record.fields[i], sent.fields[i], plan, alias);
        if (result != MAVA_TUM_OK)
            return result;
        record.fields[i].present = true;
    }
    return MAVA_TUM_OK;
}

int32_t expect_duplicate(record_value &record, const record_value &source, allocation_plan &plan)
{
    int32_t result = MAVA_TUM_OK;
    for (std::size_t i = 0; i < source.fields.size(); ++i)
        result = std::min(result, expect_duplicate_field(record.fields[i], source.fields[i], plan));
    return result;
}

std::vector<uint64_t> expect_free(record_value &record, bool alias)
{
    std::vector<uint64_t> released;
    for (field_value &field : record.fields)
        expect_release(field, alias, released);
    return released;
}

void clear_fields(record_value &record)
{
    std::for_each(record.fields.begin(), record.fields.end(), remove_field);
}

record_value sent_before_cut(const record_value &sent, std::size_t cut, int32_t &result)
{
    result = MAVA_TUM_OK;
    std::vector<std::size_t> complete(sent.fields.size(), 0);
    const std::vector<wire_entry> entries = top_level_entries(sent);
    for (const wire_entry &entry : entries) {
        if (entry.end <= cut) {
            ++complete[entry.field_index];
            continue;
        }
        if (entry.start >= cut)
            break;
        result = MAVA_TUM_TRUNCATED;
        // A list is counted, up to and with the tag that follows it, before its first element is delivered.
        if (entry.element_index != 0)
            complete[entry.field_index] = 0;
        const bool follows_another = entry.element_index == 0 && &entry != &entries.front();
        const std::size_t previous = follows_another ? (&entry - 1)->field_index : entry.field_index;
        if (cut < entry.start + entry.tag_bytes && is_list(sent.fields[previous].kind))
            complete[previous] = 0;
        break;
    }
    record_value kept = sent;
    for (std::size_t i = 0; i < kept.fields.size(); ++i)
        keep_elements(kept.fields[i], complete[i]);
    return kept;
}

} // namespace mava_tum_test
