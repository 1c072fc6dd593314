// The exact text of explanations.
#include "inspect_calls.h"
#include "support/wire_builder.h"
#include "verdict_agreement.h"

#include "mava_tum/cpp/mava_tum.hpp"
#include "mava_tum/cpp/print.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <sstream>
#include <string>

namespace
{

using namespace mava_tum_test;

std::string lines_of(const char *message, std::string_view hex)
{
    return explain(message, bytes_of(hex)).lines;
}

TEST(inspect_explain, gives_each_tag_and_value_a_line_with_its_offset)
{
    EXPECT_EQ(lines_of("subscriber_v4", "08 96 01 15 C0 00 02 01"),
        "       0  08                       field_1: field 1, varint\n"
        "       1  96 01                      150\n"
        "       3  15                       ipv4_address: field 2, fixed32, IPv4 address\n"
        "       4  C0 00 02 01                192.0.2.1\n");
}

TEST(inspect_explain, indents_nested_records_and_continues_long_values)
{
    EXPECT_EQ(lines_of("session_context", "4A 12 1A 10 20 01 0D B8 00 00 00 00 00 00 00 00 00 00 00 01"),
        "       0  4A                       subscriber_v6: field 9, record subscriber_v6\n"
        "       1  12                         length 18\n"
        "       2  1A                         field_3: field 3, bytes, IPv6 address\n"
        "       3  10                           length 16\n"
        "       4  20 01 0D B8 00 00 00 00      2001:db8::1\n"
        "      12  00 00 00 00 00 00 00 01\n");
}

TEST(inspect_explain, numbers_the_elements_of_an_array_and_counts_its_run)
{
    EXPECT_EQ(lines_of("sess_svc_start", "2A 01 61 2A 00"),
        "                                     note: a run of 2 elements\n"
        "       0  2A                       field_5[0]: field 5, array of texts\n"
        "       1  01                         length 1\n"
        "       2  61                         \"a\"\n"
        "       3  2A                       field_5[1]: field 5, array of texts\n"
        "       4  00                         length 0\n");
}

TEST(inspect_explain, ends_with_the_fault_and_what_is_not_read)
{
    EXPECT_EQ(lines_of("session_context", "5A 00 08 01 5A 00"),
        "                                     note: a run of 1 element\n"
        "       0  5A                       qos[0]: field 11, array of records subscriber_qos\n"
        "       1  00                         length 0\n"
        "       2  08                       field_1: field 1, varint\n"
        "       3  01                         1\n"
        "       4  5A                       qos: field 11, array of records subscriber_qos\n"
        "                                   fault: `qos` occurs in a second, separate run at byte 4: result -1\n"
        "       5  00                       not read: 1 byte\n");
}

TEST(inspect_explain, names_the_wire_type_that_stands_where_another_belongs)
{
    EXPECT_EQ(lines_of("subscriber_v4", "0D 01"),
        "       0  0D                       field_1: field 1, fixed32 instead of varint\n"
        "                                   fault: `field_1` is fixed32 instead of varint at byte 0: result -3\n"
        "       1  01                       not read: 1 byte\n");
}

TEST(inspect_explain, shows_the_entries_of_a_broken_run_as_not_decoded)
{
    EXPECT_EQ(lines_of("session_context", "5A 02 08 01 5A 09 01"),
        "       0  5A                       qos[0]: field 11, array of records subscriber_qos\n"
        "       1  02                         length 2\n"
        "       2  08 01                      not decoded: its run is not whole\n"
        "       4  5A                       qos[1]: field 11, array of records subscriber_qos\n"
        "       5  09                         length 9\n"
        "                                   fault: `qos[1]` claims 9 bytes where 1 is left at byte 5: result -1\n"
        "       6  01                       not read: 1 byte\n");
}

TEST(inspect_explain, quotes_texts_and_cuts_long_ones)
{
    const byte_vector input = wire_builder().text(2, "a\"\\\n" + std::string(60, 'x'));
    const std::string lines = explain("subscriber_httpr", input).lines;
    EXPECT_NE(lines.find("\"a\\\"\\\\\\x0A" + std::string(44, 'x') + "\"... (64 bytes)\n"), std::string::npos) << lines;
}

TEST(inspect_explain, shows_64_bit_and_unknown_values)
{
    const std::string lines = lines_of("session_delete", "20 FF FF FF FF FF FF FF FF FF 01 98 06 05 9A 06 01 AA");
    EXPECT_NE(lines.find("field_4: field 4, varint of 64 bits\n"), std::string::npos) << lines;
    EXPECT_NE(lines.find("18446744073709551615\n"), std::string::npos) << lines;
    EXPECT_NE(lines.find("unknown field 99, varint\n"), std::string::npos) << lines;
    EXPECT_NE(lines.find("unknown field 99, length-delimited\n"), std::string::npos) << lines;
}

// ---- notes ----

struct noted {
    const char *message;
    const char *input;
    const char *note;
};

class every_note : public testing::TestWithParam<noted>
{
};

TEST_P(every_note, is_told_in_words)
{
    const std::string lines = lines_of(GetParam().message, GetParam().input);
    EXPECT_NE(lines.find(std::string("note: ") + GetParam().note + "\n"), std::string::npos) << lines;
    EXPECT_EQ(judge(GetParam().message, bytes_of(GetParam().input)).result, MAVA_TUM_OK);
}

INSTANTIATE_TEST_SUITE_P(inspect_explain, every_note,
    testing::Values(noted{"subscriber_v4", "88 80 00 05", "the tag takes 3 bytes where 1 is enough (L2)"},
        noted{"subscriber_v4", "88 80 80 80 70 05", "the bits of the tag above 32 are dropped (L2)"},
        noted{"subscriber_httpr", "12 81 00 61", "the length takes 2 bytes where 1 is enough (L1)"},
        noted{"subscriber_httpr", "12 81 80 80 80 70 61", "the bits of the length above 32 are dropped (L1)"},
        noted{"subscriber_v4", "08 FF FF FF FF FF FF FF FF FF 01", "the value takes 10 bytes where 5 are enough (L1)"},
        noted{"subscriber_v4", "08 FF FF FF FF FF FF FF FF FF 01", "the bits of the value above 32 are dropped (L1)"},
        noted{"session_delete", "20 FF FF FF FF FF FF FF FF FF 7F", "the bits of the value above 64 are dropped (L1)"},
        noted{"subscriber_v4", "18 05", "skipped: subscriber_v4 does not know it"},
        noted{"subscriber_v4", "00 00", "skipped: no field has the number 0 (L4)"},
        noted{"subscriber_v4", "19 01 02",
            "ends 6 bytes beyond the end of its message, which ends here with success (L3)"},
        noted{"session_context", "42 02 1A 03 08 01",
            "ends 3 bytes beyond the end of its record, which ends here with success (L3)"},
        noted{"session_context", "5A 00 58 00",
            "read as length-delimited: inside a run the wire type is not looked at (L5)"},
        noted{"subscriber_v4", "08 01 08 02", "occurs again: the last value wins"},
        noted{"session_data", "52 02 08 01 52 02 10 03",
            "occurs again: replaces the record before it, without merging (L11)"},
        noted{"subscriber_httpr", "12 05 61 62 00 63 64", "a NUL ends the text after 2 of 5 bytes (L8)"},
        noted{"subscriber_httpr", "12 04 FF C0 AF 80", "is no UTF-8 (L9)"},
        noted{"subscriber_route_ipv6", "1A 04 C0 00 02 01",
            "an IPv6 address has 16 bytes; any length is accepted (L13)"}));

TEST(inspect_explain, has_no_notes_on_what_this_library_writes)
{
    const byte_vector input = wire_builder()
                                  .varint(1, UINT32_MAX)
                                  .length_delimited(8, bytes_of("08 01 15 C0 00 02 01"))
                                  .length_delimited(10, bytes_of("2A 04 C3 A4 E2 82 52 02 08 00"))
                                  .bytes();
    EXPECT_EQ(explain("session_context", input).lines.find("note: the"), std::string::npos);
}

// ---- properties of the lines ----

// The bytes of all lines, one after the other.
byte_vector bytes_of_lines(const char *message, const byte_vector &input)
{
    struct followed {
        const byte_vector &input;
        byte_vector bytes;
    } lines{input, {}};
    const auto follow = [](const mava_tum_inspect_line *line, void *context) {
        followed &seen = *static_cast<followed *>(context);
        EXPECT_LE(line->byte_count, uint32_t{MAVA_TUM_INSPECT_ROW_BYTES});
        EXPECT_TRUE(line->byte_count == 0 || line->offset == seen.bytes.size());
        const auto first = seen.input.begin() + static_cast<std::ptrdiff_t>(line->offset);
        seen.bytes.insert(seen.bytes.end(), first, first + line->byte_count);
        return 0;
    };
    mava_tum_inspect_explain(message, input.data(), input.size(), follow, &lines, nullptr);
    return lines.bytes;
}

TEST(inspect_explain, shows_every_byte_once_and_in_order)
{
    for (const mava_tum_model::message *of : mava_tum_model::all_messages()) {
        mava_tum_model::random_source random(1);
        const std::vector<byte_vector> seeds = mava_tum_model::seed_wires(*of);
        for (int round = 0; round < 500 && !HasFailure(); ++round) {
            const byte_vector input = some_input(*of, seeds, random);
            EXPECT_EQ(bytes_of_lines(of->name, input), input) << of->name << " " << hex_of(input);
        }
    }
}

// Stops at the given line, counted from 1.
struct stopping {
    uint64_t at;
    uint64_t seen = 0;
};

template <class Told>
int32_t stop_at(const Told *, void *context)
{
    stopping &stop = *static_cast<stopping *>(context);
    return ++stop.seen == stop.at ? -7 : 0;
}

TEST(inspect_explain, ends_after_the_line_at_which_the_callback_stops)
{
    // All kinds of lines: the array, the texts, values of many lines, a fault and what it leaves unread.
    for (const char *wire : {"08 02 98 06 01 52 12 2A 10 61 61 61 61 61 61 61 61 61 61 61 61 61 61 61 61 5A 02 08 01 "
                             "5A 00 10 80 00 08",
             "5A 02 08 01 5A 05 08", "08 02 15 01 02 03 04"}) {
        const byte_vector input = bytes_of(wire);
        stopping never{0};
        mava_tum_inspect_explain("session_context", input.data(), input.size(), stop_at, &never, nullptr);
        EXPECT_GT(never.seen, 4u);
        for (uint64_t line = 1; line <= never.seen; ++line) {
            stopping stop{line};
            mava_tum_inspect_verdict verdict{77, 0, "", ""};
            EXPECT_EQ(mava_tum_inspect_explain("session_context", input.data(), input.size(), stop_at, &stop, &verdict),
                MAVA_TUM_INSPECT_STOPPED);
            EXPECT_EQ(stop.seen, line);
            EXPECT_EQ(verdict.result, 77);
        }
    }
}

TEST(inspect_explain, of_nothing_has_no_lines)
{
    EXPECT_EQ(lines_of("session_context", ""), "");
    EXPECT_STREQ(judge("session_context", {}).text, "0 bytes decode: result 0");
}

TEST(inspect_explain, knows_no_message_of_another_name)
{
    mava_tum_inspect_verdict verdict;
    const auto never = [](const mava_tum_inspect_line *, void *) {
        ADD_FAILURE();
        return 0;
    };
    EXPECT_EQ(mava_tum_inspect_explain("session", nullptr, 0, never, nullptr, &verdict), MAVA_TUM_INSPECT_NO_SUCH_NAME);
    EXPECT_EQ(mava_tum_inspect_judge("", nullptr, 0, &verdict), MAVA_TUM_INSPECT_NO_SUCH_NAME);
}

TEST(inspect_format_line, cuts_to_the_capacity_and_returns_the_whole_length)
{
    const uint8_t data[] = {8};
    const mava_tum_inspect_line line{MAVA_TUM_INSPECT_LINE_TAG, 0, 0, 1, "", "words"};
    char text[64];
    std::memset(text, '#', sizeof(text));
    EXPECT_EQ(mava_tum_inspect_format_line(&line, data, text, 12), 40u);
    EXPECT_STREQ(text, "       0  0");
    EXPECT_EQ(text[12], '#');
    EXPECT_EQ(mava_tum_inspect_format_line(&line, data, nullptr, 0), 40u);
    EXPECT_EQ(mava_tum_inspect_format_line(&line, data, text, 41), 40u);
    EXPECT_STREQ(text, "       0  08                       words");
}

namespace tum = mava_tum::cpp;

TEST(cpp_print, shows_the_values_that_are_present_in_one_line)
{
    tum::session_context session;
    session.set_field_1(7);
    session.edit_subscriber_v4().set_ipv4_address(0x010200C0);
    ASSERT_EQ(session.edit_session_data().set_field_5("a \"b\"\n"), tum::result::ok);
    ASSERT_EQ(session.add_qos()->set_field_3(""), tum::result::ok);
    ASSERT_TRUE(session.add_qos());
    const std::string expected = "{field_1: 7, subscriber_v4.ipv4_address: 192.0.2.1, session_data.field_5: "
                                 "\"a \\\"b\\\"\\x0A\", qos[0].field_3: empty, qos[1]: empty}";
    EXPECT_EQ(to_string(session), expected);
    std::ostringstream stream;
    stream << session.view();
    EXPECT_EQ(stream.str(), expected);
    stream.str("");
    stream << session.subscriber_v4() << session.edit_qos()[0];
    EXPECT_EQ(stream.str(), "{ipv4_address: 192.0.2.1}{field_3: empty}");
}

TEST(cpp_print, tells_an_absent_record_from_an_empty_one)
{
    EXPECT_EQ(to_string(tum::session_context_view()), "absent");
    EXPECT_EQ(to_string(tum::session_context()), "{}");
}

TEST(cpp_print, shows_a_long_value_once)
{
    tum::session_context session;
    ASSERT_EQ(session.set_field_6(std::string(100, 'x')), tum::result::ok);
    ASSERT_EQ(session.edit_session_data().set_field_5(std::string(60, 'y')), tum::result::ok);
    EXPECT_EQ(to_string(session),
        "{field_6: 100 bytes, session_data.field_5: \"" + std::string(48, 'y') + "\"... (60 bytes)}");
}

#if defined(__cpp_lib_format)
TEST(cpp_print, is_what_std_format_writes)
{
    tum::vlan_info vlan;
    vlan.set_field_1(5);
    EXPECT_EQ(std::format("{:>14}|{}", vlan, vlan.view()), "  {field_1: 5}|{field_1: 5}");
}
#endif

} // namespace
