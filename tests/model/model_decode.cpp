#include "model/model.h"
#include "model/model_wire.h"
#include "model/raw_memory.h"

namespace mava_tum_model
{

namespace
{

// ---- reset: every value zero, own bits clear, reserved bits unchanged, at every depth ----

void reset(const message &of, uint8_t *record)
{
    for (const field &member : of.fields) {
        set_present(of, record, member, false);
        switch (member.kind) {
        case field_kind::varint32:
        case field_kind::fixed32:
            store(record, member.offset, uint32_t{0});
            break;
        case field_kind::varint64:
            store(record, member.offset, uint64_t{0});
            break;
        case field_kind::bytes:
            store(record, member.offset, static_cast<uint8_t *>(nullptr));
            store(record, member.offset + bytes_length_offset, uint64_t{0});
            break;
        case field_kind::text:
            store(record, member.offset, static_cast<uint8_t *>(nullptr));
            break;
        case field_kind::record:
            reset(*member.nested, record + member.offset);
            break;
        case field_kind::record_array:
        case field_kind::text_array:
            store(record, member.offset, static_cast<uint8_t *>(nullptr));
            store(record, member.count_offset, uint32_t{0});
            break;
        }
    }
}

// ---- one message ----

class decoder
{
public:
    decoder(const message &of, uint8_t *record, cursor wire, const memory_source &source, uint32_t flags)
        : of_(of), record_(record), wire_(wire), source_(source), flags_(flags)
    {
    }

    int32_t run();

private:
    int32_t known_field(const field &member, uint32_t wire_type);
    int32_t varint32_value(const field &member);
    int32_t varint64_value(const field &member);
    int32_t fixed32_value(const field &member);
    int32_t bytes_value(const field &member);
    int32_t text_value(const field &member);
    int32_t record_value(const field &member);
    int32_t array_value(const field &member);

    bool holds_pointer(const field &member) const
    {
        return load_pointer(record_, member.offset) != nullptr;
    }

    uint8_t *obtain(uint64_t size) const
    {
        return static_cast<uint8_t *>(source_.allocate(size, source_.context));
    }

    int32_t nested_value(const message &nested, uint8_t *record, uint64_t end);
    int32_t obtain_text(uint64_t end, uint8_t *&text);
    int32_t count_run(uint32_t number, uint64_t &count) const;
    int32_t element(const field &member, uint8_t *slot);

    const message &of_;
    uint8_t *record_;
    cursor wire_;
    const memory_source &source_;
    uint32_t flags_;
};

uint32_t wire_type_of(field_kind kind)
{
    switch (kind) {
    case field_kind::varint32:
    case field_kind::varint64:
        return varint_type;
    case field_kind::fixed32:
        return fixed32_type;
    default:
        return delimited_type;
    }
}

int32_t decoder::run()
{
    reset(of_, record_);
    while (wire_.position < wire_.length) {
        uint32_t tag = 0;
        if (!wire_.read32(tag))
            return truncated;
        const field *known = nullptr;
        for (const field &member : of_.fields) {
            if (member.number == tag >> 3)
                known = &member;
        }
        const int32_t result = known != nullptr ? known_field(*known, tag & 7) : wire_.skip(tag & 7);
        if (result != ok)
            return result;
    }
    return ok;
}

// The bit is set last: a field that fails leaves it as it was.
int32_t decoder::known_field(const field &member, uint32_t wire_type)
{
    if (wire_type != wire_type_of(member.kind))
        return wrong_wire_type;
    using value_function = int32_t (decoder::*)(const field &);
    constexpr value_function value_of_kind[] = {&decoder::varint32_value, &decoder::varint64_value,
        &decoder::fixed32_value, &decoder::bytes_value, &decoder::text_value, &decoder::record_value,
        &decoder::array_value, &decoder::array_value};
    const int32_t result = (this->*value_of_kind[static_cast<uint32_t>(member.kind)])(member);
    if (result == ok)
        set_present(of_, record_, member, true);
    return result;
}

int32_t decoder::varint32_value(const field &member)
{
    uint32_t value = 0;
    if (!wire_.read32(value))
        return truncated;
    store(record_, member.offset, value);
    return ok;
}

int32_t decoder::varint64_value(const field &member)
{
    uint64_t value = 0;
    if (!wire_.read64(value))
        return truncated;
    store(record_, member.offset, value);
    return ok;
}

int32_t decoder::fixed32_value(const field &member)
{
    uint32_t value = 0;
    if (!wire_.read_fixed32(value))
        return truncated;
    store(record_, member.offset, value);
    return ok;
}

int32_t decoder::bytes_value(const field &member)
{
    const bool alias = (flags_ & alias_flag) != 0;
    if (holds_pointer(member))
        return truncated;
    if (source_.allocate == nullptr && !alias)
        return no_memory;
    uint64_t end = 0;
    if (!wire_.read_extent(end))
        return truncated;
    const uint64_t length = end - wire_.position;
    const uint8_t *wire_bytes = wire_.data + wire_.position;
    uint8_t *stored = const_cast<uint8_t *>(wire_bytes);
    if (!alias) {
        stored = obtain(length);
        if (stored == nullptr)
            return no_memory;
        for (uint64_t index = 0; index < length; ++index)
            stored[index] = wire_bytes[index];
    }
    store(record_, member.offset, stored);
    store(record_, member.offset + bytes_length_offset, length);
    wire_.position = end;
    return ok;
}

// A text is copied in both modes, and a NUL is added.
int32_t decoder::obtain_text(uint64_t end, uint8_t *&text)
{
    const uint64_t length = end - wire_.position;
    text = obtain(static_cast<uint32_t>(length + 1));
    if (text == nullptr)
        return no_memory;
    for (uint64_t index = 0; index < length; ++index)
        text[index] = wire_.data[wire_.position + index];
    text[length] = 0;
    wire_.position = end;
    return ok;
}

int32_t decoder::text_value(const field &member)
{
    if (holds_pointer(member))
        return truncated;
    if (source_.allocate == nullptr)
        return no_memory;
    uint64_t end = 0;
    if (!wire_.read_extent(end))
        return truncated;
    uint8_t *text = nullptr;
    const int32_t result = obtain_text(end, text);
    if (result == ok)
        store(record_, member.offset, text);
    return result;
}

// The nested message reads its own bytes only.
int32_t decoder::nested_value(const message &nested, uint8_t *record, uint64_t end)
{
    const cursor inside = {wire_.data + wire_.position, end - wire_.position, 0};
    wire_.position = end;
    return decoder(nested, record, inside, source_, flags_).run();
}

int32_t decoder::record_value(const field &member)
{
    uint64_t end = 0;
    if (!wire_.read_extent(end))
        return truncated;
    return nested_value(*member.nested, record_ + member.offset, end);
}

// Counts consecutive elements with one number. The wire type is checked for the first one only.
int32_t decoder::count_run(uint32_t number, uint64_t &count) const
{
    cursor ahead = wire_;
    count = 0;
    uint32_t tag = number << 3;
    while (tag >> 3 == number) {
        uint64_t end = 0;
        if (!ahead.read_extent(end))
            return truncated;
        ahead.position = end;
        count += 1;
        if (ahead.position >= ahead.length)
            return ok;
        if (!ahead.read32(tag))
            return truncated;
    }
    return ok;
}

int32_t decoder::element(const field &member, uint8_t *slot)
{
    uint64_t end = 0;
    if (!wire_.read_extent(end))
        return truncated;
    if (member.kind == field_kind::record_array)
        return nested_value(*member.nested, slot, end);
    uint8_t *text = nullptr;
    const int32_t result = obtain_text(end, text);
    if (result == ok)
        store(slot, 0, text);
    return result;
}

int32_t decoder::array_value(const field &member)
{
    if (holds_pointer(member))
        return truncated;
    if (source_.allocate == nullptr)
        return no_memory;
    uint64_t count = 0;
    if (count_run(member.number, count) != ok)
        return truncated;
    const uint64_t size = count * element_bytes(member);
    uint8_t *array = obtain(size);
    if (array == nullptr)
        return no_memory;
    std::memset(array, 0, size);
    store(record_, member.offset, array);
    store(record_, member.count_offset, static_cast<uint32_t>(count));
    for (uint64_t index = 0; index < count; ++index) {
        uint32_t tag = 0;
        if (index > 0 && !wire_.read32(tag))
            return truncated;
        const int32_t result = element(member, array + index * element_bytes(member));
        if (result != ok)
            return result;
    }
    return ok;
}

} // namespace

int32_t model_decode(const message &of, uint8_t *record, const uint8_t *data, uint64_t length,
    const memory_source &source, uint32_t flags)
{
    return decoder(of, record, {data, length, 0}, source, flags).run();
}

} // namespace mava_tum_model
