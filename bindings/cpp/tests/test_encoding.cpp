// Wire bytes of a record: into large and small buffers, and into containers.
#include "filled_records.h"
#include "support/hex.h"

#include <cstring>
#include <memory_resource>

namespace mava_tum_test
{
namespace
{

tum::rec_resp response()
{
    tum::rec_resp made;
    made.set_field_1(1);
    EXPECT_EQ(made.set_field_2("no"), tum::result::ok);
    return made;
}

const auto response_wire = bytes_of("08 01 12 02 6E 6F");

TEST(cpp_encoding, tells_the_size_without_a_buffer)
{
    EXPECT_EQ(response().encoded_size(), 6U);
}

TEST(cpp_encoding, fills_a_buffer_that_is_large_enough)
{
    std::uint8_t buffer[8] = {};
    const tum::encoded outcome = response().encode(buffer);
    EXPECT_TRUE(outcome);
    EXPECT_EQ(outcome.size, 6U);
    EXPECT_EQ(std::vector<std::uint8_t>(buffer, buffer + 6), response_wire);
    EXPECT_TRUE(response().encode(tum::span<std::uint8_t>(buffer).first(6)));
}

TEST(cpp_encoding, says_that_a_buffer_is_too_small_and_how_large_it_should_be)
{
    std::uint8_t buffer[5] = {};
    const tum::encoded outcome = response().encode(buffer);
    EXPECT_FALSE(outcome);
    EXPECT_FALSE(outcome.complete);
    EXPECT_EQ(outcome.size, 6U);
}

TEST(cpp_encoding, gives_a_container_exactly_the_message)
{
    std::pmr::vector<std::uint8_t> wire(100, std::uint8_t{0xEE});
    response().encode_to(wire);
    EXPECT_TRUE(std::equal(wire.begin(), wire.end(), response_wire.begin(), response_wire.end()));
    EXPECT_EQ(response().encode(), response_wire);
}

TEST(cpp_encoding, fills_containers_and_buffers_of_bytes_of_any_type)
{
    std::string text = "what it held before";
    response().encode_to(text);
    EXPECT_EQ(tum::bytes_view(text), tum::bytes_view(response_wire));
    std::vector<std::byte> bytes;
    response().encode_to(bytes);
    EXPECT_EQ(tum::bytes_view(bytes), tum::bytes_view(response_wire));
    std::byte buffer[6];
    EXPECT_TRUE(response().encode(buffer));
    EXPECT_EQ(tum::bytes_view(buffer), tum::bytes_view(response_wire));

    tum::rec_resp decoded;
    for (const tum::bytes_view wire : {tum::bytes_view(text), tum::bytes_view(bytes), tum::bytes_view(buffer)}) {
        ASSERT_EQ(decoded.decode(wire), tum::result::ok);
        EXPECT_EQ(decoded, response());
    }
    EXPECT_EQ(decoded.decode(text), tum::result::ok);
    EXPECT_EQ(decoded.decode(std::string(text)), tum::result::ok);
    EXPECT_EQ(decoded.decode(bytes), tum::result::ok);
    EXPECT_EQ(decoded.decode(buffer), tum::result::ok);
}

TEST(cpp_gather, leaves_bytes_fields_in_the_record)
{
    tum::session_context session;
    tum::ppp_data_editor ppp = session.edit_session_data().edit_ppp();
    ppp.set_field_1(1);
    ASSERT_EQ(ppp.set_field_5(bytes_value(5)), tum::result::ok);
    ppp.set_field_6(9);
    std::uint8_t buffer[16];
    struct pair {
        void *address;
        std::size_t length;
    };
    const auto segments = session.session_data().ppp().gather<pair>(buffer);
    ASSERT_TRUE(segments);
    ASSERT_EQ(segments.size(), 3U);
    EXPECT_EQ(segments.data()[1].address, ppp.field_5()->data());
    std::vector<std::uint8_t> sent;
    for (const pair &each : segments) {
        const auto *const bytes = static_cast<const std::uint8_t *>(each.address);
        sent.insert(sent.end(), bytes, bytes + each.length);
    }
    EXPECT_EQ(sent, ppp.encode());
    EXPECT_EQ(segments.byte_count(), sent.size());
}

TEST(cpp_gather, has_room_for_every_segment_and_reports_a_small_buffer)
{
    const auto gathered_whole = [](auto record) {
        fill(record);
        std::uint8_t buffer[256];
        const auto segments = record.gather(buffer);
        EXPECT_TRUE(segments);
        EXPECT_EQ(segments.byte_count(), record.encoded_size());
        EXPECT_FALSE(record.gather(tum::span<std::uint8_t>(buffer).first(1)));
    };
    gathered_whole(tum::subscriber_v6());
    gathered_whole(tum::ppp_data());
    gathered_whole(tum::l2tp_data());
    gathered_whole(tum::subscriber_li());
    gathered_whole(tum::subscriber_route_ipv6());
    EXPECT_EQ(tum::subscriber_v6_view().gather(tum::span<std::uint8_t>()).size(), 0U);
}

tum_nal_data_session_context application_session()
{
    tum_nal_data_session_context session = {};
    session.feature_mask = TUM_NAL_FEATURE_MTU_1;
    session.mtu_1_value = 1492;
    std::memcpy(session.session_name, "user", 5);
    return session;
}

TEST(cpp_adapters, encode_and_decode_bytes_of_any_type)
{
    const tum_nal_data_session_context session = application_session();
    std::uint8_t expected[TUM_NAL_SESSION_CONTEXT_MAX_SIZE];
    const std::uint64_t size = tum_nal_data_gpb_encode_tum_session_context(&session, expected, sizeof expected);
    const std::vector<std::uint8_t> wire = tum::encode(session);
    EXPECT_EQ(tum::bytes_view(wire), tum::bytes_view(expected, static_cast<std::size_t>(size)));

    std::string text = "what it held before";
    tum::encode_to(session, text);
    std::vector<std::byte> bytes;
    tum::encode_to(session, bytes);
    std::byte buffer[100];
    const tum::encoded outcome = tum::encode(session, buffer);
    EXPECT_TRUE(outcome);
    const auto written = tum::bytes_view(buffer).first(static_cast<std::size_t>(outcome.size));
    for (const tum::bytes_view each : {tum::bytes_view(text), tum::bytes_view(bytes), written}) {
        EXPECT_EQ(each, tum::bytes_view(wire));
        const auto received = tum::decode<tum_nal_data_session_context>(each);
        EXPECT_STREQ(received.session_name, "user");
        EXPECT_EQ(received.mtu_1_value, 1492U);
    }
    tum_nal_data_session_context received;
    tum::decode(text, received);
    EXPECT_EQ(received.mtu_1_value, 1492U);
    tum::decode(std::vector<std::byte>(), received);
    EXPECT_EQ(received.mtu_1_value, 0U);
}

TEST(cpp_adapters, report_a_small_buffer)
{
    const tum_nal_data_session_context session = application_session();
    std::uint8_t buffer[10];
    const tum::encoded outcome = tum::encode(session, buffer);
    EXPECT_FALSE(outcome);
    EXPECT_EQ(outcome.size, tum::encode(session).size());
}

TEST(cpp_adapters, leave_nothing_in_the_container_for_a_record_without_content)
{
    std::string text = "before";
    tum::encode_to(tum_nal_data_subscriber_stats{}, text);
    EXPECT_EQ(text, "");
}

TEST(cpp_adapters, of_one_record_and_two_messages_do_the_same)
{
    tum_nal_data_rec_res response;
    std::memset(&response, 0x11, sizeof response);
    response.field_2[sizeof response.field_2 - 1] = '\0';
    std::uint8_t start[100], complete[100];
    const std::uint64_t size = tum_nal_data_gpb_encode_tum_rec_start_res(&response, start, sizeof start);
    ASSERT_EQ(tum_nal_data_gpb_encode_tum_rec_complete_res(&response, complete, sizeof complete), size);
    ASSERT_LE(size, sizeof start);
    EXPECT_EQ(std::memcmp(start, complete, static_cast<std::size_t>(size)), 0);
    EXPECT_EQ(tum::adapter_of<tum_nal_data_rec_res>::encode, tum_nal_data_gpb_encode_tum_rec_start_res);
    EXPECT_EQ(tum::adapter_of<tum_nal_data_rec_res>::decode, tum_nal_data_gpb_decode_tum_rec_start_res);
}

TEST(cpp_adapters, know_the_two_records_of_a_replay)
{
    tum_nal_data_rec_sess_replay_req_encode sent = {};
    sent.field_1 = 7;
    const auto received = tum::decode<tum_nal_data_rec_sess_replay_req_decode>(tum::encode(sent));
    EXPECT_EQ(received.field_1, 7U);
}

TEST(cpp_encoding, of_an_empty_record_is_complete_and_has_no_bytes)
{
    EXPECT_TRUE(tum::rec_resp().encode(tum::span<std::uint8_t>()));
    EXPECT_TRUE(tum::rec_resp().encode().empty());
}

} // namespace
} // namespace mava_tum_test
