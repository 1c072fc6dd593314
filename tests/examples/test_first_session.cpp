#include "run_program.h"

#include <gtest/gtest.h>

TEST(first_session, a_session_comes_back_from_the_wire)
{
    const program_result result = run_program("'" FIRST_SESSION "'");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "52 bytes: user@example.com has MTU 1492\n");
}
