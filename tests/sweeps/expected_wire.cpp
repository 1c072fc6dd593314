#include "sweeps/expected_wire.h"

#include "support/wire_builder.h"

#include <algorithm>

namespace mava_tum_test
{

namespace
{

bool has_content(const record_value &record)
{
    return std::any_of(record.fields.begin(), record.fields.end(), is_written);
}

// One encoder call.
class wire_writer
{
public:
    explicit wire_writer(wire_mode mode) : mode_(mode) {}

    void field(const field_value &field)
    {
        if (!is_written(field))
            return;
        switch (field.kind) {
        case field_kind::varint32:
        case field_kind::varint64:
            builder_.varint(field.number, field.integer);
            break;
        case field_kind::fixed32:
            builder_.fixed32(field.number, static_cast<uint32_t>(field.integer));
            break;
        case field_kind::bytes:
            bytes(field);
            break;
        case field_kind::text:
            payload(field.number, *field.content);
            break;
        case field_kind::texts:
            for (const byte_vector &text : texts_on_wire(field))
                payload(field.number, text);
            break;
        case field_kind::record:
        case field_kind::records:
            for (const record_value &nested : field.records)
                record(field.number, nested);
            break;
        }
    }

    expected_wire finish()
    {
        if (builder_.bytes().size() > end_of_last_segment_)
            ++result_.segment_count;
        result_.bytes = builder_.bytes();
        return result_;
    }

private:
    void bytes(const field_value &field)
    {
        if (mode_ == wire_mode::copied) {
            payload(field.number, field.content.value_or(byte_vector()));
            return;
        }
        builder_.tag(field.number, wire_type::length_delimited).bare_varint(field.integer);
        if (field.integer == 0)
            return;
        result_.segment_count += 2;
        end_of_last_segment_ = builder_.bytes().size();
    }

    void payload(uint32_t number, const byte_vector &content)
    {
        builder_.length_delimited(number, content);
        result_.payloads.push_back({builder_.bytes().size() - content.size(), content.size()});
    }

    void record(uint32_t number, const record_value &nested)
    {
        // A message that holds no bytes knows no gather mode: it is a single segment.
        const bool gathers = mode_ == wire_mode::gathered && holds_bytes(nested);
        const expected_wire inner = wire_of(nested, gathers ? wire_mode::gathered : wire_mode::copied);
        builder_.length_delimited(number, inner.bytes);
        const std::size_t start = builder_.bytes().size() - inner.bytes.size();
        for (const payload_block &block : inner.payloads)
            result_.payloads.push_back({start + block.offset, block.length});
        if (mode_ == wire_mode::gathered)
            result_.segment_count += inner.segment_count;
    }

    wire_mode mode_;
    wire_builder builder_;
    expected_wire result_;
    std::size_t end_of_last_segment_ = 0;
};

// The field once for each of its tags, with what follows that tag.
std::vector<field_value> split_into_entries(const field_value &field)
{
    field_value empty = field;
    empty.records.clear();
    empty.texts.clear();
    std::vector<field_value> entries;
    switch (field.kind) {
    case field_kind::records:
        for (const record_value &element : field.records) {
            entries.push_back(empty);
            entries.back().records.push_back(element);
        }
        return entries;
    case field_kind::texts:
        for (const byte_vector &text : texts_on_wire(field)) {
            entries.push_back(empty);
            entries.back().texts.push_back(text);
        }
        return entries;
    default:
        return {field};
    }
}

} // namespace

std::vector<byte_vector> texts_on_wire(const field_value &field)
{
    std::vector<byte_vector> texts;
    for (const std::optional<byte_vector> &text : field.texts) {
        if (text)
            texts.push_back(*text);
    }
    return texts;
}

bool is_written(const field_value &field)
{
    switch (field.kind) {
    case field_kind::text:
        return field.present && field.content;
    case field_kind::record:
        return field.present || has_content(field.records.front());
    case field_kind::records:
        return field.present && field.integer != 0;
    case field_kind::texts:
        return field.present && !texts_on_wire(field).empty();
    default:
        return field.present;
    }
}

expected_wire wire_of(const record_value &record, wire_mode mode)
{
    wire_writer writer(mode);
    for (const field_value &field : record.fields)
        writer.field(field);
    return writer.finish();
}

std::vector<wire_entry> top_level_entries(const record_value &record)
{
    std::vector<wire_entry> entries;
    std::size_t position = 0;
    for (std::size_t i = 0; i < record.fields.size(); ++i) {
        if (!is_written(record.fields[i]))
            continue;
        const std::vector<field_value> alone = split_into_entries(record.fields[i]);
        for (std::size_t element = 0; element < alone.size(); ++element) {
            record_value entry;
            entry.fields.push_back(alone[element]);
            const std::size_t tag_bytes = record.fields[i].number < 16 ? 1 : 2;
            const std::size_t end = position + wire_of(entry).bytes.size();
            entries.push_back({position, tag_bytes, end, i, element});
            position = end;
        }
    }
    return entries;
}

byte_vector expected_buffer(const expected_wire &wire, std::size_t capacity, uint8_t fill)
{
    byte_vector buffer(capacity, fill);
    const std::size_t written = std::min(capacity, wire.bytes.size());
    std::copy_n(wire.bytes.begin(), written, buffer.begin());
    for (const payload_block &block : wire.payloads) {
        if (block.offset < capacity && block.offset + block.length > capacity)
            std::fill(buffer.begin() + static_cast<std::ptrdiff_t>(block.offset), buffer.end(), fill);
    }
    return buffer;
}

} // namespace mava_tum_test
