#include "peers/harness/stopwatch.h"

#include <gtest/gtest.h>

#include <map>

namespace
{

constexpr uint64_t messages = 1000;
constexpr uint64_t warming = 50;
constexpr double slice = 20e3; // nanoseconds

// Records each call's side and message, and takes some time.
class recorded_operation final : public bench::timed_operation
{
public:
    struct call {
        const recorded_operation *side;
        size_t message;
    };

    explicit recorded_operation(std::vector<call> &calls) : calls_(calls) {}

    void run(size_t first, uint64_t count) override
    {
        for (size_t i = first; i < first + count; ++i) {
            calls_.push_back({this, i});
            for (int work = 0; work < 200; ++work)
                bench::keep(work);
        }
    }

private:
    std::vector<call> &calls_;
};

class time_pairs_test : public testing::Test
{
protected:
    time_pairs_test()
    {
        pairs = bench::time_pairs(ours, other, {messages, warming, slice});
    }

    std::vector<recorded_operation::call> calls;
    recorded_operation ours{calls};
    recorded_operation other{calls};
    std::vector<bench::pair_times> pairs;
};

TEST_F(time_pairs_test, each_side_uses_each_message_at_most_once)
{
    std::map<std::pair<const recorded_operation *, size_t>, int> uses;
    for (const auto &call : calls)
        ++uses[{call.side, call.message}];
    for (const auto &[who, times] : uses)
        EXPECT_EQ(times, 1) << "message " << who.second;
}

TEST_F(time_pairs_test, both_sides_use_the_same_messages)
{
    std::map<size_t, int> sides;
    for (const auto &call : calls)
        ++sides[call.message];
    for (const auto &[message, count] : sides)
        EXPECT_EQ(count, 2) << "message " << message;
    // All messages except those that make no whole pair.
    EXPECT_GT(sides.size(), (messages + warming) * 7 / 8);
}

TEST_F(time_pairs_test, a_message_comes_again_only_after_half_of_the_others)
{
    std::map<size_t, size_t> last_use;
    for (size_t place = 0; place < calls.size(); ++place) {
        const auto [known, is_new] = last_use.emplace(calls[place].message, place);
        if (!is_new && calls[place].message < messages) {
            EXPECT_GT(place - known->second, messages / 2) << "message " << calls[place].message;
        }
    }
}

TEST_F(time_pairs_test, the_sides_swap_places_from_pair_to_pair)
{
    std::vector<const recorded_operation *> turns;
    for (const auto &call : calls) {
        if (call.message < messages && (turns.empty() || turns.back() != call.side))
            turns.push_back(call.side);
    }
    // ABBA: two neighbouring slices of one side are one turn here. ABAB would have a turn for each slice.
    EXPECT_GE(pairs.size(), 8U);
    EXPECT_LE(turns.size(), 2 * pairs.size() + 2);
    EXPECT_GE(turns.size(), 2 * pairs.size());
}

} // namespace
