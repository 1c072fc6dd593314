// Every adapter with every truncation of its message, every capacity of its buffer, and malformed messages. `send` and
// `receive` also check that no byte outside the record and the buffer is accessed and that no allocator is called.
#include "nal/adapter_list.h"
#include "nal/wire_fields.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace mava_tum_test
{
namespace
{

// Only the full message of routes is too long for a sweep: with three of each family, it has the same fields.
byte_vector swept_record(const adapter &tested)
{
    byte_vector record = tested.sent;
    if (std::string(tested.name) == "sub_route") {
        for (const list_member &list : tested.lists)
            set_count(record, list.sent_offset, list.count_bytes, 3);
    }
    return record;
}

// ---- cuts ----

// The part of a message truncated at `cut` that arrives: all complete fields, and of a list all elements or none. If
// the cut is inside the next tag, that could be one more element, so the list does not arrive.
std::size_t arriving_bytes(const std::vector<wire_field> &fields, std::size_t cut)
{
    std::map<uint32_t, int> entries;
    for (const wire_field &field : fields)
        ++entries[field.number];
    std::size_t complete = 0;
    while (complete < fields.size() && fields[complete].end <= cut)
        ++complete;
    if (complete == fields.size() || fields[complete].begin == cut)
        return cut;
    if (complete == 0)
        return 0;
    const uint32_t last = fields[complete - 1].number;
    const bool may_go_on = cut < fields[complete].value || fields[complete].number == last;
    if (entries[last] > 1 && may_go_on) {
        while (complete > 0 && fields[complete - 1].number == last)
            --complete;
    }
    return complete == 0 ? 0 : fields[complete - 1].end;
}

TEST(adapter_contract_sweeps, a_cut_message_arrives_as_its_complete_fields_say)
{
    for (const adapter &tested : all_adapters()) {
        const byte_vector wire = send(tested, swept_record(tested));
        const byte_vector whole = receive(tested, wire);
        const std::vector<wire_field> fields = fields_in(wire);
        std::map<std::size_t, byte_vector> records; // by the bytes that arrive
        for (std::size_t cut = 0; cut < wire.size(); ++cut) {
            const auto at = [&](std::size_t length) { return wire.begin() + static_cast<std::ptrdiff_t>(length); };
            const std::size_t arriving = arriving_bytes(fields, cut);
            if (records.count(arriving) == 0) {
                records[arriving] = receive(tested, byte_vector(wire.begin(), at(arriving)));
                expect_part_of(tested, records[arriving], whole, "first " + std::to_string(arriving) + " bytes");
            }
            ASSERT_EQ(receive(tested, byte_vector(wire.begin(), at(cut))), records[arriving])
                << tested.name << " cut at " << cut << ", of which " << arriving << " bytes arrive";
        }
        EXPECT_EQ(records.begin()->second, byte_vector(whole.size(), 0)) << tested.name;
    }
}

TEST(adapter_contract_sweeps, each_complete_field_of_a_message_adds_to_what_arrives)
{
    const auto content = [](const byte_vector &record) {
        return static_cast<std::size_t>(record.size()) -
               static_cast<std::size_t>(std::count(record.begin(), record.end(), 0));
    };
    for (const adapter &tested : all_adapters()) {
        const byte_vector wire = send(tested, swept_record(tested));
        std::size_t before = 0;
        for (const wire_field &field : fields_in(wire)) {
            const auto end = wire.begin() + static_cast<std::ptrdiff_t>(field.end);
            const std::size_t after = content(receive(tested, byte_vector(wire.begin(), end)));
            const bool dropped = std::string(tested.name) == "rec_start_req" && field.number < 3;
            EXPECT_EQ(after > before, !dropped) << tested.name << ", field " << field.number;
            before = after;
        }
    }
}

// ---- capacities ----

TEST(adapter_contract_sweeps, every_capacity_gives_the_size_and_a_prefix)
{
    constexpr std::size_t longest_block = 255; // a text or address that does not fit completely is not written at all
    for (const adapter &tested : all_adapters()) {
        byte_vector record = swept_record(tested);
        const byte_vector whole = send(tested, record);
        const std::size_t step = whole.size() > 2000 ? MAVA_TUM_WORK_DIVISOR : 1;
        for (std::size_t capacity = (whole.size() + 1) % step; capacity <= whole.size() + 1; capacity += step) {
            const write_trace trace = trace_writes(capacity, [&](uint8_t *buffer, std::size_t size) {
                ASSERT_EQ(tested.encode(record.data(), buffer, static_cast<uint32_t>(size)), whole.size());
            });
            const auto first_hole = std::find(trace.written.begin(), trace.written.end(), false);
            const std::size_t written = static_cast<std::size_t>(first_hole - trace.written.begin());
            const std::size_t end = std::min(capacity, whole.size());
            ASSERT_TRUE(trace.guards_intact) << tested.name << ", capacity " << capacity;
            ASSERT_LE(written, end) << tested.name << ", capacity " << capacity;
            ASSERT_LT(end - written, longest_block) << tested.name << ", capacity " << capacity;
            ASSERT_EQ(std::count(first_hole, trace.written.end(), true), 0) << tested.name << ", " << capacity;
            ASSERT_TRUE(std::equal(
                trace.bytes.begin(), trace.bytes.begin() + static_cast<std::ptrdiff_t>(written), whole.begin()))
                << tested.name << ", capacity " << capacity;
            ASSERT_EQ(written == whole.size(), capacity >= whole.size()) << tested.name << ", capacity " << capacity;
        }
    }
}

// ---- damage ----

// In any result, the counts are at most the slots, and the record can be sent again.
void expect_consistent(const adapter &tested, const byte_vector &record)
{
    for (const list_member &list : tested.lists)
        ASSERT_LE(count_at(record, list.received_offset, list.count_bytes), list.slots) << list.what;
    if (tested.sent.size() == record.size() && std::string(tested.name) != "rec_sess_replay_req")
        send(tested, record);
}

TEST(adapter_contract_sweeps, damaged_messages_stay_inside_the_record)
{
    std::mt19937 random(30);
    for (const adapter &tested : all_adapters()) {
        const byte_vector wire = send(tested, swept_record(tested));
        std::size_t changed = 0;
        for (int round = 0; round < 1500; ++round) {
            byte_vector damaged = wire;
            for (std::size_t hits = random() % 4 + 1; hits > 0; --hits)
                damaged[random() % damaged.size()] = static_cast<uint8_t>(random());
            const byte_vector record = receive(tested, damaged);
            changed += record != tested.received;
            expect_consistent(tested, record);
        }
        EXPECT_GT(changed, 700u) << tested.name;
    }
}

TEST(adapter_contract_sweeps, lengths_that_lie_stay_inside_the_record)
{
    for (const adapter &tested : all_adapters()) {
        for (uint32_t field = 1; field <= 24; ++field) {
            for (uint64_t length : {uint64_t{2}, uint64_t{0x7F}, uint64_t{0x7FFFFFFF}, uint64_t{0xFFFFFFFF}}) {
                const byte_vector wire =
                    wire_builder().tag(field, wire_type::length_delimited).bare_varint(length).raw("61");
                ASSERT_EQ(receive(tested, wire), byte_vector(tested.received.size(), 0))
                    << tested.name << ", field " << field;
            }
        }
    }
}

TEST(adapter_contract_sweeps, bytes_without_any_order_stay_inside_the_record)
{
    std::mt19937 random(31);
    for (const adapter &tested : all_adapters()) {
        for (int round = 0; round < 1500; ++round) {
            byte_vector noise(random() % 48);
            for (uint8_t &byte : noise)
                byte = static_cast<uint8_t>(random());
            expect_consistent(tested, receive(tested, noise));
        }
    }
}

} // namespace
} // namespace mava_tum_test
