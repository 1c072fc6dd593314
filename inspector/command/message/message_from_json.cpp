#include "message/message_from_json.h"

#include "bad_use.h"
#include "record_number.h"

#include <cstddef>
#include <cstring>
#include <fmt/format.h>
#include <limits>
#include <memory_resource>

namespace mava_tum_cli
{

namespace
{

using mava_tum_inspect::field_description;
using mava_tum_inspect::field_kind;
using mava_tum_inspect::message_description;

template <class Value>
void store(std::byte *to, const Value &value)
{
    std::memcpy(to, &value, sizeof value);
}

// Fills codec records; what they point at lives as long as this.
class record_filler
{
public:
    std::byte *filled_record(const message_description &message, const json &value, const std::string &path)
    {
        std::byte *record = zeroed_block(message.record_bytes);
        fill(message, value, path, record);
        return record;
    }

private:
    std::byte *zeroed_block(size_t size_bytes)
    {
        void *block = m_memory.allocate(size_bytes, alignof(std::max_align_t));
        std::memset(block, 0, size_bytes);
        return static_cast<std::byte *>(block);
    }

    void fill(const message_description &message, const json &value, const std::string &path, std::byte *record)
    {
        if (!value.is_object())
            refuse_value(path, fmt::format("an object with the fields of {}", message.name), value);
        for (const auto &[name, field_value] : value.items()) {
            const std::string place = member_path(path, name);
            const field_description &field = field_named(message, name, place);
            store_field(field, field_value, place, record);
            set_presence(message, field, record);
        }
    }

    static const field_description &field_named(
        const message_description &message, const std::string &name, const std::string &path)
    {
        if (const field_description *field = mava_tum_inspect::find_field(message, name))
            return *field;
        std::string known;
        for (const field_description &field : message.fields)
            known += (known.empty() ? "" : ", ") + std::string(field.name);
        throw bad_use(fmt::format("{}: {} has no such field; it has {}", path, message.name, known));
    }

    static void set_presence(const message_description &message, const field_description &field, std::byte *record)
    {
        std::byte *mask = record + message.mask_offset;
        const uint64_t bit = uint64_t{1} << (field.number - 1);
        store_number(mask, message.mask_bytes, load_number(mask, message.mask_bytes) | bit);
    }

    void store_field(const field_description &field, const json &value, const std::string &path, std::byte *record)
    {
        std::byte *to = record + field.member_offset;
        switch (field.kind) {
        case field_kind::varint:
            return store_varint(field, value, path, to);
        case field_kind::fixed32:
            // A record holds an address so that 192.0.2.1 is 0x010200C0, on every host.
            return store(to, __builtin_bswap32(ipv4_of_json(value, path)));
        case field_kind::bytes:
            return store(to, bytes_block(value, path));
        case field_kind::text:
            return store(to, text_block(value, path));
        case field_kind::record:
            return fill(*field.nested, value, path, to);
        case field_kind::record_array:
        case field_kind::text_array:
            return store_array(field, value, path, record);
        }
    }

    static void store_varint(const field_description &field, const json &value, const std::string &path, std::byte *to)
    {
        if (field.value_bits == 64)
            return store(to, number_of_json(value, path, std::numeric_limits<uint64_t>::max()));
        store(to, static_cast<uint32_t>(number_of_json(value, path, std::numeric_limits<uint32_t>::max())));
    }

    mava_tum_bytes bytes_block(const json &value, const std::string &path)
    {
        const byte_vector bytes = bytes_of_json(value, path);
        auto *block = reinterpret_cast<uint8_t *>(zeroed_block(bytes.size() + 1)); // there is no block of 0 bytes
        if (!bytes.empty())
            std::memcpy(block, bytes.data(), bytes.size());
        return {block, bytes.size()};
    }

    char *text_block(const json &value, const std::string &path)
    {
        const std::string text = text_of_json(value, path);
        auto *block = reinterpret_cast<char *>(zeroed_block(text.size() + 1));
        std::memcpy(block, text.c_str(), text.size());
        return block;
    }

    void store_array(const field_description &field, const json &value, const std::string &path, std::byte *record)
    {
        if (!value.is_array())
            refuse_value(path, "an array", value);
        const size_t element_bytes = field.nested != nullptr ? field.nested->record_bytes : sizeof(char *);
        std::byte *elements = zeroed_block(value.size() * element_bytes + 1);
        for (size_t i = 0; i < value.size(); ++i) {
            const std::string place = element_path(path, i);
            std::byte *element = elements + i * element_bytes;
            if (field.nested != nullptr)
                fill(*field.nested, value[i], place, element);
            else
                store(element, text_block(value[i], place));
        }
        store(record + field.member_offset, elements);
        store(record + field.count_offset, static_cast<uint32_t>(value.size()));
    }

    std::pmr::monotonic_buffer_resource m_memory;
};

// No message has a field of this name.
constexpr const char *record_key = "record";
constexpr const char *message_key = "message";

// What `decode --json` prints says of which message it is.
void check_message_name(const message_description &message, const json &document)
{
    const auto name = document.find(message_key);
    if (name == document.end() || *name == message.name)
        return;
    const std::string place = member_path("", message_key);
    const std::string expected = fmt::format("\"{}\"", message.name);
    if (!name->is_string())
        refuse_value(place, expected, *name);
    throw bad_use(fmt::format(
        "{}: expected {}, found {}; name the message that the document holds", place, expected, name->dump()));
}

} // namespace

byte_vector encode_json(const message_description &message, const json &document)
{
    const bool is_wrapped = document.is_object() && document.contains(record_key);
    if (is_wrapped)
        check_message_name(message, document);
    record_filler filler;
    const std::byte *record = is_wrapped
                                  ? filler.filled_record(message, document[record_key], member_path("", record_key))
                                  : filler.filled_record(message, document, "");
    byte_vector wire(message.encode(record, nullptr, 0, nullptr, nullptr, 0));
    message.encode(record, wire.data(), wire.size(), nullptr, nullptr, 0);
    return wire;
}

} // namespace mava_tum_cli
