#include "run_program.h"

#include <gtest/gtest.h>

TEST(decode_into_arena, reads_sessions_where_they_were_decoded_and_refuses_what_exceeds_the_arena)
{
    const program_result result = run_program("'" DECODE_INTO_ARENA "'");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "user0001@example.com: 192.0.2.1, MTU 1492\n"
                             "user0002@example.com: 192.0.2.2, MTU 1484\n"
                             "user0003@example.com: 192.0.2.3, MTU 1476\n"
                             "refused, result -4\n");
}
