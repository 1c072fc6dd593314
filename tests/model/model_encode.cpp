#include "model/model.h"
#include "model/model_wire.h"
#include "model/raw_memory.h"

namespace mava_tum_model
{

namespace
{

// One level of one message. Nothing but `put` and `put_block` writes.
class encoder
{
public:
    encoder(const message &of, const uint8_t *record, const encode_output &output, uint32_t flags)
        : of_(of), record_(record), output_(output), flags_(flags),
          gathers_(of.encode_takes_flags && (flags & alias_flag) != 0),
          segment_capacity_(output.segment_count == nullptr || output.segments == nullptr ? 0 : *output.segment_count)
    {
    }

    uint64_t run();

private:
    void put(uint64_t byte);
    void put_varint(uint64_t value);
    void put_block(const uint8_t *content, uint64_t length);
    void put_tag(const field &member, uint32_t wire_type);
    void add_segment(const model_segment &added);
    void add_buffer_segment();
    void finish_segments();

    void put_member(const field &member);
    void put_fixed32(const field &member);
    void put_bytes(const field &member);
    void put_text(const field &member, const uint8_t *text);
    void put_nested(const field &member, const uint8_t *nested_record, bool present);
    void put_array(const field &member);

    const message &of_;
    const uint8_t *record_;
    const encode_output &output_;
    uint32_t flags_;
    bool gathers_;
    uint32_t segment_capacity_;
    uint32_t segments_ = 0;
    uint64_t position_ = 0;
    uint64_t segment_end_ = 0; // the end of this level's last own segment; segments of nested messages do not change it
};

void encoder::put(uint64_t byte)
{
    if (position_ < output_.capacity)
        output_.buffer[position_] = static_cast<uint8_t>(byte);
    position_ += 1;
}

void encoder::put_varint(uint64_t value)
{
    while (value >= 0x80) {
        put((value & 0x7F) | 0x80);
        value >>= 7;
    }
    put(value);
}

// A block that does not fit completely is not written at all.
void encoder::put_block(const uint8_t *content, uint64_t length)
{
    const uint64_t end = position_ + length;
    if (end < position_)
        return;
    if (length != 0 && end <= output_.capacity)
        std::memcpy(output_.buffer + position_, content, length);
    position_ = end;
}

void encoder::put_tag(const field &member, uint32_t wire_type)
{
    put_varint(member.number * 8 + wire_type);
}

void encoder::add_segment(const model_segment &added)
{
    if (segments_ < segment_capacity_)
        output_.segments[segments_] = added;
    segments_ += 1;
}

void encoder::add_buffer_segment()
{
    model_segment own = {nullptr, position_ - segment_end_, true};
    if (output_.claimed_buffer != nullptr) {
        own.exact = segment_end_ <= output_.capacity;
        own.data = own.exact ? output_.claimed_buffer + segment_end_ : nullptr;
    }
    add_segment(own);
    segment_end_ = position_;
}

void encoder::put_fixed32(const field &member)
{
    const uint32_t value = load<uint32_t>(record_, member.offset);
    put_tag(member, fixed32_type);
    for (uint32_t shift = 0; shift < 32; shift += 8)
        put((value >> shift) & 0xFF);
}

void encoder::put_bytes(const field &member)
{
    const uint8_t *content = load_pointer(record_, member.offset);
    const uint64_t length = load_bytes_length(record_, member);
    put_tag(member, delimited_type);
    put_varint(static_cast<uint32_t>(length));
    if (!gathers_) {
        put_block(content, length);
    } else if (length != 0 && output_.segment_count != nullptr) {
        add_buffer_segment();
        add_segment({content, length, true});
    }
}

void encoder::put_text(const field &member, const uint8_t *text)
{
    if (text == nullptr)
        return;
    const uint64_t length = std::strlen(reinterpret_cast<const char *>(text));
    put_tag(member, delimited_type);
    put_varint(static_cast<uint32_t>(length));
    put_block(text, length);
}

void encoder::put_nested(const field &member, const uint8_t *nested_record, bool present)
{
    const uint64_t size = encoder(*member.nested, nested_record, {}, flags_).run();
    if (size == 0 && !present)
        return;
    put_tag(member, delimited_type);
    put_varint(static_cast<uint32_t>(size));
    encode_output inside;
    if (position_ < output_.capacity) {
        inside.buffer = output_.buffer + position_;
        inside.claimed_buffer = output_.claimed_buffer + position_;
        inside.capacity = output_.capacity - position_;
    }
    uint32_t nested_segments = segments_ < segment_capacity_ ? segment_capacity_ - segments_ : 0;
    if (gathers_ && output_.segment_count != nullptr) {
        inside.segments = nested_segments == 0 ? nullptr : output_.segments + segments_;
        inside.segment_count = &nested_segments;
    }
    // Without buffer and segments, this would write nothing.
    if (inside.buffer != nullptr || inside.segment_count != nullptr)
        encoder(*member.nested, nested_record, inside, flags_).run();
    if (inside.segment_count != nullptr)
        segments_ += nested_segments;
    position_ += size;
}

void encoder::put_array(const field &member)
{
    const uint8_t *array = load_pointer(record_, member.offset);
    const uint64_t count = load<uint32_t>(record_, member.count_offset);
    for (uint64_t index = 0; index < count; ++index) {
        const uint8_t *element = array + index * element_bytes(member);
        if (member.kind == field_kind::text_array)
            put_text(member, load_pointer(element, 0));
        else
            put_nested(member, element, true);
    }
}

void encoder::put_member(const field &member)
{
    const bool present = is_present(of_, record_, member);
    if (member.kind == field_kind::record) {
        put_nested(member, record_ + member.offset, present);
        return;
    }
    if (!present)
        return;
    switch (member.kind) {
    case field_kind::varint32:
        put_tag(member, varint_type);
        put_varint(load<uint32_t>(record_, member.offset));
        break;
    case field_kind::varint64:
        put_tag(member, varint_type);
        put_varint(load<uint64_t>(record_, member.offset));
        break;
    case field_kind::fixed32:
        put_fixed32(member);
        break;
    case field_kind::bytes:
        put_bytes(member);
        break;
    case field_kind::text:
        put_text(member, load_pointer(record_, member.offset));
        break;
    default:
        put_array(member);
    }
}

// Without gather mode, the whole output is the only segment, also with nested messages.
void encoder::finish_segments()
{
    if (output_.segment_count == nullptr)
        return;
    if (position_ > segment_end_)
        add_buffer_segment();
    *output_.segment_count = segments_;
}

uint64_t encoder::run()
{
    for (const field &member : of_.fields)
        put_member(member);
    finish_segments();
    return position_;
}

} // namespace

uint64_t model_encode(const message &of, const uint8_t *record, const encode_output &output, uint32_t flags)
{
    return encoder(of, record, output, flags).run();
}

} // namespace mava_tum_model
