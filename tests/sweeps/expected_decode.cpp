#include "sweeps/expected_decode.h"

#include "mava_tum/codec_contract.h"
#include "support/wire_builder.h"

#include <algorithm>

namespace mava_tum_test
{

namespace
{

struct byte_span {
    const uint8_t *data;
    uint64_t length;
};

wire_type wire_type_of(field_kind kind)
{
    switch (kind) {
    case field_kind::varint32:
    case field_kind::varint64:
        return wire_type::varint;
    case field_kind::fixed32:
        return wire_type::fixed32;
    default:
        return wire_type::length_delimited;
    }
}

// One message in its span. Nested messages have a decoder of their own.
class message_decoder
{
public:
    message_decoder(byte_span span, decode_run &run) : span_(span), run_(run) {}

    int32_t decode(record_value &record)
    {
        while (position_ < span_.length) {
            uint64_t tag = 0;
            if (!read_varint(32, tag))
                return MAVA_TUM_TRUNCATED;
            const auto is_meant = [tag](const field_value &field) { return field.number == tag >> 3; };
            const auto field = std::find_if(record.fields.begin(), record.fields.end(), is_meant);
            const wire_type type = static_cast<wire_type>(tag & 7);
            const int32_t result = field == record.fields.end() ? skip(type) : read_known(*field, type);
            if (result != MAVA_TUM_OK)
                return result;
        }
        return MAVA_TUM_OK;
    }

private:
    // Bits above the width vanish; there may be any number of bytes. A cut varint leaves `value` alone.
    bool read_varint(unsigned width, uint64_t &value)
    {
        uint64_t read = 0;
        for (unsigned shift = 0; position_ < span_.length; shift += 7) {
            const uint8_t byte = span_.data[position_++];
            if (shift < width)
                read |= uint64_t{byte & 0x7Fu} << shift;
            if (byte < 0x80) {
                value = read & ~uint64_t{0} >> (64 - width);
                return true;
            }
        }
        return false;
    }

    bool read_fixed32(uint64_t &value)
    {
        if (span_.length - position_ < 4)
            return false;
        value = 0;
        for (unsigned shift = 0; shift < 32; shift += 8)
            value |= uint64_t{span_.data[position_++]} << shift;
        return true;
    }

    bool read_payload(byte_span &payload)
    {
        uint64_t length = 0;
        if (!read_varint(32, length) || length > span_.length - position_)
            return false;
        payload = {span_.data + position_, length};
        position_ += length;
        return true;
    }

    // Only varints are bounds-tested: all others may step past the end, which then ends the message with success.
    int32_t skip(wire_type type)
    {
        uint64_t value = 0;
        switch (type) {
        case wire_type::varint:
            return read_varint(64, value) ? MAVA_TUM_OK : MAVA_TUM_TRUNCATED;
        case wire_type::fixed64:
            position_ += 8;
            return MAVA_TUM_OK;
        case wire_type::length_delimited:
            if (!read_varint(32, value))
                return MAVA_TUM_TRUNCATED;
            position_ += value;
            return MAVA_TUM_OK;
        case wire_type::fixed32:
            position_ += 4;
            return MAVA_TUM_OK;
        default:
            return MAVA_TUM_UNSUPPORTED_WIRE_TYPE;
        }
    }

    int32_t read_known(field_value &field, wire_type type)
    {
        if (type != wire_type_of(field.kind))
            return MAVA_TUM_WRONG_WIRE_TYPE;
        const int32_t result = read_value(field);
        if (result == MAVA_TUM_OK)
            field.present = true;
        return result;
    }

    int32_t read_value(field_value &field)
    {
        switch (field.kind) {
        case field_kind::varint32:
            return read_varint(32, field.integer) ? MAVA_TUM_OK : MAVA_TUM_TRUNCATED;
        case field_kind::varint64:
            return read_varint(64, field.integer) ? MAVA_TUM_OK : MAVA_TUM_TRUNCATED;
        case field_kind::fixed32:
            return read_fixed32(field.integer) ? MAVA_TUM_OK : MAVA_TUM_TRUNCATED;
        case field_kind::bytes:
        case field_kind::text:
            return read_block(field);
        case field_kind::record:
            return read_record(field.records.front());
        default:
            return read_list(field);
        }
    }

    // In this order: a second occurrence, no allocator, a length that does not fit, no memory.
    int32_t read_block(field_value &field)
    {
        const bool aliases = run_.alias && field.kind == field_kind::bytes;
        if (field.content)
            return MAVA_TUM_TRUNCATED;
        if (!run_.allocator_given && !aliases)
            return MAVA_TUM_NO_MEMORY;
        byte_span payload{};
        if (!read_payload(payload))
            return MAVA_TUM_TRUNCATED;
        if (field.kind == field_kind::text)
            return read_text(field.content, payload);
        if (!aliases && !run_.plan.allocate(payload.length))
            return MAVA_TUM_NO_MEMORY;
        field.content.emplace(payload.data, payload.data + payload.length);
        field.integer = payload.length;
        return MAVA_TUM_OK;
    }

    // The block holds all bytes; whoever reads it sees those before the first NUL.
    int32_t read_text(std::optional<byte_vector> &text, byte_span payload)
    {
        if (!run_.plan.allocate(payload.length + 1))
            return MAVA_TUM_NO_MEMORY;
        text.emplace(payload.data, std::find(payload.data, payload.data + payload.length, uint8_t{0}));
        return MAVA_TUM_OK;
    }

    int32_t read_record(record_value &record)
    {
        byte_span payload{};
        if (!read_payload(payload))
            return MAVA_TUM_TRUNCATED;
        run_.dropped_blocks += expect_free(record, run_.alias).size();
        clear_fields(record);
        return message_decoder(payload, run_).decode(record);
    }

    int32_t read_list(field_value &field)
    {
        if (field.integer != 0)
            return MAVA_TUM_TRUNCATED;
        if (!run_.allocator_given)
            return MAVA_TUM_NO_MEMORY;
        std::vector<byte_span> entries;
        if (!read_entries(field.number, entries))
            return MAVA_TUM_TRUNCATED;
        if (!run_.plan.allocate(entries.size() * field.element_bytes))
            return MAVA_TUM_NO_MEMORY;
        field.integer = entries.size();
        return field.kind == field_kind::records ? read_elements(field, entries) : read_texts(field, entries);
    }

    // All entries that follow one another, whatever wire type the later ones claim. One defect spoils them all.
    bool read_entries(uint32_t number, std::vector<byte_span> &entries)
    {
        for (;;) {
            byte_span payload{};
            if (!read_payload(payload))
                return false;
            entries.push_back(payload);
            const uint64_t end = position_;
            uint64_t tag = 0;
            if (end == span_.length)
                return true;
            if (!read_varint(32, tag))
                return false;
            if (tag >> 3 != number) {
                position_ = end;
                return true;
            }
        }
    }

    int32_t read_elements(field_value &field, const std::vector<byte_span> &entries)
    {
        field.records.assign(entries.size(), *field.element_skeleton);
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const int32_t result = message_decoder(entries[i], run_).decode(field.records[i]);
            if (result != MAVA_TUM_OK)
                return result;
        }
        return MAVA_TUM_OK;
    }

    int32_t read_texts(field_value &field, const std::vector<byte_span> &entries)
    {
        field.texts.resize(entries.size());
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const int32_t result = read_text(field.texts[i], entries[i]);
            if (result != MAVA_TUM_OK)
                return result;
        }
        return MAVA_TUM_OK;
    }

    byte_span span_;
    decode_run &run_;
    uint64_t position_ = 0;
};

} // namespace

int32_t expect_decode_of(record_value &record, const byte_vector &wire, decode_run &run)
{
    return message_decoder({wire.data(), wire.size()}, run).decode(record);
}

} // namespace mava_tum_test
