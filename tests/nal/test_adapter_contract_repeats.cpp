// A nested record that occurs twice: the result is that of the second occurrence alone, for every nested record of
// every adapter and for each of its fields.
#include "nal/adapter_list.h"
#include "nal/wire_fields.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>

namespace mava_tum_test
{
namespace
{

// A nested record, by its field numbers from the message. Elements of lists are not included: a repetition is one more
// element.
struct nested_path {
    const char *adapter_name;
    std::vector<uint32_t> numbers;
};

const std::vector<nested_path> &nested_records()
{
    static const auto paths = [] {
        std::vector<nested_path> made;
        for (uint32_t number : {8, 9, 10, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22})
            made.push_back({"session_context", {number}});
        for (uint32_t number : {3, 4, 10})
            made.push_back({"session_context", {10, number}});
        made.push_back({"sess_oper_resp", {9}});
        for (uint32_t number : {7, 10, 12}) {
            made.push_back({"subscriber_stats", {number}});
            made.push_back({"sess_oper_resp", {9, number}});
        }
        return made;
    }();
    return paths;
}

const adapter &adapter_named(const std::string &name)
{
    for (const adapter &listed : all_adapters()) {
        if (name == listed.name)
            return listed;
    }
    throw std::invalid_argument(name);
}

byte_vector part_of(const byte_vector &wire, std::size_t begin, std::size_t end)
{
    return byte_vector(
        wire.begin() + static_cast<std::ptrdiff_t>(begin), wire.begin() + static_cast<std::ptrdiff_t>(end));
}

// The content of the nested record in the message.
byte_vector content_under(byte_vector wire, const std::vector<uint32_t> &numbers)
{
    for (const uint32_t number : numbers) {
        byte_vector found;
        for (const wire_field &field : fields_in(wire)) {
            std::size_t content = field.value;
            if (field.number == number && found.empty() && varint_at(wire, content) != 0)
                found = part_of(wire, content, field.end);
        }
        wire = found;
    }
    return wire;
}

// A message with nothing but these occurrences of the nested record, all in one parent.
byte_vector message_with(const std::vector<uint32_t> &numbers, const std::vector<byte_vector> &occurrences)
{
    wire_builder wire;
    for (const byte_vector &occurrence : occurrences)
        wire.length_delimited(numbers.back(), occurrence);
    byte_vector message = wire;
    for (std::size_t level = numbers.size() - 1; level > 0; --level)
        message = wire_builder().length_delimited(numbers[level - 1], message);
    return message;
}

// Nothing, each field alone, all except the last byte, and everything followed by a fault.
std::vector<byte_vector> second_occurrences(const byte_vector &full)
{
    std::vector<byte_vector> seconds = {{}, part_of(full, 0, full.size() - 1), joined({full, bytes_of("07")})};
    for (const wire_field &field : fields_in(full))
        seconds.push_back(part_of(full, field.begin, field.end));
    return seconds;
}

TEST(adapter_contract_repeats, a_nested_record_that_occurs_twice_arrives_as_its_second_occurrence_alone)
{
    for (const nested_path &path : nested_records()) {
        const adapter &tested = adapter_named(path.adapter_name);
        const byte_vector full = content_under(send(tested, tested.sent), path.numbers);
        ASSERT_FALSE(full.empty()) << tested.name << " " << testing::PrintToString(path.numbers);
        const byte_vector nothing = receive(tested, message_with(path.numbers, {{}}));
        EXPECT_NE(receive(tested, message_with(path.numbers, {full})), nothing)
            << tested.name << " " << testing::PrintToString(path.numbers);
        for (const byte_vector &second : second_occurrences(full)) {
            EXPECT_EQ(receive(tested, message_with(path.numbers, {full, second})),
                receive(tested, message_with(path.numbers, {second})))
                << tested.name << " " << testing::PrintToString(path.numbers) << ", then " << hex_of(second);
        }
    }
}

TEST(adapter_contract_repeats, a_second_occurrence_of_its_parent_replaces_a_nested_record_too)
{
    for (const nested_path &path : nested_records()) {
        if (path.numbers.size() != 2)
            continue;
        const adapter &tested = adapter_named(path.adapter_name);
        const byte_vector full = content_under(send(tested, tested.sent), path.numbers);
        const byte_vector empty_parent = wire_builder().length_delimited(path.numbers[0], {});
        EXPECT_EQ(
            receive(tested, joined({message_with(path.numbers, {full}), empty_parent})), receive(tested, empty_parent))
            << tested.name << " " << testing::PrintToString(path.numbers);
    }
}

} // namespace
} // namespace mava_tum_test
