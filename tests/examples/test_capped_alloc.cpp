#include "run_program.h"

#include <gtest/gtest.h>

TEST(capped_alloc, keeps_a_decode_within_its_budget_and_takes_back_what_the_decode_drops)
{
    const program_result result = run_program("'" CAPPED_ALLOC "'");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output,
        "3 sessions, 6 bytes: decoded, blocks out: 1, after free: 0, in the end: 0\n"
        "500 sessions, 1000 bytes: refused, blocks out: 0, after free: 0, in the end: 0\n"
        "1 session, its access list twice, 10 bytes: decoded, blocks out: 2, after free: 1, in the end: 0\n");
}
