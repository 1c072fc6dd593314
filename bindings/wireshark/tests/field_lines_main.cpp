// Prints the fields that the library decodes, with the names of Wireshark: the expected result for a capture. Reads
// lines "MESSAGE BYTES-IN-HEX" from the standard input; prints for each
//     MESSAGE
//     pbf.mava_tum.MESSAGE.FIELD VALUE     for each field that is present, those of a record behind the record itself
// Exits with 1 at a message that the library refuses.
#include "inspector/library/message_table.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>
#include <vector>

namespace
{

using mava_tum_inspect::field_description;
using mava_tum_inspect::field_kind;
using mava_tum_inspect::message_description;

template <class Member>
const Member &member_at(const void *record, std::size_t offset)
{
    return *reinterpret_cast<const Member *>(static_cast<const char *>(record) + offset);
}

bool is_present(const message_description &message, const void *record, uint32_t number)
{
    uint32_t mask = 0; // little-endian, as on all platforms of these tests
    std::memcpy(&mask, static_cast<const char *>(record) + message.mask_offset, message.mask_bytes);
    return (mask >> (number - 1) & 1) != 0;
}

std::string in_hex(const mava_tum_bytes &bytes)
{
    std::string text;
    for (uint64_t i = 0; i < bytes.length; ++i) {
        char digits[4];
        std::snprintf(digits, sizeof digits, i == 0 ? "%02x" : ":%02x", bytes.data[i]);
        text += digits;
    }
    return text;
}

void print_fields(const message_description &message, const void *record);

void print_elements(const std::string &name, const field_description &field, const void *record)
{
    const uint32_t count = member_at<uint32_t>(record, field.count_offset);
    for (uint32_t i = 0; i < count; ++i) {
        if (field.kind == field_kind::text_array) {
            std::cout << name << " " << member_at<char **>(record, field.member_offset)[i] << "\n";
            continue;
        }
        std::cout << name << "\n";
        const char *elements = member_at<const char *>(record, field.member_offset);
        print_fields(*field.nested, elements + i * field.nested->record_bytes);
    }
}

std::string value_of(const field_description &field, const void *record)
{
    switch (field.kind) {
    case field_kind::bytes:
        return in_hex(member_at<mava_tum_bytes>(record, field.member_offset));
    case field_kind::text:
        return member_at<const char *>(record, field.member_offset);
    default:
        return std::to_string(field.value_bits == 64 ? member_at<uint64_t>(record, field.member_offset)
                                                     : member_at<uint32_t>(record, field.member_offset));
    }
}

void print_field(const message_description &message, const field_description &field, const void *record)
{
    const std::string name = std::string("pbf.mava_tum.") + message.name + "." + field.name;
    switch (field.kind) {
    case field_kind::record:
        std::cout << name << "\n";
        return print_fields(*field.nested, static_cast<const char *>(record) + field.member_offset);
    case field_kind::record_array:
    case field_kind::text_array:
        return print_elements(name, field, record);
    default:
        std::cout << name << " " << value_of(field, record) << "\n";
    }
}

void print_fields(const message_description &message, const void *record)
{
    for (const field_description &field : message.fields)
        if (is_present(message, record, field.number))
            print_field(message, field, record);
}

std::vector<uint8_t> from_hex(const std::string &hex)
{
    std::vector<uint8_t> bytes(hex.size() / 2);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        std::from_chars(hex.data() + 2 * i, hex.data() + 2 * i + 2, bytes[i], 16);
    return bytes;
}

void *allocate(uint64_t size, void *)
{
    return std::malloc(size != 0 ? size : 1);
}

void release(void *pointer, void *)
{
    std::free(pointer);
}

bool print_message(const std::string &name, const std::vector<uint8_t> &bytes)
{
    const message_description *message = mava_tum_inspect::find_message(name);
    if (message == nullptr)
        return false;
    std::vector<uint64_t> record(message->record_bytes / sizeof(uint64_t) + 1); // aligned for any record
    const int32_t result = message->decode(record.data(), bytes.data(), bytes.size(), allocate, nullptr, 0);
    std::cout << name << "\n";
    if (result == MAVA_TUM_OK)
        print_fields(*message, record.data());
    message->free(record.data(), release, nullptr, 0);
    return result == MAVA_TUM_OK;
}

} // namespace

int main()
{
    std::string name, hex;
    while (std::cin >> name) {
        std::getline(std::cin >> std::ws, hex);
        if (!print_message(name, from_hex(hex))) {
            std::cerr << "the library refuses this " << name << ": " << hex << "\n";
            return 1;
        }
    }
    return 0;
}
