// The sets that a reconciliation compares: any difference between two sets must be found.
#include "scripted_messages.h"
#include "session_set.h"
#include "stale_store.h"
#include "subscriber_file.h"

#include <gtest/gtest.h>

namespace
{

using namespace examples::reconciliation;
using texts = std::vector<std::string>;

session_set set_of(const texts &lines)
{
    session_set sessions;
    for (const std::string &line : lines)
        sessions.put(session_with(line));
    return sessions;
}

const std::vector<examples::subscriber> &shipped()
{
    static const std::vector<examples::subscriber> subscribers = examples::read_subscribers(SUBSCRIBERS_FILE);
    return subscribers;
}

} // namespace

TEST(session_sets, of_the_same_sessions_do_not_differ_whatever_the_order)
{
    EXPECT_EQ(differences(set_of({"a", "b", "c"}), set_of({"c", "a", "b"})), texts{});
}

TEST(session_sets, differ_by_a_lost_session)
{
    EXPECT_EQ(differences(set_of({"a", "b"}), set_of({"a"})), texts{"line id b: lost"});
}

TEST(session_sets, differ_by_a_session_that_nobody_wants)
{
    EXPECT_EQ(differences(set_of({"a"}), set_of({"a", "b"})), texts{"line id b: held, but nobody wants it"});
}

TEST(session_sets, differ_by_a_single_value)
{
    session_set held = set_of({"a", "b"});
    tum_nal_data_session_context session = session_with("b");
    session.session_value_7 = 1;
    held.put(session);
    EXPECT_EQ(differences(set_of({"a", "b"}), held),
        texts{"line id b: 19 bytes held, 19 wanted; they differ from byte 11 on"});
}

TEST(session_sets, differ_by_a_byte_behind_the_end_of_the_other)
{
    const session_set wanted = set_of({"a"});
    std::vector<uint8_t> wire = wanted.at(number_of("a")).wire;
    wire.insert(wire.end(), {0xF8, 0x07, 0x00}); // a field that sessions do not have
    session_set held;
    held.put_wire(wire);
    EXPECT_EQ(differences(wanted, held), texts{"line id a: 22 bytes held, 19 wanted; they differ from byte 19 on"});
}

TEST(session_set, keeps_one_session_per_line_id)
{
    session_set sessions = set_of({"a", "b", "a"});
    EXPECT_EQ(sessions.size(), 2U);
    EXPECT_TRUE(sessions.remove(number_of("a")));
    EXPECT_FALSE(sessions.remove(number_of("a")));
    EXPECT_FALSE(sessions.has(number_of("a")));
    EXPECT_TRUE(sessions.has(number_of("b")));
}

TEST(session_set, has_a_state_for_each_session_and_none_for_others)
{
    session_set sessions = set_of({"a"});
    const tum_nal_data_session_state before = sessions.state(number_of("a"));
    EXPECT_EQ(before.field_2, number_of("a"));
    EXPECT_FALSE(holds_none(before));
    EXPECT_TRUE(holds_none(sessions.state(number_of("b"))));
    EXPECT_EQ(sessions.state(number_of("b")).field_2, number_of("b"));

    tum_nal_data_session_context session = session_with("a");
    session.session_value_7 = 1;
    sessions.put(session);
    EXPECT_FALSE(same_state(before, sessions.state(number_of("a"))));
}

// The receiver decodes a session and encodes it again: this must not change the bytes.
TEST(session_set, of_decoded_sessions_has_the_bytes_of_the_sent_ones)
{
    const session_set sent = sessions_of(shipped());
    session_set received;
    for (const auto &[number, entry] : sent.entries())
        received.put(sent.session(number));
    EXPECT_EQ(differences(sent, received), texts{});
    EXPECT_EQ(received.wire_bytes(), sent.wire_bytes());
}

TEST(stale_store, lacks_some_sessions_has_some_outdated_and_some_that_are_gone)
{
    const session_set all = sessions_of(shipped()), stored = sessions_in_stale_store(shipped());
    size_t missing = 0, outdated = 0, gone = 0;
    for (const auto &[number, entry] : all.entries()) {
        missing += stored.has(number) ? 0U : 1U;
        outdated += stored.has(number) && stored.at(number).wire != entry.wire ? 1U : 0U;
    }
    for (const auto &[number, entry] : stored.entries())
        gone += all.has(number) ? 0U : 1U;
    EXPECT_EQ(missing, 240U);
    EXPECT_EQ(outdated, 137U); // 171 in 1,200, less those that are missing
    EXPECT_EQ(gone, 109U);
}
