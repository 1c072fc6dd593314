#include "nal/adapter_list.h"

#include "nal/record_rows.h"
#include "nal/sample_records.h"
#include "nal/sample_session.h"
#include "support/wire_builder.h"

#include <bit>
#include <cstddef>

namespace mava_tum_test
{

namespace
{

// ---- entries ----

template <class record_type>
byte_vector bytes_of_record(const record_type &record)
{
    const uint8_t *first = reinterpret_cast<const uint8_t *>(&record);
    return byte_vector(first, first + sizeof record);
}

template <class sent_type, class received_type>
adapter entry(
    const char *name, const sent_type &sent_record, const received_type &received_record, const char *all_zero_wire)
{
    adapter added = {};
    added.name = name;
    added.sent = bytes_of_record(sent_record);
    added.received = bytes_of_record(received_record);
    added.all_zero_wire = all_zero_wire;
    added.encode = adapter_of<sent_type>().calls().encode;
    added.decode = adapter_of<received_type>().calls().decode;
    return added;
}

// A record that arrives as it was sent.
template <class record_type>
adapter entry(const char *name, const record_type &record, const char *all_zero_wire)
{
    return entry(name, record, record, all_zero_wire);
}

// A record of numbers only, which arrives as it was sent: the n-th has n in its highest bits.
adapter entry_of_numbers(const char *name, const char *all_zero_wire)
{
    const mava_tum_catalogue::adapter &of = *mava_tum_catalogue::find_adapter(name);
    byte_vector record(of.sent->size_bytes);
    uint64_t n = 0;
    for (const mava_tum_catalogue::record_member &member : of.sent->members)
        set_count(record, member.offset, member.size_bytes, ++n << (8 * member.size_bytes - 4));
    return {name, record, record, all_zero_wire, of.calls().encode, of.calls().decode, {}, {}};
}

// ---- messages ----

template <uint32_t field>
byte_vector list_wire(const std::vector<byte_vector> &elements)
{
    wire_builder wire;
    for (const byte_vector &element : elements)
        wire.length_delimited(field, element);
    return wire;
}

// The list is in a record that is nested in the given fields, the outermost first.
template <uint32_t field, uint32_t... outer>
byte_vector nested_list_wire(const std::vector<byte_vector> &elements)
{
    byte_vector wire = list_wire<field>(elements);
    const uint32_t levels[] = {outer...};
    for (std::size_t i = sizeof...(outer); i > 0; --i)
        wire = wire_builder().length_delimited(levels[i - 1], wire);
    return wire;
}

template <uint32_t field, uint32_t... outer>
byte_vector text_wire(const std::string &text)
{
    return nested_list_wire<field, outer...>({byte_vector(text.begin(), text.end())});
}

// ---- members ----

// A list of a record that is the same for sending and receiving.
list_member list_at(const char *what, std::size_t offset, std::size_t count_bytes, std::size_t slots,
    byte_vector (*wire)(const std::vector<byte_vector> &))
{
    return {what, offset, offset, count_bytes, slots, wire};
}

text_member text_at(const char *what, std::size_t offset, std::size_t array_bytes, std::size_t kept,
    byte_vector (*wire)(const std::string &))
{
    return {what, offset, array_bytes, kept, wire};
}

// Name, offset and size of a member.
#define MEMBER(record, member) #record "." #member, offsetof(record, member), sizeof(record{}.member)

using session = tum_nal_data_session_context;
using routes = tum_nal_data_sub_route;
using statistics = tum_nal_data_subscriber_stats;
using operation = tum_nal_data_sess_oper_resp;
using route_answer = tum_nal_data_subscriber_route_resp;
using start_request = tum_nal_data_rec_start_req;
using complete_request = tum_nal_data_rec_complete_req;
using answer = tum_nal_data_rec_res;
using states_request = tum_nal_data_rec_sess_req;
using states_answer = tum_nal_data_rec_sess_res;
using replay_sent = tum_nal_data_rec_sess_replay_req_encode;
using replay_received = tum_nal_data_rec_sess_replay_req_decode;
using replay_answer = tum_nal_data_rec_sess_replay_resp;
using groups_request = tum_nal_data_srg_group_rec_replay_req;
using groups_answer = tum_nal_data_srg_group_rec_replay_resp;

// ---- the adapters ----

adapter session_context_adapter()
{
    adapter added = entry("session_context", full_session(), "08 00 10 00 18 00 20 00 28 00 38 00 52 02 1A 00");
    added.lists = {
        list_at(MEMBER(session, qos_count), 8, list_wire<11>),
        list_at(MEMBER(session, ipv4_route_count), 4, list_wire<23>),
        list_at(MEMBER(session, ipv6_route_count), 4, list_wire<24>),
    };
    added.texts = {
        text_at(MEMBER(session, l2tp_name), 32, text_wire<19, 10, 4>),
        text_at(MEMBER(session, session_name), 64, text_wire<5, 10>),
        text_at(MEMBER(session, session_label), 32, text_wire<7, 10>),
        text_at(MEMBER(session, session_text), 64, text_wire<8, 10>),
        text_at(MEMBER(session, qos[0].text_5), 255, text_wire<5, 11>),
        text_at(MEMBER(session, acl_text_5), 64, text_wire<5, 12>),
        text_at(MEMBER(session, redirect_text_2), 255, text_wire<2, 13>),
    };
    return added;
}

adapter sub_route_adapter()
{
    adapter added = entry("sub_route", full_routes(), "08 00 10 00 18 00 30 00");
    added.lists = {
        list_at(MEMBER(routes, ipv4_route_count), 50, list_wire<4>),
        list_at(MEMBER(routes, ipv6_route_count), 50, list_wire<5>),
    };
    added.texts = {
        text_at(MEMBER(routes, ipv4_routes[0].field_2), 32, text_wire<2, 4>),
        text_at(MEMBER(routes, ipv4_routes[0].field_9), 64, text_wire<9, 4>),
        text_at(MEMBER(routes, ipv6_routes[0].field_6), 32, text_wire<6, 5>),
        text_at(MEMBER(routes, ipv6_routes[0].field_9), 64, text_wire<9, 5>),
    };
    return added;
}

adapter subscriber_stats_adapter()
{
    adapter added = entry("subscriber_stats", full_statistics(), without_switches(full_statistics()), "");
    added.lists = {list_at(MEMBER(statistics, service_count), 8, list_wire<8>)};
    added.texts = {text_at(MEMBER(statistics, services[0].name), 64, text_wire<1, 8>)};
    return added;
}

adapter sess_oper_resp_adapter()
{
    operation arrives = full_sess_oper_resp();
    arrives.field_9 = without_switches(arrives.field_9);
    adapter added = entry("sess_oper_resp", full_sess_oper_resp(), arrives, "08 00 4A 00");
    added.lists = {list_at(MEMBER(operation, field_9.service_count), 8, nested_list_wire<8, 9>)};
    added.texts = {
        text_at(MEMBER(operation, field_6), 64, text_wire<6>),
        text_at(MEMBER(operation, field_7), 64, text_wire<7>),
        text_at(MEMBER(operation, field_8), 64, text_wire<8>),
        text_at(MEMBER(operation, field_9.services[0].name), 64, text_wire<1, 9, 8>),
    };
    return added;
}

adapter subscriber_route_resp_adapter()
{
    adapter added = entry("subscriber_route_resp", full_subscriber_route_resp(), "08 00 10 00");
    added.texts = {text_at(MEMBER(route_answer, field_3), 64, text_wire<3>),
        text_at(MEMBER(route_answer, field_4), 64, text_wire<4>)};
    return added;
}

adapter rec_start_req_adapter()
{
    start_request arrives = zero_record<start_request>();
    arrives.field_1 = full_rec_start_req().field_3;
    fill_text(arrives.field_4, 'd');
    adapter added = entry("rec_start_req", full_rec_start_req(), arrives, "08 00 10 00 18 00");
    added.texts = {text_at(MEMBER(start_request, field_4), 64, text_wire<4>)};
    return added;
}

adapter rec_complete_req_adapter()
{
    adapter added = entry("rec_complete_req", full_rec_complete_req(), "08 00 10 00 18 00");
    added.texts = {text_at(MEMBER(complete_request, field_4), 64, text_wire<4>)};
    return added;
}

adapter rec_start_res_adapter()
{
    adapter added = entry("rec_start_res", full_rec_res(), "08 00 18 00");
    added.texts = {text_at(MEMBER(answer, field_2), 64, text_wire<2>)};
    return added;
}

adapter rec_complete_res_adapter()
{
    rec_complete_res record = {};
    static_cast<answer &>(record) = full_rec_res();
    adapter added = entry("rec_complete_res", record, "08 00 18 00");
    added.texts = {text_at(MEMBER(answer, field_2), 64, text_wire<2>)};
    return added;
}

adapter rec_sess_req_adapter()
{
    states_request arrives = full_rec_sess_req();
    arrives.field_6 = 0;
    adapter added = entry("rec_sess_req", full_rec_sess_req(), arrives, "08 00 10 00");
    added.lists = {list_at(MEMBER(states_request, field_3_count), 30, list_wire<3>)};
    added.texts = {text_at(MEMBER(states_request, field_4), 64, text_wire<4>),
        text_at(MEMBER(states_request, field_5), 64, text_wire<5>)};
    return added;
}

adapter rec_sess_res_adapter()
{
    adapter added = entry("rec_sess_res", full_rec_sess_res(), "08 00 18 00 20 00");
    added.lists = {list_at(MEMBER(states_answer, field_2_count), 30, list_wire<2>)};
    return added;
}

adapter rec_sess_replay_req_adapter()
{
    const replay_sent record = full_rec_sess_replay_req();
    adapter added = entry("rec_sess_replay_req", record, as_received(record), "08 00 10 00 18 00 28 00");
    added.lists = {
        {"sessions", offsetof(replay_sent, field_4_count), offsetof(replay_received, field_4_count), 4, 1,
            list_wire<4>},
        {"QoS entries of the session", offsetof(replay_sent, field_4[0].qos_count),
            offsetof(replay_received, field_4[0].qos_count), 1, 8, nested_list_wire<11, 4>},
    };
    added.texts = {
        text_at(MEMBER(replay_received, field_6), 64, text_wire<6>),
        text_at(MEMBER(replay_received, field_4[0].session_name), 64, text_wire<5, 4, 10>),
    };
    return added;
}

adapter rec_sess_replay_resp_adapter()
{
    replay_answer arrives = full_rec_sess_replay_resp();
    arrives.field_2[0].field_3 = without_switches(arrives.field_2[0].field_3);
    adapter added = entry("rec_sess_replay_resp", full_rec_sess_replay_resp(), arrives, "08 00 28 00");
    added.lists = {
        list_at(MEMBER(replay_answer, field_2_count), 1, list_wire<2>),
        list_at(MEMBER(replay_answer, field_3_count), 1, list_wire<3>),
        list_at(MEMBER(replay_answer, field_2[0].field_3.service_count), 8, nested_list_wire<8, 2, 3>),
        list_at(MEMBER(replay_answer, field_3[0].field_5_count), 8, nested_list_wire<5, 3>),
    };
    added.lists.back().of_texts = true;
    added.texts = {
        text_at(MEMBER(replay_answer, field_4), 64, text_wire<4>),
        text_at(MEMBER(replay_answer, field_2[0].field_3.services[0].name), 64, text_wire<1, 2, 3, 8>),
        text_at(MEMBER(replay_answer, field_3[0].field_5[0]), 64, text_wire<5, 3>),
    };
    return added;
}

adapter srg_group_rec_replay_req_adapter()
{
    adapter added = entry("srg_group_rec_replay_req", full_srg_group_rec_replay_req(), "");
    added.lists = {list_at(MEMBER(groups_request, field_3_count), 15, list_wire<3>)};
    added.texts = {text_at(MEMBER(groups_request, field_3[0].field_5), 64, text_wire<5, 3>)};
    return added;
}

adapter srg_group_rec_replay_resp_adapter()
{
    adapter added = entry("srg_group_rec_replay_resp", full_srg_group_rec_replay_resp(), "");
    added.lists = {
        list_at(MEMBER(groups_answer, field_2_count), 15, list_wire<2>),
        list_at(MEMBER(groups_answer, field_3_count), 15, list_wire<3>),
    };
    added.texts = {
        text_at(MEMBER(groups_answer, field_2[0].field_5), 64, text_wire<5, 2>),
        text_at(MEMBER(groups_answer, field_3[0].field_5), 64, text_wire<5, 3>),
    };
    return added;
}

} // namespace

const std::vector<adapter> &all_adapters()
{
    static const std::vector<adapter> adapters = {
        session_context_adapter(),
        entry("session_delete", full_session_delete(), "08 00"),
        sess_oper_resp_adapter(),
        subscriber_stats_adapter(),
        sub_route_adapter(),
        subscriber_route_resp_adapter(),
        rec_start_req_adapter(),
        rec_start_res_adapter(),
        rec_complete_req_adapter(),
        rec_complete_res_adapter(),
        rec_sess_req_adapter(),
        rec_sess_res_adapter(),
        rec_sess_replay_req_adapter(),
        rec_sess_replay_resp_adapter(),
        entry_of_numbers("srg_group_rec_start_req", "08 00 10 00 18 00"),
        entry_of_numbers("srg_group_rec_resp", ""),
        entry_of_numbers("srg_group_rec_complete_req", ""),
        srg_group_rec_replay_req_adapter(),
        srg_group_rec_replay_resp_adapter(),
    };
    return adapters;
}

// ---- calls ----

byte_vector send(const adapter &tested, const byte_vector &record)
{
    page_end_buffer placed(record);
    const auto encode = [&](uint8_t *buffer, uint64_t capacity) {
        uint64_t size = 0;
        EXPECT_EQ(
            heap_calls_of([&] { size = tested.encode(placed.data(), buffer, static_cast<uint32_t>(capacity)); }), 0u)
            << tested.name << " called an allocator while it encoded";
        return size;
    };
    const uint64_t size = encode(nullptr, 0);
    guarded_buffer buffer(size);
    EXPECT_EQ(encode(buffer.data(), size), size) << tested.name;
    EXPECT_TRUE(buffer.guards_intact()) << tested.name;
    EXPECT_EQ(std::memcmp(placed.data(), record.data(), record.size()), 0) << tested.name << " wrote into its record";
    return buffer.content();
}

byte_vector receive(const adapter &tested, const byte_vector &wire)
{
    page_end_buffer input(wire);
    page_end_buffer record(byte_vector(tested.received.size(), 0xFF));
    EXPECT_EQ(
        heap_calls_of([&] { tested.decode(input.data(), static_cast<uint32_t>(wire.size()), record.data()); }), 0u)
        << tested.name << " called an allocator while it decoded";
    return byte_vector(record.data(), record.data() + record.size());
}

// ---- looking into records ----

// The position of a count's low bytes on this machine.
static uint8_t *low_bytes(uint64_t &count, std::size_t bytes)
{
    auto *const first = reinterpret_cast<uint8_t *>(&count);
    return std::endian::native == std::endian::little ? first : first + sizeof count - bytes;
}

uint64_t count_at(const byte_vector &record, std::size_t offset, std::size_t bytes)
{
    uint64_t count = 0;
    std::memcpy(low_bytes(count, bytes), record.data() + offset, bytes);
    return count;
}

void set_count(byte_vector &record, std::size_t offset, std::size_t bytes, uint64_t count)
{
    std::memcpy(record.data() + offset, low_bytes(count, bytes), bytes);
}

void expect_part_of(const adapter &tested, const byte_vector &record, const byte_vector &whole, const std::string &what)
{
    byte_vector compared = record;
    for (const list_member &list : tested.lists) {
        const uint64_t count = count_at(record, list.received_offset, list.count_bytes);
        EXPECT_LE(count, count_at(whole, list.received_offset, list.count_bytes)) << tested.name << ", " << what;
        set_count(compared, list.received_offset, list.count_bytes, 0);
    }
    for (std::size_t i = 0; i < compared.size(); ++i)
        ASSERT_TRUE(compared[i] == 0 || compared[i] == whole[i]) << tested.name << ", " << what << ", byte " << i;
}

} // namespace mava_tum_test
