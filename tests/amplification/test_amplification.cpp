// How much memory can a few bytes request? scripts/check/amplification searches longer.
#include "amplification/asked_limit.h"
#include "amplification/costly_inputs.h"
#include "amplification/measured_decode.h"
#include "amplification/short_inputs.h"
#include "support/hex.h"

#include <gtest/gtest.h>

namespace mava_tum_amplification
{

namespace
{

using mava_tum_model::all_messages;
using mava_tum_model::find_message;
using mava_tum_model::message;

constexpr std::size_t made_wire_bytes = 4096;
constexpr uint64_t searched_inputs = 1 << 14;

class amplification : public testing::TestWithParam<std::size_t>
{
protected:
    const message &tested() const
    {
        return *all_messages()[GetParam()];
    }
};

std::string name_of_message(const testing::TestParamInfo<std::size_t> &info)
{
    return all_messages()[info.param]->name;
}

// Below the limit by at most the bytes in front of nested records and texts.
void expect_just_within(uint64_t memory, const wire_bytes &wire, const memory_ratio &limit)
{
    const double ratio = wire.empty() ? 0 : static_cast<double>(memory) / static_cast<double>(wire.size());
    EXPECT_LE(ratio, limit.value());
    EXPECT_GE(ratio, limit.value() * 0.99);
}

TEST_P(amplification, of_a_run_of_empty_elements_reaches_the_limit)
{
    const wire_bytes wire = worst_wire(tested(), made_wire_bytes);
    const memory_use use = measure_decoder(GetParam(), wire);
    expect_just_within(use.asked_bytes, wire, asked_limit(tested()));
    EXPECT_EQ(use.dropped_bytes, 0u);
}

TEST_P(amplification, of_what_a_repeated_record_drops_reaches_the_limit)
{
    const wire_bytes wire = dropping_wire(tested(), made_wire_bytes);
    expect_just_within(measure_decoder(GetParam(), wire).dropped_bytes, wire, dropped_limit(tested()));
}

TEST_P(amplification, of_no_short_input_is_above_the_limit)
{
    const std::vector<uint8_t> bytes = bytes_that_matter(tested());
    EXPECT_EQ(search(decoder_of(GetParam()), every_byte(), 2).above_a_limit, "");
    EXPECT_EQ(search(decoder_of(GetParam()), bytes, longest_within(searched_inputs, bytes.size())).above_a_limit, "");
}

INSTANTIATE_TEST_SUITE_P(of, amplification, testing::Range(std::size_t{0}, all_messages().size()), name_of_message);

// The figures in the public headers and docs/trust.md.
TEST(amplification_limit, is_328_for_sessions_in_a_replay_and_44_for_dropped_statistics)
{
    EXPECT_EQ(asked_limit(*find_message("rec_sess_replay_req")).value(), 328);
    EXPECT_EQ(dropped_limit(*find_message("sess_oper_resp")).value(), 44);
    for (const message *of : all_messages()) {
        EXPECT_LE(asked_limit(*of).value(), 328) << of->name;
        EXPECT_LE(dropped_limit(*of).value(), 44) << of->name;
    }
}

// The search must report an input above a limit, or one that drops memory.
TEST(amplification_search, names_an_input_that_asks_for_too_much_or_drops_something)
{
    searched_decode greedy = decoder_of(0);
    greedy.measure = [](std::span<const uint8_t> wire) {
        return wire.size() == 2 && wire[1] == 0x22 ? memory_use{1, 1, 0} : memory_use{};
    };
    EXPECT_EQ(search(greedy, every_byte(), 2).above_a_limit, "00 22");

    searched_decode leaking = decoder_of(0);
    leaking.message = find_message("rec_resp");
    leaking.measure = [](std::span<const uint8_t>) { return memory_use{0, 1, 1}; };
    EXPECT_EQ(search(leaking, every_byte(), 1).above_a_limit, "00");
}

} // namespace

} // namespace mava_tum_amplification
