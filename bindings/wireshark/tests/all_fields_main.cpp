// Writes each of the 40 messages with every field that it has, at every depth, as lines "MESSAGE BYTES-IN-HEX". No two
// values are the same; arrays have two elements.
#include "inspector/library/message_table.h"

#include <cstdio>
#include <cstring>
#include <deque>
#include <string>
#include <vector>

namespace
{

using mava_tum_inspect::field_description;
using mava_tum_inspect::field_kind;
using mava_tum_inspect::message_description;

constexpr uint32_t element_count = 2;

class record_filler
{
public:
    void fill(const message_description &message, char *record)
    {
        for (const field_description &field : message.fields)
            fill_field(field, record);
        std::memset(record + message.mask_offset, 0xFF, message.mask_bytes);
    }

private:
    void fill_field(const field_description &field, char *record)
    {
        char *member = record + field.member_offset;
        ++m_values;
        switch (field.kind) {
        case field_kind::varint:
        case field_kind::fixed32:
            return put_number(field, member);
        case field_kind::bytes:
            return put(member, mava_tum_bytes{reinterpret_cast<uint8_t *>(text()), m_texts.back().size()});
        case field_kind::text:
            return put(member, text());
        case field_kind::record:
            return fill(*field.nested, member);
        case field_kind::record_array:
            put(record + field.count_offset, element_count);
            return put(member, records(*field.nested));
        case field_kind::text_array:
            put(record + field.count_offset, element_count);
            return put(member, texts());
        }
    }

    void put_number(const field_description &field, char *member) const
    {
        const uint64_t number = m_values * 0x100000007u;
        if (field.value_bits == 64)
            put(member, number);
        else
            put(member, static_cast<uint32_t>(number ^ number >> 32));
    }

    char *text()
    {
        m_texts.push_back("value " + std::to_string(++m_values));
        return m_texts.back().data();
    }

    char *records(const message_description &message)
    {
        const std::size_t bytes = message.record_bytes * element_count;
        // Of 64-bit numbers, so that it is aligned for any record; the elements of a deque do not move.
        char *first = reinterpret_cast<char *>(m_blocks.emplace_back(bytes / sizeof(uint64_t) + 1).data());
        for (uint32_t i = 0; i < element_count; ++i)
            fill(message, first + i * message.record_bytes);
        return first;
    }

    char *texts()
    {
        std::vector<uint64_t> &block = m_blocks.emplace_back(element_count);
        char *const array[element_count] = {text(), text()};
        std::memcpy(block.data(), array, sizeof array);
        return reinterpret_cast<char *>(block.data());
    }

    template <class Value>
    static void put(char *member, Value value)
    {
        std::memcpy(member, &value, sizeof value);
    }

    uint64_t m_values = 0;
    std::deque<std::string> m_texts;
    std::deque<std::vector<uint64_t>> m_blocks;
};

void print_message(const message_description &message)
{
    record_filler filler;
    std::vector<uint64_t> record(message.record_bytes / sizeof(uint64_t) + 1);
    filler.fill(message, reinterpret_cast<char *>(record.data()));
    std::vector<uint8_t> wire(message.encode(record.data(), nullptr, 0, nullptr, nullptr, 0));
    message.encode(record.data(), wire.data(), wire.size(), nullptr, nullptr, 0);
    std::printf("%s ", message.name);
    for (const uint8_t byte : wire)
        std::printf("%02x", byte);
    std::printf("\n");
}

} // namespace

int main()
{
    for (const message_description &message : mava_tum_inspect::all_messages())
        print_message(message);
    return 0;
}
