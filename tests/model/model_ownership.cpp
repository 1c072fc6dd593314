#include "model/model.h"
#include "model/model_wire.h"
#include "model/raw_memory.h"

namespace mava_tum_model
{

namespace
{

uint8_t *copy_of(const uint8_t *content, uint64_t length, const memory_source &memory)
{
    if (memory.allocate == nullptr)
        return nullptr;
    uint8_t *copy = static_cast<uint8_t *>(memory.allocate(length, memory.context));
    if (copy != nullptr)
        std::memcpy(copy, content, length);
    return copy;
}

// Null for a null text, and for one that could not be copied; `result` then has the error.
uint8_t *copy_of_text(const uint8_t *text, const memory_source &memory, int32_t &result)
{
    if (text == nullptr)
        return nullptr;
    uint8_t *copy = copy_of(text, std::strlen(reinterpret_cast<const char *>(text)) + 1, memory);
    if (copy == nullptr)
        result = no_memory;
    return copy;
}

int32_t duplicate_bytes(const field &member, uint8_t *destination, const uint8_t *source, const memory_source &memory)
{
    uint64_t length = load_bytes_length(source, member);
    uint8_t *copy = length == 0 ? nullptr : copy_of(load_pointer(source, member.offset), length, memory);
    const int32_t result = length != 0 && copy == nullptr ? no_memory : ok;
    if (copy == nullptr)
        length = 0;
    store(destination, member.offset, copy);
    store(destination, member.offset + bytes_length_offset, length);
    return result;
}

int32_t duplicate_text(const field &member, uint8_t *destination, const uint8_t *source, const memory_source &memory)
{
    int32_t result = ok;
    store(destination, member.offset, copy_of_text(load_pointer(source, member.offset), memory, result));
    return result;
}

int32_t duplicate_elements(
    const field &member, uint8_t *copies, const uint8_t *elements, uint32_t count, const memory_source &memory)
{
    int32_t result = ok;
    for (uint64_t index = 0; index < count; ++index) {
        const uint64_t at = index * element_bytes(member);
        if (member.kind == field_kind::text_array)
            store(copies + at, 0, copy_of_text(load_pointer(elements + at, 0), memory, result));
        else if (model_duplicate(*member.nested, copies + at, elements + at, memory) != ok)
            result = no_memory;
    }
    return result;
}

// An element that could not be copied completely stays in the array, and the array stays: only `obtained` decides the
// bit.
int32_t duplicate_array(
    const field &member, uint8_t *destination, const uint8_t *source, const memory_source &memory, bool &obtained)
{
    store(destination, member.offset, static_cast<uint8_t *>(nullptr));
    store(destination, member.count_offset, uint32_t{0});
    const uint32_t count = load<uint32_t>(source, member.count_offset);
    if (count == 0)
        return ok;
    const uint64_t size = uint64_t{count} * element_bytes(member);
    uint8_t *array =
        memory.allocate == nullptr ? nullptr : static_cast<uint8_t *>(memory.allocate(size, memory.context));
    obtained = array != nullptr;
    if (!obtained)
        return no_memory;
    std::memset(array, 0, size);
    store(destination, member.offset, array);
    store(destination, member.count_offset, count);
    return duplicate_elements(member, array, load_pointer(source, member.offset), count, memory);
}

int32_t duplicate_member(
    const message &of, const field &member, uint8_t *destination, const uint8_t *source, const memory_source &memory)
{
    int32_t result = ok;
    bool copied = true;
    switch (member.kind) {
    case field_kind::varint32:
    case field_kind::fixed32:
        store(destination, member.offset, load<uint32_t>(source, member.offset));
        break;
    case field_kind::varint64:
        store(destination, member.offset, load<uint64_t>(source, member.offset));
        break;
    case field_kind::bytes:
        result = duplicate_bytes(member, destination, source, memory);
        copied = result == ok;
        break;
    case field_kind::text:
        result = duplicate_text(member, destination, source, memory);
        copied = result == ok;
        break;
    case field_kind::record:
        result = model_duplicate(*member.nested, destination + member.offset, source + member.offset, memory);
        break;
    case field_kind::record_array:
    case field_kind::text_array:
        result = duplicate_array(member, destination, source, memory, copied);
        break;
    }
    set_present(of, destination, member, copied && is_present(of, source, member));
    return result;
}

void release_pointer(uint8_t *record, uint32_t offset, const memory_sink &sink)
{
    uint8_t *pointer = load_pointer(record, offset);
    if (pointer == nullptr)
        return;
    sink.release(pointer, sink.context);
    store(record, offset, static_cast<uint8_t *>(nullptr));
}

void free_array(const field &member, uint8_t *record, const memory_sink &sink, uint32_t flags)
{
    uint8_t *array = load_pointer(record, member.offset);
    const uint64_t count = array == nullptr ? 0 : load<uint32_t>(record, member.count_offset);
    for (uint64_t index = 0; index < count; ++index) {
        uint8_t *element = array + index * element_bytes(member);
        if (member.kind == field_kind::text_array)
            release_pointer(element, 0, sink);
        else
            model_free(*member.nested, element, sink, flags);
    }
    release_pointer(record, member.offset, sink);
    store(record, member.count_offset, uint32_t{0});
}

} // namespace

int32_t model_duplicate(const message &of, uint8_t *destination, const uint8_t *source, const memory_source &memory)
{
    int32_t result = ok;
    for (const field &member : of.fields) {
        if (duplicate_member(of, member, destination, source, memory) != ok)
            result = no_memory;
    }
    return result;
}

void model_free(const message &of, uint8_t *record, const memory_sink &sink, uint32_t flags)
{
    for (const field &member : of.fields) {
        switch (member.kind) {
        case field_kind::bytes:
            if ((flags & alias_flag) == 0)
                release_pointer(record, member.offset, sink);
            break;
        case field_kind::text:
            release_pointer(record, member.offset, sink);
            break;
        case field_kind::record:
            model_free(*member.nested, record + member.offset, sink, flags);
            break;
        case field_kind::record_array:
        case field_kind::text_array:
            free_array(member, record, sink, flags);
            break;
        default:
            break;
        }
    }
}

} // namespace mava_tum_model
