#include "inspect_calls.h"
#include "model/message_tables.h"
#include "model/wire_maker.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{

using namespace mava_tum_test;

std::vector<mava_tum_inspect_candidate> guess(const byte_vector &input, uint32_t capacity = 40)
{
    std::vector<mava_tum_inspect_candidate> candidates(capacity);
    const uint32_t found = mava_tum_inspect_guess(input.data(), input.size(), candidates.data(), capacity);
    candidates.resize(std::min(found, capacity));
    return candidates;
}

// Two messages have the same fields as another: no bytes distinguish them.
TEST(inspect_guess, puts_every_message_with_all_its_fields_among_the_likeliest)
{
    for (const mava_tum_model::message *of : mava_tum_model::all_messages()) {
        const std::vector<mava_tum_inspect_candidate> found = guess(mava_tum_model::full_wire(*of, 2));
        ASSERT_FALSE(found.empty()) << of->name;
        std::string likeliest;
        for (const mava_tum_inspect_candidate &candidate : found)
            if (candidate.unknown_bytes == 0 && candidate.absent_fields == found[0].absent_fields)
                likeliest += std::string(" ") + candidate.message + " ";
        EXPECT_NE(likeliest.find(std::string(" ") + of->name + " "), std::string::npos) << of->name << ":" << likeliest;
        EXPECT_EQ(found[0].unknown_bytes, 0u) << of->name;
    }
}

TEST(inspect_guess, gives_only_messages_as_which_the_bytes_decode)
{
    const byte_vector input = bytes_of("08 05 15 C0 00 02 01");
    for (const mava_tum_inspect_candidate &candidate : guess(input))
        EXPECT_EQ(judge(candidate.message, input).result, MAVA_TUM_OK) << candidate.message;
    EXPECT_STREQ(guess(input)[0].message, "subscriber_v4");
}

TEST(inspect_guess, orders_by_unknown_bytes_then_fields_then_forms_then_absence)
{
    const std::vector<mava_tum_inspect_candidate> found = guess(bytes_of("08 05 30 05"));
    ASSERT_GT(found.size(), 2u);
    for (std::size_t i = 1; i < found.size(); ++i) {
        EXPECT_LE(found[i - 1].unknown_bytes, found[i].unknown_bytes);
        if (found[i - 1].unknown_bytes == found[i].unknown_bytes && found[i - 1].odd_forms == found[i].odd_forms) {
            EXPECT_LE(found[i - 1].absent_fields, found[i].absent_fields);
        }
    }
    EXPECT_EQ(found.back().unknown_bytes, 2u);
}

TEST(inspect_guess, counts_what_it_has_no_room_for)
{
    EXPECT_EQ(mava_tum_inspect_guess(nullptr, 0, nullptr, 0), 40u);
    const byte_vector input = bytes_of("08 05 30 05");
    mava_tum_inspect_candidate first_two[2];
    EXPECT_GT(mava_tum_inspect_guess(input.data(), input.size(), first_two, 2), 2u);
    const std::vector<mava_tum_inspect_candidate> all = guess(input);
    EXPECT_STREQ(first_two[0].message, all[0].message);
    EXPECT_STREQ(first_two[1].message, all[1].message);
}

TEST(inspect_guess, finds_nothing_in_bytes_that_no_message_takes)
{
    EXPECT_TRUE(guess(bytes_of("07")).empty());
}

// ---- similar names ----

std::vector<std::string> similar(const char *wrong, uint32_t capacity = 8)
{
    std::vector<const char *> names(capacity);
    names.resize(mava_tum_inspect_similar_messages(wrong, names.data(), capacity));
    return {names.begin(), names.end()};
}

TEST(inspect_similar_names, offers_the_nearest_first)
{
    EXPECT_EQ(similar("subscriber_v5", 2), (std::vector<std::string>{"subscriber_v4", "subscriber_v6"}));
    EXPECT_EQ(similar("sesion_context", 1), std::vector<std::string>{"session_context"});
    EXPECT_EQ(similar("mava_tum_stats", 1), std::vector<std::string>{"stats"});
    EXPECT_EQ(similar("replay_req", 1), std::vector<std::string>{"rec_sess_replay_req"});
}

TEST(inspect_similar_names, offers_nothing_that_has_little_in_common)
{
    EXPECT_EQ(similar("zebra"), std::vector<std::string>{});
    EXPECT_EQ(similar(""), std::vector<std::string>{});
    EXPECT_EQ(similar("session_context", 0), std::vector<std::string>{});
}

TEST(inspect_similar_names, knows_the_adapters_too)
{
    const char *name = nullptr;
    ASSERT_EQ(mava_tum_inspect_similar_adapters("rec_start_resp", &name, 1), 1u);
    EXPECT_STREQ(name, "rec_start_res");
}

TEST(inspect_similar_names, stands_names_of_any_length)
{
    EXPECT_EQ(similar(std::string(10000, 'x').c_str()), std::vector<std::string>{});
}

} // namespace
