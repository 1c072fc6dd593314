#include "run_program.h"

#include <gtest/gtest.h>

TEST(queue_sessions, works_off_the_sessions_in_the_order_in_which_they_came)
{
    const program_result result = run_program("'" QUEUE_SESSIONS "'");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, "4 waiting: 1 2 3 4\n"
                             "2 (user0002@example.com) hung up\n"
                             "3 waiting: 1 3 4\n"
                             "4 waiting: 1 3 4 2\n"
                             "set up 1 (user0001@example.com)\n"
                             "set up 3 (user0003@example.net)\n"
                             "set up 4 (user0004@example.com)\n"
                             "set up 2 (user0002@example.com)\n"
                             "0 waiting:\n");
}
