// Values 5 and 7 of the IPv6 record belong to parts 3 and 6: without their part they do not arrive, also if the record
// fails or occurs twice.
#include "nal/adapter_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using session = tum_nal_data_session_context;

struct ipv6_row {
    const char *what;
    std::vector<const char *> occurrences; // of the record, field 9
    uint32_t value_5;
    uint32_t value_7;
};

void expect_values(const std::vector<ipv6_row> &rows)
{
    for (const ipv6_row &row : rows) {
        wire_builder wire;
        for (const char *occurrence : row.occurrences)
            wire.length_delimited(9, bytes_of(occurrence));
        received_session got(wire);
        EXPECT_EQ(got->ipv6_value_5, row.value_5) << row.what;
        EXPECT_EQ(got->ipv6_value_7, row.value_7) << row.what;
    }
}

TEST(session_access_rows, a_value_without_its_part_does_not_arrive)
{
    expect_values({
        {"both values alone", {"28 05 38 07"}, 0, 0},
        {"part 3 alone", {"1A 01 AA 28 05 38 07"}, 5, 0},
        {"part 6 alone", {"28 05 32 01 AA 38 07"}, 0, 7},
        {"both parts", {"1A 01 AA 28 05 32 01 BB 38 07"}, 5, 7},
        {"a part behind its value", {"28 05 38 07 32 01 AA 1A 01 BB"}, 5, 7},
        {"empty parts", {"1A 00 28 05 32 00 38 07"}, 5, 7},
        {"the other parts", {"12 01 AA 22 01 BB 28 05 38 07"}, 0, 0},
    });
}

TEST(session_access_rows, a_value_without_its_part_does_not_arrive_when_the_record_fails_either)
{
    expect_values({
        {"a wrong wire type behind the values", {"28 05 38 07 0D"}, 0, 0},
        {"a cut tag behind the values", {"28 05 38 07 80"}, 0, 0},
        {"a part that is cut", {"28 05 1A 7F"}, 0, 0},
        {"part 3, a value, a fault", {"1A 01 AA 28 05 38 07 0D"}, 5, 0},
        {"part 3 twice", {"1A 01 AA 28 05 38 07 1A 01 BB"}, 5, 0},
        {"a fault before part 6", {"38 07 0D 32 01 AA"}, 0, 0},
        {"an unknown group behind the values", {"28 05 38 07 A3 01"}, 0, 0},
    });
}

TEST(session_access_rows, a_part_of_an_earlier_occurrence_does_not_count)
{
    expect_values({
        {"part 3 in the first, its value in the second", {"1A 01 AA", "28 05"}, 0, 0},
        {"both in the first, the value in the second", {"1A 01 AA 28 05", "28 06"}, 0, 0},
        {"both in the first, the part in the second", {"1A 01 AA 28 05", "1A 01 BB"}, 0, 0},
        {"the value in the first, the part in the second", {"28 05", "1A 01 BB"}, 0, 0},
        {"both in both", {"1A 01 AA 28 05 32 01 AA 38 07", "32 01 BB 38 08"}, 0, 8},
        {"the second fails behind its value", {"1A 01 AA 28 05", "28 06 0D"}, 0, 0},
        {"the second is empty", {"1A 01 AA 28 05 32 01 AA 38 07", ""}, 0, 0},
    });
}

TEST(session_access_rows, an_input_that_ends_in_the_record_delivers_no_value_of_it)
{
    // The record's length exceeds the input: its content is not read.
    received_session got("4A 07 1A 01 AA 28 05 38");
    EXPECT_EQ(first_difference(*got, zero_record<session>()), -1);
}

} // namespace
} // namespace mava_tum_test
