// Does every record arrive as it was sent? Random records, the same ones in every run.
#include "sweeps/check_round_trip.h"
#include "sweeps/message_list.h"
#include "sweeps/random_records.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{

namespace
{

constexpr uint64_t round_trip_seed = 20240229;
constexpr uint64_t record_count = 2000 / MAVA_TUM_WORK_DIVISOR;

class round_trips : public testing::TestWithParam<message>
{
};

TEST_P(round_trips, reproduce_random_records)
{
    const message &tested = GetParam();
    for (uint64_t seed = round_trip_seed; seed < round_trip_seed + record_count; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        random_source random(seed);
        const record_value value = random_record(*tested.skeleton, random);
        check_round_trip(tested, value, random);
        if (HasFailure())
            return;
    }
}

TEST_P(round_trips, reproduce_the_seeds_of_the_sweeps)
{
    const message &tested = GetParam();
    for (const named_record &seed : seeds_of(*tested.skeleton)) {
        SCOPED_TRACE(seed.name);
        random_source random(round_trip_seed);
        check_round_trip(tested, seed.value, random);
    }
}

INSTANTIATE_TEST_SUITE_P(of, round_trips, testing::ValuesIn(all_messages()), name_of_message);

} // namespace

} // namespace mava_tum_test
