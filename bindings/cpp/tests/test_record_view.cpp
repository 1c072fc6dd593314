// Presence, views and lists.
#include "field_values.h"
#include "support/hex.h"

namespace mava_tum_test
{
namespace
{

TEST(cpp_record_view, tells_a_zero_that_is_present_from_a_field_that_is_absent)
{
    tum::vlan_info vlan;
    ASSERT_EQ(vlan.decode(bytes_of("08 00")), tum::result::ok);
    EXPECT_EQ(vlan.field_1(), 0U);
    EXPECT_FALSE(vlan.field_2());
    EXPECT_EQ(vlan.field_2().value_or(7), 7U);
}

TEST(cpp_record_view, shows_texts_and_bytes_of_no_length_as_present)
{
    tum::session_context session;
    ASSERT_EQ(session.decode(bytes_of("32 00 52 02 2A 00")), tum::result::ok); // field 6; field 5 of session_data
    ASSERT_TRUE(session.field_6());
    EXPECT_TRUE(session.field_6()->empty());
    EXPECT_EQ(session.session_data().field_5(), "");
}

TEST(cpp_record_view, ends_a_text_at_its_first_nul)
{
    tum::rec_resp response;
    ASSERT_EQ(response.decode(bytes_of("12 03 61 00 62")), tum::result::ok);
    EXPECT_EQ(response.field_2(), "a");
}

TEST(cpp_record_view, shows_a_text_that_ends_with_a_nul)
{
    tum::rec_resp response;
    ASSERT_EQ(response.decode(bytes_of("12 02 61 62")), tum::result::ok);
    EXPECT_STREQ(response.field_2()->data(), "ab");
}

TEST(cpp_record_view, shows_an_absent_text_where_the_bit_promises_one_that_is_not_there)
{
    mava_tum_rec_resp in_c = {};
    in_c.presence_mask = 0xFF;
    EXPECT_FALSE(tum::rec_resp_view(in_c).field_2());
}

TEST(cpp_record_view, can_be_asked_through_an_absent_record)
{
    const tum::session_context session;
    EXPECT_FALSE(session.session_data());
    EXPECT_FALSE(session.session_data().ppp());
    EXPECT_EQ(session.session_data().ppp().field_1().value_or(9), 9U);
}

// Field 10 with a nested field 3, then a tag without a value: the C decoder keeps the fields before the fault in a
// record that it does not mark present.
constexpr const char *fault_inside_session_data = "52 05 1A 02 08 03 08";

TEST(cpp_record_view, shows_no_field_of_a_record_that_a_failed_decode_has_not_marked_present)
{
    tum::session_context session;
    ASSERT_EQ(session.decode(bytes_of(fault_inside_session_data)), tum::result::truncated);
    ASSERT_NE(session.c_record().session_data.presence_mask, 0);
    EXPECT_FALSE(session.session_data());
    EXPECT_FALSE(session.session_data().ppp());
    EXPECT_FALSE(session.session_data().ppp().field_1());
    EXPECT_EQ(session.session_data().encoded_size(), 0U);
}

TEST(cpp_record_view, shows_no_field_of_an_absent_record_that_was_filled_in_c)
{
    mava_tum_session_context in_c = {};
    in_c.session_data.presence_mask = 1U << 9 | 1U << 1;
    in_c.session_data.field_2 = 7;
    in_c.session_data.vlan.presence_mask = 1;
    const tum::session_data_view shown = tum::session_context_view(in_c).session_data();
    EXPECT_FALSE(shown.field_2());
    EXPECT_FALSE(shown.vlan());
    EXPECT_FALSE(shown.vlan().field_1());
    EXPECT_FALSE(tum::session_data_view(in_c.session_data, false).field_2());
    EXPECT_TRUE(tum::session_data_view(in_c.session_data).field_2());
}

TEST(cpp_record_view, of_a_record_that_is_present_and_empty_is_true)
{
    tum::session_context session;
    ASSERT_EQ(session.decode(bytes_of("42 00")), tum::result::ok);
    const auto v4 = session.subscriber_v4();
    ASSERT_TRUE(v4);
    EXPECT_FALSE(v4->ipv4_address());
    EXPECT_FALSE((*v4).field_1());
}

TEST(cpp_record_view, shows_an_address_as_a_person_writes_it)
{
    tum::subscriber_v4 v4;
    ASSERT_EQ(v4.decode(bytes_of("15 C0 00 02 01")), tum::result::ok);
    const tum::ipv4_octets expected = {192, 0, 2, 1};
    EXPECT_EQ(tum::octets_of(*v4.ipv4_address()), expected);
    EXPECT_EQ(tum::address_of(expected), *v4.ipv4_address());
}

TEST(cpp_record_view, encodes_the_record_that_it_shows)
{
    tum::session_context session;
    ASSERT_EQ(session.decode(bytes_of("42 02 08 07")), tum::result::ok);
    EXPECT_EQ(session.subscriber_v4().encode(), bytes_of("08 07"));
}

TEST(cpp_record_view, of_nothing_shows_an_absent_record)
{
    const tum::session_context_view nothing;
    EXPECT_FALSE(nothing);
    EXPECT_FALSE(nothing.session_data().vlan().field_1());
    EXPECT_EQ(nothing, tum::session_context_view());
    EXPECT_NE(nothing, tum::session_context());
}

TEST(cpp_record_view, equals_another_with_the_same_content_at_every_depth)
{
    tum::session_context first, second;
    for (tum::session_context *session : {&first, &second}) {
        ASSERT_EQ(session->set_field_6(bytes_value(6)), tum::result::ok);
        session->edit_session_data().edit_vlan().set_field_1(1);
        ASSERT_EQ(session->add_qos()->set_field_3("gold"), tum::result::ok);
    }
    EXPECT_EQ(first.qos(), second.qos());
    EXPECT_EQ(first.edit_qos()[0], second.qos()[0]);
    EXPECT_EQ(first, second);

    second.edit_session_data().edit_vlan().set_field_1(2);
    EXPECT_NE(first, second);
    second.edit_session_data().edit_vlan().set_field_1(1);
    EXPECT_EQ(first, second);

    second.edit_subscriber_v4(); // present and empty
    EXPECT_NE(first, second);
    second.clear_subscriber_v4();

    ASSERT_EQ(second.edit_qos()[0].set_field_3("Gold"), tum::result::ok);
    EXPECT_NE(first, second);
    EXPECT_NE(first.qos(), second.qos());
    ASSERT_EQ(second.edit_qos()[0].set_field_3("gold"), tum::result::ok);
    ASSERT_TRUE(second.add_qos());
    EXPECT_NE(first.qos(), second.qos());
}

TEST(cpp_list_view, is_walked_in_steps_of_any_size)
{
    tum::rec_sess_req request;
    ASSERT_EQ(request.decode(bytes_of("1A 02 08 05 1A 02 08 06 1A 02 08 07")), tum::result::ok);
    const tum::rec_session_state_list states = request.field_3();
    auto at = states.begin();
    EXPECT_EQ(states.end() - at, 3);
    EXPECT_EQ((*(at + 2)).field_1(), 7U);
    EXPECT_EQ(at[1].field_1(), 6U);
    at += 2;
    EXPECT_EQ((*at--).field_1(), 7U);
    EXPECT_EQ((*at).field_1(), 6U);
    EXPECT_EQ((*--at).field_1(), 5U);
    EXPECT_TRUE(at == states.end() - 3 && at < 1 + at && at + 1 > at && at <= at && at >= at);
    EXPECT_FALSE(at < at || at > at || at + 1 <= at || at >= at + 1 || at != states.begin());
    EXPECT_EQ((at += 3, at -= 1, (*at).field_1()), 7U);
}

TEST(cpp_list_view, shows_elements_in_the_order_of_the_wire)
{
    tum::rec_sess_req request;
    ASSERT_EQ(request.decode(bytes_of("1A 02 08 05 1A 00 1A 02 08 06")), tum::result::ok);
    const tum::rec_session_state_list states = request.field_3();
    ASSERT_EQ(states.size(), 3U);
    EXPECT_EQ(states[0].field_1(), 5U);
    EXPECT_FALSE(states[1].field_1());
    std::uint32_t sum = 0;
    for (const auto state : states) {
        EXPECT_TRUE(state.has_value());
        sum += state.field_1().value_or(0);
    }
    EXPECT_EQ(sum, 11U);
}

TEST(cpp_list_view, of_an_absent_array_is_empty_even_where_a_pointer_is_set)
{
    mava_tum_rec_session_state state = {};
    mava_tum_rec_sess_req in_c = {};
    in_c.field_3 = &state;
    in_c.field_3_count = 1;
    EXPECT_TRUE(tum::rec_sess_req_view(in_c).field_3().empty());
    in_c.presence_mask = 1U << 2;
    EXPECT_EQ(tum::rec_sess_req_view(in_c).field_3().size(), 1U);
}

TEST(cpp_list_view, shows_texts)
{
    tum::sess_svc_start start;
    ASSERT_EQ(start.decode(bytes_of("2A 01 61 2A 00 2A 02 62 63")), tum::result::ok);
    const std::vector<std::string_view> texts(start.field_5().begin(), start.field_5().end());
    EXPECT_EQ(texts, (std::vector<std::string_view>{"a", "", "bc"}));
}

TEST(cpp_list_view, shows_a_null_text_as_an_empty_one)
{
    char a[] = "a";
    char *texts[] = {nullptr, a};
    mava_tum_sess_svc_start in_c = {};
    in_c.field_5 = texts;
    in_c.field_5_count = 2;
    in_c.presence_mask = 1U << 4;
    const tum::text_list shown = tum::sess_svc_start_view(in_c).field_5();
    EXPECT_EQ(shown[0], "");
    EXPECT_EQ(shown[1], "a");
}

} // namespace
} // namespace mava_tum_test
