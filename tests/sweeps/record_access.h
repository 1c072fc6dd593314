// Converts a codec record in memory to its tree of values and back: templates over the field lists of message_fields.h.
#pragma once

#include "sweeps/message_fields.h"
#include "sweeps/record_memory.h"
#include "sweeps/record_value.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <vector>

namespace mava_tum_test
{

template <class record_type>
record_value read_record(const record_type &record);
template <class record_type>
record_value blank_of(const record_type &record);
template <class record_type>
void fill_record(record_type &record, const record_value &value, record_memory &memory);

inline uint64_t bit_of_field(uint32_t number)
{
    return uint64_t{1} << (number - 1);
}

// A record of this type without any content or presence.
template <class record_type>
const record_value &skeleton_of()
{
    static const record_value skeleton = blank_of(record_type{});
    return skeleton;
}

// Common to both directions: one field_value per field, and the mask, split into its two parts.
class field_lister
{
public:
    template <class mask_type>
    field_lister(mask_type mask, record_value &result) : mask_(mask), result_(result)
    {
        result_.spare_bits = mask;
        result_.all_spare_bits = std::numeric_limits<mask_type>::max();
    }

protected:
    field_value &add(uint32_t number, field_kind kind)
    {
        const uint64_t bit = bit_of_field(number);
        result_.spare_bits &= ~bit;
        result_.all_spare_bits &= ~bit;
        field_value &field = result_.fields.emplace_back();
        field.number = number;
        field.kind = kind;
        field.present = (mask_ & bit) != 0;
        return field;
    }

    template <class element_type>
    field_value &add_records(uint32_t number)
    {
        field_value &field = add(number, field_kind::records);
        field.element_skeleton = &skeleton_of<element_type>();
        field.element_bytes = sizeof(element_type);
        return field;
    }

    field_value &add_texts(uint32_t number)
    {
        field_value &field = add(number, field_kind::texts);
        field.element_bytes = sizeof(char *);
        return field;
    }

private:
    uint64_t mask_;
    record_value &result_;
};

class field_reader : public field_lister
{
public:
    using field_lister::field_lister;

    void varint32(uint32_t number, uint32_t member)
    {
        add(number, field_kind::varint32).integer = member;
    }

    void varint64(uint32_t number, uint64_t member)
    {
        add(number, field_kind::varint64).integer = member;
    }

    void fixed32(uint32_t number, uint32_t member)
    {
        add(number, field_kind::fixed32).integer = member;
    }

    void bytes(uint32_t number, const mava_tum_bytes &member)
    {
        field_value &field = add(number, field_kind::bytes);
        field.integer = member.length;
        if (member.data != nullptr)
            field.content.emplace(member.data, member.data + member.length);
    }

    void text(uint32_t number, const char *member)
    {
        add(number, field_kind::text).content = copy_of(member);
    }

    template <class nested_type>
    void record(uint32_t number, const nested_type &member)
    {
        add(number, field_kind::record).records.push_back(read_record(member));
    }

    template <class element_type>
    void records(uint32_t number, const element_type *elements, uint32_t count)
    {
        field_value &field = add_records<element_type>(number);
        field.integer = count;
        for (uint32_t i = 0; elements != nullptr && i < count; ++i)
            field.records.push_back(read_record(elements[i]));
    }

    void texts(uint32_t number, char *const *elements, uint32_t count)
    {
        field_value &field = add_texts(number);
        field.integer = count;
        for (uint32_t i = 0; elements != nullptr && i < count; ++i)
            field.texts.push_back(copy_of(elements[i]));
    }

private:
    static std::optional<byte_vector> copy_of(const char *text)
    {
        if (text == nullptr)
            return std::nullopt;
        return byte_vector(text, text + std::strlen(text));
    }
};

// Reads presence masks only, so that the other members may be uninitialised.
class field_blanker : public field_lister
{
public:
    using field_lister::field_lister;

    void varint32(uint32_t number, uint32_t)
    {
        add_blank(number, field_kind::varint32);
    }

    void varint64(uint32_t number, uint64_t)
    {
        add_blank(number, field_kind::varint64);
    }

    void fixed32(uint32_t number, uint32_t)
    {
        add_blank(number, field_kind::fixed32);
    }

    void bytes(uint32_t number, const mava_tum_bytes &)
    {
        add_blank(number, field_kind::bytes);
    }

    void text(uint32_t number, const char *)
    {
        add_blank(number, field_kind::text);
    }

    template <class nested_type>
    void record(uint32_t number, const nested_type &member)
    {
        add_blank(number, field_kind::record).records.push_back(blank_of(member));
    }

    template <class element_type>
    void records(uint32_t number, const element_type *, uint32_t)
    {
        add_records<element_type>(number).present = false;
    }

    void texts(uint32_t number, const char *const *, uint32_t)
    {
        add_texts(number).present = false;
    }

private:
    field_value &add_blank(uint32_t number, field_kind kind)
    {
        field_value &field = add(number, kind);
        field.present = false;
        return field;
    }
};

// Reads the values one by one in the order of the record's fields.
class field_writer
{
public:
    field_writer(const record_value &value, record_memory &memory) : next_(value.fields.data()), memory_(memory) {}

    void varint32(uint32_t number, uint32_t &member)
    {
        member = static_cast<uint32_t>(take(number).integer);
    }

    void varint64(uint32_t number, uint64_t &member)
    {
        member = take(number).integer;
    }

    void fixed32(uint32_t number, uint32_t &member)
    {
        member = static_cast<uint32_t>(take(number).integer);
    }

    void bytes(uint32_t number, mava_tum_bytes &member)
    {
        const field_value &field = take(number);
        member = {nullptr, field.integer};
        if (field.content)
            member.data = static_cast<uint8_t *>(copy_of(*field.content, field.content->size()));
    }

    void text(uint32_t number, char *&member)
    {
        member = terminated_copy_of(take(number).content);
    }

    template <class nested_type>
    void record(uint32_t number, nested_type &member)
    {
        fill_record(member, take(number).records.front(), memory_);
    }

    template <class element_type>
    void records(uint32_t number, element_type *&elements, uint32_t &count)
    {
        const field_value &field = take(number);
        elements = nullptr;
        count = static_cast<uint32_t>(field.integer);
        if (field.records.empty())
            return;
        elements = static_cast<element_type *>(memory_.new_block(field.records.size() * sizeof(element_type)));
        for (std::size_t i = 0; i < field.records.size(); ++i)
            fill_record(*new (&elements[i]) element_type, field.records[i], memory_);
    }

    void texts(uint32_t number, char **&elements, uint32_t &count)
    {
        const field_value &field = take(number);
        elements = nullptr;
        count = static_cast<uint32_t>(field.integer);
        if (field.texts.empty())
            return;
        elements = static_cast<char **>(memory_.new_block(field.texts.size() * sizeof(char *)));
        for (std::size_t i = 0; i < field.texts.size(); ++i)
            elements[i] = terminated_copy_of(field.texts[i]);
    }

    uint64_t mask() const
    {
        return mask_;
    }

private:
    const field_value &take(uint32_t number)
    {
        const field_value &field = *next_++;
        if (field.present)
            mask_ |= bit_of_field(number);
        return field;
    }

    void *copy_of(const byte_vector &content, std::size_t block_bytes)
    {
        uint8_t *block = static_cast<uint8_t *>(memory_.new_block(block_bytes));
        std::copy(content.begin(), content.end(), block);
        return block;
    }

    char *terminated_copy_of(const std::optional<byte_vector> &content)
    {
        if (!content)
            return nullptr;
        char *text = static_cast<char *>(copy_of(*content, content->size() + 1));
        text[content->size()] = '\0';
        return text;
    }

    const field_value *next_;
    record_memory &memory_;
    uint64_t mask_ = 0;
};

// The bytes fields that an encoder writes and that are not empty, in wire order.
class bytes_collector
{
public:
    bytes_collector(uint64_t mask, std::vector<mava_tum_bytes> &result) : mask_(mask), result_(result) {}

    void varint32(uint32_t, uint32_t) {}

    void varint64(uint32_t, uint64_t) {}

    void fixed32(uint32_t, uint32_t) {}

    void text(uint32_t, const char *) {}

    void texts(uint32_t, const char *const *, uint32_t) {}

    void bytes(uint32_t number, const mava_tum_bytes &member)
    {
        if ((mask_ & bit_of_field(number)) != 0 && member.length != 0)
            result_.push_back(member);
    }

    template <class nested_type>
    void record(uint32_t, const nested_type &member)
    {
        bytes_collector inner(member.presence_mask, result_);
        visit_fields(member, inner);
    }

    template <class element_type>
    void records(uint32_t number, const element_type *elements, uint32_t count)
    {
        for (uint32_t i = 0; (mask_ & bit_of_field(number)) != 0 && i < count; ++i)
            record(number, elements[i]);
    }

private:
    uint64_t mask_;
    std::vector<mava_tum_bytes> &result_;
};

template <class record_type>
record_value read_record(const record_type &record)
{
    record_value value;
    field_reader reader(record.presence_mask, value);
    visit_fields(record, reader);
    return value;
}

// No content, but the reserved mask bits of the record and of its inline records.
template <class record_type>
record_value blank_of(const record_type &record)
{
    record_value value;
    field_blanker blanker(record.presence_mask, value);
    visit_fields(record, blanker);
    return value;
}

template <class record_type>
void fill_record(record_type &record, const record_value &value, record_memory &memory)
{
    field_writer writer(value, memory);
    visit_fields(record, writer);
    record.presence_mask = static_cast<decltype(record.presence_mask)>(writer.mask() | value.spare_bits);
}

template <class record_type>
std::vector<mava_tum_bytes> collect_bytes(const record_type &record)
{
    std::vector<mava_tum_bytes> found;
    bytes_collector collector(record.presence_mask, found);
    visit_fields(record, collector);
    return found;
}

} // namespace mava_tum_test
