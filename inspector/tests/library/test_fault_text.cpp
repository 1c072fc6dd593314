// One malformed input for each rule, and its sentence.
#include "inspect_calls.h"
#include "inspector/library/message_table.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <sys/mman.h>

namespace
{

using namespace mava_tum_test;

struct broken {
    const char *message;
    const char *input;
    const char *path;
    uint64_t offset;
    const char *text;
};

class every_fault : public testing::TestWithParam<broken>
{
};

TEST_P(every_fault, is_told_with_its_path_its_byte_and_its_result)
{
    const broken &expected = GetParam();
    const byte_vector input = bytes_of(expected.input);
    const mava_tum_inspect_verdict verdict = judge(expected.message, input);
    EXPECT_STREQ(verdict.text, expected.text);
    EXPECT_STREQ(verdict.path, expected.path);
    EXPECT_EQ(verdict.offset, expected.offset);
    EXPECT_STREQ(explain(expected.message, input).verdict.text, expected.text);
    EXPECT_NE(std::string(expected.text).find("result " + std::to_string(verdict.result)), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(inspect_judge, every_fault,
    testing::Values(
        // tags
        broken{"subscriber_v4", "08 01 80", "", 2, "a tag is cut short at byte 2: result -1"},
        broken{"session_context", "52 02 08 01 52 01 80 08 01", "session_data", 6,
            "a tag of `session_data` is cut short at byte 6: result -1"},
        broken{"session_context", "5A 00 80", "qos", 2,
            "the tag behind the run of `qos` is cut short at byte 2: result -1"},
        broken{"subscriber_v4", "0A 01", "field_1", 0,
            "`field_1` is length-delimited instead of varint at byte 0: result -3"},
        broken{"session_context", "08 07 5D 00", "qos", 2,
            "`qos` is fixed32 instead of length-delimited at byte 2: result -3"},
        // values
        broken{"subscriber_v4", "08 80", "field_1", 1, "`field_1` is cut short inside its varint at byte 1: result -1"},
        broken{
            "subscriber_v4", "15 01 02", "ipv4_address", 1, "`ipv4_address` has 2 of its 4 bytes at byte 1: result -1"},
        broken{"session_context", "52 03 2A 05 61", "session_data.field_5", 3,
            "`session_data.field_5` claims 5 bytes where 1 is left at byte 3: result -1"},
        broken{"session_context", "52 05 22 03 9A 01 05", "session_data.l2tp.field_19", 6,
            "`session_data.l2tp.field_19` claims 5 bytes where 0 are left at byte 6: result -1"},
        broken{"subscriber_httpr", "12 80", "field_2", 1, "the length of `field_2` is cut short at byte 1: result -1"},
        // occurrences
        broken{"subscriber_v6", "12 00 12 00", "field_2", 2,
            "`field_2` (bytes) occurs a second time at byte 2: result -1"},
        broken{"subscriber_httpr", "12 01 61 08 01 12 00", "field_2", 5,
            "`field_2` (text) occurs a second time at byte 5: result -1"},
        broken{"rec_sess_req", "1A 00 08 01 1A 00", "field_3", 4,
            "`field_3` occurs in a second, separate run at byte 4: result -1"},
        broken{"sess_svc_start", "2A 00 98 06 00 2A 00", "field_5", 5,
            "`field_5` occurs in a second, separate run at byte 5: result -1"},
        // elements
        broken{"session_context", "5A 02 08 01 5A 02 08 80", "qos[1].field_1", 7,
            "`qos[1].field_1` is cut short inside its varint at byte 7: result -1"},
        broken{"rec_sess_replay_req", "22 04 BA 01 02 08", "field_4[0].route_ipv4[0]", 4,
            "`field_4[0].route_ipv4[0]` claims 2 bytes where 1 is left at byte 4: result -1"},
        // unknown fields
        broken{"subscriber_v4", "98 06 80", "#99", 2,
            "unknown field 99 is cut short inside its varint at byte 2: result -1"},
        broken{"session_context", "52 03 9A 06 80", "session_data.#99", 4,
            "the length of unknown field 99 of `session_data` is cut short at byte 4: result -1"},
        broken{"subscriber_v4", "08 01 1B", "#3", 2,
            "unknown field 3 has wire type 3, which cannot be skipped, at byte 2: result -2"},
        broken{"subscriber_v4", "07", "#0", 0,
            "unknown field 0 has wire type 7, which cannot be skipped, at byte 0: result -2"}));

// The only fault of memory that does not depend on the allocator: a text of 2^32 - 1 bytes, from pages that are never
// written.
TEST(inspect_judge, tells_of_a_text_that_is_too_long_for_a_block)
{
    constexpr std::size_t head = 6, bytes = head + UINT32_MAX;
    void *pages = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    ASSERT_NE(pages, MAP_FAILED);
    uint8_t *input = static_cast<uint8_t *>(pages);
    const byte_vector start = bytes_of("12 FF FF FF FF 0F");
    std::copy(start.begin(), start.end(), input);
    mava_tum_inspect_verdict verdict;
    mava_tum_inspect_judge("subscriber_httpr", input, bytes, &verdict);
    EXPECT_STREQ(verdict.text, "`field_2` has 2^32 - 1 bytes, which with a NUL fit no block, at byte 1: result -4");
    uint64_t blocks = 0, asked = 0;
    mava_tum_inspect_memory("subscriber_httpr", input, bytes, 0, &blocks, &asked);
    EXPECT_EQ(blocks, 1u);
    EXPECT_EQ(asked, 0u);
    munmap(pages, bytes);
}

TEST(inspect_judge, counts_from_the_start_of_the_whole_message)
{
    const mava_tum_inspect_verdict verdict =
        judge("rec_sess_replay_resp", wire_builder().varint(1, 7).length_delimited(2, bytes_of("08 01 1A 02 3A 80")));
    EXPECT_EQ(verdict.offset, 9u);
    EXPECT_STREQ(verdict.path, "field_2[0].field_3.field_7");
}

// ---- no path and no sentence is longer than its buffer ----

std::size_t longest_path(const mava_tum_inspect::message_description &message)
{
    std::size_t longest = 0;
    for (const mava_tum_inspect::field_description &field : message.fields) {
        const bool is_array = field.count_offset != 0;
        const std::size_t own = std::string(field.name).size() + (is_array ? std::string("[4294967295]").size() : 0);
        const std::size_t inner = field.nested == nullptr ? 0 : 1 + longest_path(*field.nested);
        longest = std::max(longest, own + inner);
    }
    return std::max(longest, std::string("#536870911").size());
}

TEST(inspect_paths, are_shorter_than_their_room)
{
    for (const mava_tum_inspect::message_description &message : mava_tum_inspect::all_messages())
        EXPECT_LT(longest_path(message), std::size_t{MAVA_TUM_INSPECT_PATH_BYTES}) << message.name;
}

} // namespace
