// Setters; if a block is refused, they change nothing.
#include "counting_resource.h"
#include "field_values.h"
#include "support/hex.h"

#include <array>

namespace mava_tum_test
{
namespace
{

// The first allocation succeeds, all others fail.
class cpp_field_change : public testing::Test
{
protected:
    counting_resource resource_;
    tum::sess_oper_resp response_{&resource_};
};

TEST_F(cpp_field_change, copies_what_it_is_given)
{
    std::string text = "text";
    std::vector<std::uint8_t> bytes = {1, 2, 3};
    ASSERT_EQ(response_.set_field_6(text), tum::result::ok);
    ASSERT_EQ(response_.set_field_10(bytes), tum::result::ok);
    text = "gone";
    bytes.assign(3, 0);
    EXPECT_EQ(response_.field_6(), "text");
    EXPECT_EQ((*response_.field_10())[2], 3U);
}

TEST_F(cpp_field_change, leaves_a_text_as_it_is_when_the_block_is_refused)
{
    ASSERT_EQ(response_.set_field_6("first"), tum::result::ok);
    resource_.refuse_block(1);
    EXPECT_EQ(response_.set_field_6("second"), tum::result::no_memory);
    EXPECT_EQ(response_.field_6(), "first");
}

TEST_F(cpp_field_change, keeps_a_text_without_letters_as_present)
{
    ASSERT_EQ(response_.set_field_6(std::string_view()), tum::result::ok);
    EXPECT_EQ(response_.field_6(), "");
}

TEST_F(cpp_field_change, leaves_bytes_as_they_are_when_the_block_is_refused)
{
    ASSERT_EQ(response_.set_field_10(bytes_value(1)), tum::result::ok);
    resource_.refuse_block(1);
    EXPECT_EQ(response_.set_field_10(bytes_value(2)), tum::result::no_memory);
    EXPECT_TRUE(is_bytes_value(response_.field_10(), 1));
}

TEST_F(cpp_field_change, needs_no_block_for_bytes_of_no_length)
{
    resource_.refuse_block(1);
    ASSERT_EQ(response_.set_field_10(tum::bytes_view()), tum::result::ok);
    ASSERT_TRUE(response_.field_10());
    EXPECT_TRUE(response_.field_10()->empty());
}

TEST_F(cpp_field_change, leaves_an_array_as_it_is_when_the_block_is_refused)
{
    auto stats = response_.edit_field_9();
    ASSERT_EQ(stats.make_field_8(2).size(), 2U);
    resource_.refuse_block(1);
    EXPECT_TRUE(stats.make_field_8(3).empty());
    EXPECT_EQ(response_.field_9().field_8().size(), 2U);
}

TEST(cpp_field_change_of_texts, leaves_them_as_they_are_whichever_block_is_refused)
{
    const std::string_view first[] = {"a"};
    const std::string_view second[] = {"b", "c"};
    counting_resource resource;
    tum::sess_svc_start start(&resource);
    ASSERT_EQ(start.set_field_5(first), tum::result::ok);
    for (std::size_t refused = 1; refused <= 3; ++refused) {
        resource.refuse_block(refused);
        EXPECT_EQ(start.set_field_5(second), tum::result::no_memory);
        ASSERT_EQ(start.field_5().size(), 1U);
        EXPECT_EQ(start.field_5()[0], "a");
    }
    resource.refuse_block(0);
    ASSERT_EQ(start.set_field_5(second), tum::result::ok);
    EXPECT_EQ(start.field_5()[1], "c");
}

TEST(cpp_field_change_of_lists, changes_one_element_of_a_decoded_list)
{
    tum::session_context session;
    ASSERT_EQ(session.decode(bytes_of("5A 02 08 05 5A 02 08 06 5A 02 08 07")), tum::result::ok);
    session.edit_qos()[1].set_field_1(9);
    EXPECT_EQ(session.encode(), bytes_of("5A 02 08 05 5A 02 08 09 5A 02 08 07"));
}

TEST(cpp_field_change_of_lists, edits_nothing_of_an_absent_list_even_where_a_pointer_is_set)
{
    tum::session_context session;
    EXPECT_TRUE(session.edit_qos().empty());
    mava_tum_subscriber_qos in_c = {};
    session.mutable_c_record().qos = &in_c;
    session.mutable_c_record().qos_count = 1;
    EXPECT_TRUE(session.edit_qos().empty());
    ASSERT_TRUE(session.add_qos());
    EXPECT_EQ(session.qos().size(), 1U);
    EXPECT_NE(session.c_record().qos, &in_c);
}

TEST(cpp_field_change_of_lists, adds_elements_after_those_of_a_decoded_list)
{
    tum::session_context session;
    ASSERT_EQ(session.decode(bytes_of("5A 02 08 05 5A 02 08 06")), tum::result::ok);
    for (std::uint32_t number = 7; number < 10; ++number)
        session.add_qos()->set_field_1(number);
    EXPECT_EQ(session.encode(), bytes_of("5A 02 08 05 5A 02 08 06 5A 02 08 07 5A 02 08 08 5A 02 08 09"));
}

// Two lists in turns, one inside an element of the other: each keeps its room.
TEST(cpp_field_change_of_lists, asks_for_few_blocks_when_elements_are_added_one_by_one)
{
    counting_resource resource;
    tum::rec_sess_replay_req replay(&resource);
    for (std::uint32_t number = 0; number < 64; ++number) {
        auto session = replay.add_field_4();
        ASSERT_TRUE(session);
        session->set_feature_mask(number);
        for (std::uint32_t qos = 0; qos < 4; ++qos)
            session->add_qos()->set_field_1(number + qos);
    }
    EXPECT_EQ(resource.asked(), 7U + 64U * 3U); // 1, 2, 4 ... 64 sessions; 1, 2, 4 entries in each
    for (std::uint32_t number = 0; number < 64; ++number) {
        ASSERT_EQ(replay.field_4()[number].feature_mask(), number);
        ASSERT_EQ(replay.field_4()[number].qos()[3].field_1(), number + 3);
    }
}

TEST(cpp_field_change_of_lists, keeps_the_elements_that_a_smaller_list_has_and_forgets_the_others)
{
    tum::session_context session;
    for (std::uint32_t number = 1; number <= 4; ++number)
        session.add_qos()->set_field_1(number);
    ASSERT_EQ(session.resize_qos(2), tum::result::ok);
    EXPECT_EQ(session.encode(), bytes_of("5A 02 08 01 5A 02 08 02"));
    ASSERT_EQ(session.resize_qos(3), tum::result::ok);
    EXPECT_EQ(session.encode(), bytes_of("5A 02 08 01 5A 02 08 02 5A 00"));
    ASSERT_EQ(session.resize_qos(0), tum::result::ok);
    EXPECT_EQ(session.c_record().presence_mask, 0U);
    ASSERT_TRUE(session.add_qos());
    EXPECT_FALSE(session.qos()[0].field_1());
    session.clear_qos();
    EXPECT_EQ(session.c_record().presence_mask, 0U);
    EXPECT_EQ(session.c_record().qos, nullptr);
}

TEST(cpp_field_change_of_lists, leaves_a_list_as_it_is_when_the_block_is_refused)
{
    counting_resource resource;
    tum::session_context session(&resource);
    ASSERT_EQ(session.decode(bytes_of("5A 02 08 05")), tum::result::ok);
    resource.refuse_block(1);
    EXPECT_FALSE(session.add_qos());
    resource.refuse_block(1);
    EXPECT_TRUE(session.make_qos(2).empty());
    resource.refuse_block(1);
    EXPECT_EQ(session.resize_qos(5), tum::result::no_memory);
    EXPECT_EQ(session.resize_qos(std::uint64_t{1} << 32), tum::result::no_memory);
    EXPECT_EQ(session.encode(), bytes_of("5A 02 08 05"));
    resource.refuse_block(1);
    EXPECT_EQ(session.resize_qos(1), tum::result::ok); // nothing to do, no block
}

TEST(cpp_field_change_of_lists, grows_in_memory_that_is_not_released)
{
    std::array<std::byte, 4096> buffer;
    std::pmr::monotonic_buffer_resource resource(buffer.data(), buffer.size(), std::pmr::null_memory_resource());
    tum::rec_sess_req request(tum::memory(tum::monotonic, &resource));
    std::uint32_t added = 0;
    for (auto state = request.add_field_3(); state; state = request.add_field_3())
        state->set_field_1(++added);
    ASSERT_GT(added, 16U);
    ASSERT_EQ(request.field_3().size(), added);
    for (std::uint32_t i = 0; i < added; ++i)
        EXPECT_EQ(request.field_3()[i].field_1(), i + 1);
}

TEST(cpp_field_change_of_lists, has_no_room_left_from_what_was_there_before_a_decode_or_a_move)
{
    tum::session_context session;
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(session.add_qos());
    tum::session_context moved = std::move(session);
    ASSERT_TRUE(moved.add_qos());
    ASSERT_TRUE(session.add_qos());
    EXPECT_EQ(moved.qos().size(), 4U);
    EXPECT_EQ(session.qos().size(), 1U);
    ASSERT_EQ(moved.decode(bytes_of("5A 02 08 05")), tum::result::ok);
    ASSERT_TRUE(moved.add_qos()); // the address sanitizer detects an error
    EXPECT_EQ(moved.encode(), bytes_of("5A 02 08 05 5A 00"));
}

TEST(cpp_field_change_of_presence, marks_no_field_but_its_own_and_keeps_spare_bits)
{
    tum::vlan_info vlan;
    vlan.mutable_c_record().presence_mask = 0xF0;
    vlan.set_field_2(5);
    EXPECT_EQ(vlan.c_record().presence_mask, 0xF2);
    vlan.set_field_1(6);
    vlan.set_field_2(std::nullopt);
    EXPECT_EQ(vlan.c_record().presence_mask, 0xF1);
    EXPECT_EQ(vlan.c_record().field_2, 0U);
}

TEST(cpp_field_change_of_presence, takes_what_a_getter_gives)
{
    tum::vlan_info first;
    first.set_field_1(3);
    tum::vlan_info second;
    second.set_field_2(4);
    second.set_field_1(first.field_1());
    second.set_field_2(first.field_2());
    EXPECT_EQ(second.encode(), first.encode());
}

TEST(cpp_field_change_of_counts, refuses_more_elements_than_can_be_counted)
{
    tum::session_context session;
    ASSERT_EQ(session.make_qos(2).size(), 2U);
    EXPECT_TRUE(session.make_qos((std::uint64_t{1} << 32) + 1).empty());
    EXPECT_TRUE(session.make_qos(~std::uint64_t{0}).empty());
    EXPECT_EQ(session.qos().size(), 2U);
    EXPECT_TRUE(session.make_qos(0).empty());
    EXPECT_EQ(session.c_record().presence_mask, 0U);

    const std::string_view text = "a";
    tum::sess_svc_start start;
    const tum::span<const std::string_view> too_many(&text, static_cast<std::size_t>((std::uint64_t{1} << 32) + 1));
    if constexpr (sizeof(std::size_t) > sizeof(std::uint32_t)) {
        EXPECT_EQ(start.set_field_5(too_many), tum::result::no_memory);
    }
    EXPECT_TRUE(start.field_5().empty());
}

TEST(cpp_record_editor, marks_the_record_and_those_around_it_as_present)
{
    tum::session_context session;
    session.edit_session_data().edit_ppp().set_field_1(3);
    ASSERT_TRUE(session.session_data());
    ASSERT_TRUE(session.session_data().ppp());
    EXPECT_FALSE(session.session_data().l2tp());
    EXPECT_EQ(session.session_data().ppp().field_1(), 3U);
}

TEST(cpp_record_editor, starts_with_an_empty_record_where_it_was_absent)
{
    tum::session_context session;
    session.mutable_c_record().session_data.presence_mask = 1U << 1; // as a failed decode leaves it
    session.edit_session_data().set_field_1(1);
    EXPECT_FALSE(session.session_data().field_2());
    session.edit_session_data().set_field_2(2);
    EXPECT_EQ(session.session_data().field_1(), 1U);
}

TEST(cpp_record_editor, clears_a_record_with_all_that_is_in_it)
{
    tum::session_context session;
    session.edit_session_data().edit_ppp().set_field_1(3);
    session.clear_session_data();
    EXPECT_EQ(session.encoded_size(), 0U);
}

TEST(cpp_record_editor, copies_a_record_with_memory_of_the_record_around_it)
{
    counting_resource resource;
    tum::rec_sess_replay_req replay(&resource);
    {
        tum::session_context stored;
        ASSERT_EQ(stored.set_field_6(bytes_value(6)), tum::result::ok);
        ASSERT_EQ(stored.edit_session_data().set_field_5("user@example.com"), tum::result::ok);
        for (int copies = 0; copies < 2; ++copies)
            ASSERT_EQ(replay.add_field_4()->copy_from(stored), tum::result::ok);
        ASSERT_EQ(replay.add_field_4()->copy_from(tum::session_context_view()), tum::result::ok);
    }
    ASSERT_EQ(replay.edit_field_4()[1].copy_from(replay.edit_field_4()[1]), tum::result::ok);
    EXPECT_EQ(replay.field_4()[0].session_data().field_5(), "user@example.com");
    EXPECT_TRUE(is_bytes_value(replay.field_4()[1].field_6(), 6));
    EXPECT_EQ(replay.field_4()[2].encoded_size(), 0U);
    replay.clear();
    EXPECT_EQ(resource.blocks_out(), 0U);
}

TEST(cpp_record_editor, stays_as_it_is_when_a_block_of_a_copy_is_refused)
{
    tum::session_context stored;
    ASSERT_EQ(stored.set_field_6(bytes_value(6)), tum::result::ok);
    ASSERT_EQ(stored.edit_session_data().set_field_5("new"), tum::result::ok);
    counting_resource resource;
    tum::rec_sess_replay_req replay(&resource);
    auto editor = replay.add_field_4();
    ASSERT_EQ(editor->edit_session_data().set_field_5("old"), tum::result::ok);
    for (std::size_t refused = 1; refused <= 2; ++refused) {
        resource.refuse_block(refused);
        EXPECT_EQ(editor->copy_from(stored), tum::result::no_memory);
        EXPECT_EQ(editor->session_data().field_5(), "old");
        EXPECT_FALSE(editor->field_6());
    }
}

TEST(cpp_record_editor, needs_no_memory_to_copy_a_record_of_numbers)
{
    tum::vlan_info vlan;
    vlan.set_field_1(100);
    tum::vlan_info copy;
    ASSERT_EQ(tum::vlan_info_editor(copy.mutable_c_record(), nullptr).copy_from(vlan), tum::result::ok);
    EXPECT_EQ(copy.field_1(), 100U);
}

TEST(cpp_record_editor, reads_what_it_has_set)
{
    tum::session_context session;
    tum::vlan_info_editor vlan = session.edit_session_data().edit_vlan();
    vlan.set_field_1(100);
    EXPECT_EQ(vlan.field_1(), 100U);
    EXPECT_EQ(vlan.view().field_1(), 100U);
    EXPECT_EQ(vlan.encode(), session.session_data().vlan().encode());
}

} // namespace
} // namespace mava_tum_test
