// Rules for every adapter. `send` and `receive` also check that no allocator is called.
#include "nal/adapter_list.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>

namespace mava_tum_test
{
namespace
{

TEST(adapter_contract, the_list_holds_the_19_adapters)
{
    std::set<std::string> names;
    for (const adapter &tested : all_adapters())
        names.insert(tested.name);
    EXPECT_EQ(names.size(), 19u);
    EXPECT_EQ(all_adapters().size(), 19u);
}

// With a counter that counts nothing, the other tests would pass.
TEST(adapter_contract, a_call_of_an_allocator_would_be_seen)
{
    void *(*volatile allocate)(std::size_t) = std::malloc;
    void *block = nullptr;
    EXPECT_EQ(heap_calls_of([&] { block = allocate(1); }), 1u);
    std::free(block);
}

TEST(adapter_contract, an_all_zero_record_is_sent_as_its_known_bytes)
{
    for (const adapter &tested : all_adapters())
        EXPECT_EQ(hex_of(send(tested, byte_vector(tested.sent.size(), 0))), tested.all_zero_wire) << tested.name;
}

TEST(adapter_contract, the_message_of_an_all_zero_record_arrives_as_an_all_zero_record)
{
    for (const adapter &tested : all_adapters())
        EXPECT_EQ(receive(tested, bytes_of(tested.all_zero_wire)), byte_vector(tested.received.size(), 0))
            << tested.name;
}

TEST(adapter_contract, a_full_record_arrives_with_everything_that_is_carried)
{
    for (const adapter &tested : all_adapters())
        EXPECT_EQ(receive(tested, send(tested, tested.sent)), tested.received) << tested.name;
}

TEST(adapter_contract, an_empty_message_clears_the_whole_record)
{
    for (const adapter &tested : all_adapters()) {
        EXPECT_EQ(receive(tested, {}), byte_vector(tested.received.size(), 0)) << tested.name;
        byte_vector record(tested.received.size(), 0xFF);
        tested.decode(nullptr, 0, record.data());
        EXPECT_EQ(record, byte_vector(tested.received.size(), 0)) << tested.name;
    }
}

TEST(adapter_contract, fields_that_nobody_knows_are_skipped)
{
    const byte_vector unknown = wire_builder().varint(100, 7).text(101, "abc").fixed32(102, 1).fixed64(103, 1);
    for (const adapter &tested : all_adapters()) {
        const byte_vector wire = send(tested, tested.sent);
        EXPECT_EQ(receive(tested, joined({unknown, wire, unknown})), tested.received) << tested.name;
    }
}

TEST(adapter_contract, counts_above_the_slots_send_the_slots_and_read_nothing_beyond_the_record)
{
    for (const adapter &tested : all_adapters()) {
        const byte_vector all_slots = send(tested, tested.sent);
        byte_vector one_more = tested.sent;
        byte_vector most = tested.sent;
        for (const list_member &list : tested.lists) {
            ASSERT_EQ(count_at(tested.sent, list.sent_offset, list.count_bytes), list.slots) << list.what;
            set_count(one_more, list.sent_offset, list.count_bytes, list.slots + 1);
            set_count(most, list.sent_offset, list.count_bytes, ~uint64_t{0});
        }
        EXPECT_EQ(send(tested, one_more), all_slots) << tested.name;
        EXPECT_EQ(send(tested, most), all_slots) << tested.name;
    }
}

// ---- lists that are longer than their slots ----

// The number of elements of `sent` that arrive: a count of 8 bits is reduced modulo 256, then to the slots.
uint64_t arriving(const list_member &list, uint64_t sent)
{
    return std::min<uint64_t>(list.count_bytes == 1 ? sent % 256 : sent, list.slots);
}

TEST(adapter_contract, of_a_list_longer_than_its_slots_the_first_elements_arrive_and_the_count_says_how_many)
{
    for (const adapter &tested : all_adapters()) {
        for (const list_member &list : tested.lists) {
            for (std::size_t sent : {std::size_t{1}, list.slots, list.slots + 1, std::size_t{255}, std::size_t{256},
                     std::size_t{257}, std::size_t{258}, std::size_t{1000}, std::size_t{70000}}) {
                const byte_vector wire = list.wire(std::vector<byte_vector>(sent));
                const byte_vector record = receive(tested, wire);
                ASSERT_EQ(count_at(record, list.received_offset, list.count_bytes), arriving(list, sent))
                    << list.what << " with " << sent << " elements";
            }
        }
    }
}

TEST(adapter_contract, a_list_of_empty_elements_fills_nothing_but_counts)
{
    for (const adapter &tested : all_adapters()) {
        for (const list_member &list : tested.lists) {
            byte_vector record = receive(tested, list.wire(std::vector<byte_vector>(300)));
            for (const list_member &counted : tested.lists)
                set_count(record, counted.received_offset, counted.count_bytes, 0);
            EXPECT_EQ(record, byte_vector(record.size(), 0)) << list.what;
        }
    }
}

TEST(adapter_contract, a_list_with_an_element_that_fails_does_not_arrive_at_all)
{
    // Truncated inside its tag; a group, which cannot be skipped; field 1 with the wire type of fixed32.
    for (const char *malformed : {"80", "7B", "0D 00 00 00 00"}) {
        for (const adapter &tested : all_adapters()) {
            for (const list_member &list : tested.lists) {
                if (list.of_texts)
                    continue; // a text may have any bytes
                const byte_vector wire = list.wire({bytes_of("08 07"), bytes_of(malformed), bytes_of("08 07")});
                const byte_vector record = receive(tested, wire);
                EXPECT_EQ(count_at(record, list.received_offset, list.count_bytes), 0u) << list.what;
                EXPECT_EQ(record, byte_vector(record.size(), 0)) << list.what << ", " << malformed;
            }
        }
    }
}

TEST(adapter_contract, a_second_run_of_a_list_ends_the_message_and_the_first_arrives)
{
    for (const adapter &tested : all_adapters()) {
        for (const list_member &list : tested.lists) {
            const byte_vector run = list.wire(std::vector<byte_vector>(1));
            if (run.size() > 3)
                continue; // the list is in a nested record, which may be repeated
            const byte_vector unknown = wire_builder().varint(100, 7);
            EXPECT_EQ(receive(tested, joined({run, unknown, run, bytes_of("08 07")})), receive(tested, run))
                << list.what;
        }
    }
}

// ---- texts ----

TEST(adapter_contract, a_text_arrives_up_to_what_its_array_takes_with_a_nul_and_zeros_behind_it)
{
    for (const adapter &tested : all_adapters()) {
        for (const text_member &text : tested.texts) {
            for (std::size_t length : {std::size_t{0}, std::size_t{1}, text.kept - 1, text.kept, text.kept + 1,
                     std::size_t{70}, std::size_t{100}, std::size_t{5000}}) {
                const byte_vector record = receive(tested, text.wire(std::string(length, 'x')));
                byte_vector expected(std::min(length, text.kept), 'x');
                expected.resize(text.array_bytes, 0);
                const auto first = record.begin() + static_cast<std::ptrdiff_t>(text.offset);
                EXPECT_EQ(byte_vector(first, first + static_cast<std::ptrdiff_t>(text.array_bytes)), expected)
                    << text.what << " with " << length << " characters";
            }
        }
    }
}

TEST(adapter_contract, a_text_with_a_nul_inside_ends_there)
{
    for (const adapter &tested : all_adapters()) {
        for (const text_member &text : tested.texts)
            EXPECT_EQ(receive(tested, text.wire(std::string("ab\0cd", 5))), receive(tested, text.wire("ab")))
                << text.what;
    }
}

} // namespace
} // namespace mava_tum_test
