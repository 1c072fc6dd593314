// Compares the check with the adapters on random and mutated messages: exactly the reported values do not arrive.
#include "arrived_values.h"
#include "inspect_calls.h"
#include "model/message_tables.h"
#include "model/random_source.h"
#include "model/wire_maker.h"

#include <gtest/gtest.h>

namespace
{

using namespace mava_tum_inspect;
using namespace mava_tum_test;
using mava_tum_model::random_source;

constexpr int rounds = 1500;

struct tally {
    int clean = 0;
    int lossy = 0;
    int broken = 0;
};

void expect_agreement(const adapter_description &adapter, const byte_vector &input, tally &seen)
{
    const checked found = check(adapter.name, input);
    if (found.has(MAVA_TUM_INSPECT_FAULT)) {
        EXPECT_NE(found.result.verdict.result, MAVA_TUM_OK);
        ++seen.broken;
        return;
    }
    EXPECT_EQ(found.result.verdict.result, MAVA_TUM_OK);
    const std::vector<std::string> lost = lost_in(adapter, input);
    if (found.findings.empty()) {
        EXPECT_EQ(lost, std::vector<std::string>()) << adapter.name << " " << hex_of(input);
        ++seen.clean;
        return;
    }
    // A value that is replaced by an equal one is reported, but not lost.
    if (found.has(MAVA_TUM_INSPECT_REPLACED))
        return;
    EXPECT_NE(lost, std::vector<std::string>()) << adapter.name << " " << hex_of(input) << "\n" << found.texts();
    ++seen.lossy;
}

TEST(inspect_check, finds_exactly_what_the_adapters_lose)
{
    tally seen;
    uint64_t seed = 0;
    for (const adapter_description &adapter : all_adapters()) {
        const mava_tum_model::message &of = *mava_tum_model::find_message(adapter.carried->name);
        random_source random(++seed);
        for (int round = 0; round < rounds && !testing::Test::HasFailure(); ++round) {
            mava_tum_model::wire_bytes wire = mava_tum_model::random_wire(of, random);
            for (uint64_t changes = random.below(3); changes > 0; --changes)
                mava_tum_model::mutate_wire(of, wire, random);
            expect_agreement(adapter, wire, seen);
        }
    }
    EXPECT_GT(seen.clean, 1000);
    EXPECT_GT(seen.lossy, 1000);
    EXPECT_GT(seen.broken, 1000);
}

} // namespace
