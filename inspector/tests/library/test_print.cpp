// A message on one line, and the differences of two messages.
#include "inspect_calls.h"
#include "verdict_agreement.h"

#include <algorithm>

namespace
{

using namespace mava_tum_test;

// A name, an address, two elements of an array, an MTU.
const byte_vector session = bytes_of("08 02 42 05 15 C0 00 02 01 52 08 2A 06 61 22 62 0A 63 64 5A 02 08 01 5A 02 08 03 "
                                     "9A 01 03 08 D4 0B");

// ---- print ----

struct printed {
    int32_t result;
    std::string line;
};

printed print(int32_t form, const byte_vector &input, uint64_t capacity = 4096,
    mava_tum_inspect_redact_fn redact_fn = nullptr, void *context = nullptr)
{
    std::vector<char> buffer(capacity + 1, '#');
    const int32_t result = mava_tum_inspect_print(
        "session_context", input.data(), input.size(), form, redact_fn, context, buffer.data(), capacity);
    EXPECT_EQ(buffer[capacity], '#');
    return {result, capacity == 0 ? "" : buffer.data()};
}

TEST(inspect_print, writes_a_message_on_one_line)
{
    const printed words = print(MAVA_TUM_INSPECT_WORDS, session);
    EXPECT_EQ(words.result, MAVA_TUM_OK);
    EXPECT_EQ(words.line, "session_context, 33 bytes, result 0: {field_1=2 subscriber_v4={ipv4_address=192.0.2.1} "
                          "session_data={field_5=\"a\\\"b\\ncd\"} qos=[{field_1=1} {field_1=3}] mtu_1={field_1=1492}}");
    const printed json = print(MAVA_TUM_INSPECT_JSON, session);
    EXPECT_EQ(json.result, MAVA_TUM_OK);
    EXPECT_EQ(json.line,
        "{\"message\":\"session_context\",\"bytes\":33,\"result\":0,\"record\":{\"field_1\":2,\"subscriber_v4\":"
        "{\"ipv4_address\":\"192.0.2.1\"},\"session_data\":{\"field_5\":\"a\\\"b\\ncd\"},\"qos\":[{\"field_1\":1},"
        "{\"field_1\":3}],\"mtu_1\":{\"field_1\":1492}}}");
}

TEST(inspect_print, begins_with_the_fault_and_ends_at_it)
{
    const byte_vector input = bytes_of("08 02 52 04 2A 05 61 62");
    EXPECT_EQ(print(MAVA_TUM_INSPECT_WORDS, input).line,
        "session_context, 8 bytes, `session_data.field_5` claims 5 bytes where 2 are left at byte 5: result -1: "
        "{field_1=2 session_data={}}");
    EXPECT_EQ(print(MAVA_TUM_INSPECT_JSON, input).line,
        "{\"message\":\"session_context\",\"bytes\":8,\"result\":-1,\"fault\":{\"path\":\"/session_data/field_5\","
        "\"offset\":5,\"rule\":\"`session_data.field_5` claims 5 bytes where 2 are left at byte 5: result -1\"},"
        "\"record\":{\"field_1\":2,\"session_data\":{}}}");
}

TEST(inspect_print, writes_the_last_occurrence_of_a_field)
{
    const byte_vector input = bytes_of("08 02 9A 01 02 08 01 08 03 9A 01 00");
    EXPECT_EQ(print(MAVA_TUM_INSPECT_WORDS, input).line, "session_context, 12 bytes, result 0: {field_1=3 mtu_1={}}");
}

struct redacted_values {
    std::vector<std::string> paths;
    std::vector<byte_vector> values;
};

const char *without_texts_and_addresses(const mava_tum_inspect_value *value, void *context)
{
    redacted_values &seen = *static_cast<redacted_values *>(context);
    seen.paths.push_back(std::string(value->record) + ": " + value->path);
    seen.values.emplace_back(value->data, value->data + value->length);
    EXPECT_EQ(value->address != MAVA_TUM_INSPECT_NO_ADDRESS, value->number == 2);
    return value->kind == MAVA_TUM_INSPECT_TEXT || value->address != MAVA_TUM_INSPECT_NO_ADDRESS ? "***" : nullptr;
}

TEST(inspect_print, leaves_out_the_values_that_the_callback_replaces)
{
    for (const int32_t form : {MAVA_TUM_INSPECT_WORDS, MAVA_TUM_INSPECT_JSON}) {
        redacted_values seen;
        const std::string line = print(form, session, 4096, without_texts_and_addresses, &seen).line;
        EXPECT_EQ(line.find("192.0"), std::string::npos) << line;
        EXPECT_EQ(line.find("cd"), std::string::npos) << line;
        EXPECT_NE(line.find("\"***\""), std::string::npos) << line;
        EXPECT_NE(line.find("1492"), std::string::npos) << line;
        EXPECT_EQ(seen.paths,
            (std::vector<std::string>{"session_context: field_1", "subscriber_v4: subscriber_v4.ipv4_address",
                "session_data: session_data.field_5", "subscriber_qos: qos[0].field_1",
                "subscriber_qos: qos[1].field_1", "subscriber_mtu: mtu_1.field_1"}));
        EXPECT_EQ(seen.values[1], bytes_of("C0 00 02 01"));
        EXPECT_EQ(seen.values[2], bytes_of("61 22 62 0A 63 64"));
    }
}

// What is left of a line without its end.
std::string without_end(std::string line, const std::string &end)
{
    EXPECT_TRUE(line.ends_with(end)) << line;
    line.resize(line.size() - end.size());
    while (line.ends_with('}') || line.ends_with(']'))
        line.pop_back();
    return line;
}

TEST(inspect_print, cuts_a_line_before_a_value_and_closes_it_for_every_capacity)
{
    for (const int32_t form : {MAVA_TUM_INSPECT_WORDS, MAVA_TUM_INSPECT_JSON}) {
        const std::string whole = print(form, session).line;
        uint64_t cut_lines = 0;
        for (uint64_t capacity = 0; capacity < whole.size() + 40; ++capacity) {
            const printed part = print(form, session, capacity);
            if (part.result == MAVA_TUM_OK) {
                EXPECT_EQ(part.line, whole);
                EXPECT_GT(capacity, whole.size());
                continue;
            }
            EXPECT_EQ(part.result, MAVA_TUM_INSPECT_CUT);
            if (capacity == 0 || part.line.empty())
                continue;
            ++cut_lines;
            EXPECT_LT(part.line.size(), capacity);
            EXPECT_EQ(std::count(part.line.begin(), part.line.end(), '{'),
                std::count(part.line.begin(), part.line.end(), '}'));
            EXPECT_EQ(std::count(part.line.begin(), part.line.end(), '['),
                std::count(part.line.begin(), part.line.end(), ']'));
            const std::string begin = without_end(part.line, form == MAVA_TUM_INSPECT_JSON ? ",\"cut\":true}" : " ...");
            EXPECT_EQ(whole.substr(0, begin.size()), begin);
        }
        EXPECT_GT(cut_lines, 50u);
        EXPECT_EQ(print(form, session, whole.size() + 40).result, MAVA_TUM_OK);
    }
}

// ---- compare ----

struct compared {
    int32_t result;
    std::string lines;
    uint64_t count;
};

int32_t add_difference(const mava_tum_inspect_difference *told, void *context)
{
    std::string &lines = *static_cast<std::string *>(context);
    if (told->first != nullptr && told->second != nullptr)
        lines += std::string(told->path) + ": " + told->first + " -> " + told->second + "\n";
    else
        lines += std::string(told->path) + (told->second == nullptr ? " only first: " : " only second: ") +
                 (told->second == nullptr ? told->first : told->second) + "\n";
    return 0;
}

compared compare(const char *message, const byte_vector &first, const byte_vector &second)
{
    compared all{0, "", 77};
    all.result = mava_tum_inspect_compare(
        message, first.data(), first.size(), second.data(), second.size(), add_difference, &all.lines, &all.count);
    return all;
}

std::string lines_of(const char *first, const char *second)
{
    const compared all = compare("session_context", bytes_of(first), bytes_of(second));
    EXPECT_EQ(all.result, MAVA_TUM_OK);
    EXPECT_EQ(all.count, static_cast<uint64_t>(std::count(all.lines.begin(), all.lines.end(), '\n')));
    return all.lines;
}

TEST(inspect_compare, finds_no_difference_between_the_same_values_in_other_bytes)
{
    EXPECT_EQ(lines_of("08 02 10 03", "10 83 00 08 02"), "");
    EXPECT_EQ(lines_of("52 04 2A 02 61 62", "52 07 2A 05 61 62 00 63 64"), ""); // a text ends at a NUL
    EXPECT_EQ(lines_of("08 02", "08 01 08 02"), "");
    EXPECT_EQ(lines_of("9A 01 02 08 05", "9A 01 02 10 07 9A 01 02 08 05"), ""); // a record replaces the one before
}

TEST(inspect_compare, names_each_field_that_differs)
{
    EXPECT_EQ(lines_of("08 02", "08 03"), "field_1: 2 -> 3\n");
    EXPECT_EQ(
        lines_of("08 02 18 01", "10 03"), "field_1 only first: 2\nfield_3 only first: 1\nfield_2 only second: 3\n");
    EXPECT_EQ(lines_of("42 05 15 C0 00 02 01", "42 05 15 C0 00 02 02"),
        "subscriber_v4.ipv4_address: c0000201 = 192.0.2.1 -> c0000202 = 192.0.2.2\n");
    EXPECT_EQ(lines_of("52 04 2A 02 61 62", "52 05 2A 03 61 62 63"), "session_data.field_5: \"ab\" -> \"abc\"\n");
    EXPECT_EQ(lines_of("", "9A 01 02 08 05"), "mtu_1 only second: a record\nmtu_1.field_1 only second: 5\n");
}

TEST(inspect_compare, compares_elements_by_their_index)
{
    EXPECT_EQ(lines_of("5A 02 08 01 5A 02 08 02", "5A 02 08 01 5A 02 08 03 5A 02 08 04"),
        "qos[1].field_1: 2 -> 3\nqos[2] only second: a record\nqos[2].field_1 only second: 4\n");
    EXPECT_EQ(lines_of("5A 00", ""), "qos[0] only first: a record\n");
}

TEST(inspect_compare, compares_unknown_fields_of_the_same_number)
{
    EXPECT_EQ(lines_of("98 06 01", "98 06 02"), "#99: 1 -> 2\n");
    EXPECT_EQ(lines_of("98 06 01 A0 06 02", "A0 06 02"), "#99 only first: 1\n");
    EXPECT_EQ(lines_of("98 06 01 98 06 02", "98 06 01"), "#99 only first: 2\n");
    EXPECT_EQ(lines_of("9D 06 01 00 00 00", "98 06 01"), "#99: 01000000 -> 1\n");
    EXPECT_EQ(lines_of("A0 06 02 98 06 01", "98 06 01 A0 06 02"), "#99 only first: 1\n#99 only second: 1\n");
}

TEST(inspect_compare, truncates_values_to_a_sentence)
{
    byte_vector first = bytes_of("52 87 06 2A 84 06");
    byte_vector second = first;
    first.resize(first.size() + 772, 'a');
    second.resize(second.size() + 772, 'b');
    const compared all = compare("session_context", first, second);
    EXPECT_EQ(all.count, 1u);
    EXPECT_NE(all.lines.find("aaa... -> \"bbb"), std::string::npos) << all.lines;
}

int32_t stop_at_second(const mava_tum_inspect_difference *, void *context)
{
    return ++*static_cast<uint64_t *>(context) == 2;
}

TEST(inspect_compare, ends_when_the_callback_stops)
{
    const byte_vector first = bytes_of("08 01 5A 02 08 01 5A 02 08 02");
    const byte_vector second = bytes_of("08 02 10 01 5A 02 08 03 5A 02 08 04");
    uint64_t seen = 0;
    uint64_t count = 0;
    EXPECT_EQ(mava_tum_inspect_compare("session_context", first.data(), first.size(), second.data(), second.size(),
                  stop_at_second, &seen, &count),
        MAVA_TUM_INSPECT_STOPPED);
    EXPECT_EQ(seen, 2u);
    EXPECT_EQ(count, 2u);
}

TEST(inspect_compare, refuses_a_message_that_does_not_decode)
{
    const byte_vector whole = bytes_of("08 01");
    const byte_vector broken = bytes_of("08");
    EXPECT_EQ(compare("session_context", whole, broken).result, MAVA_TUM_INSPECT_MALFORMED);
    EXPECT_EQ(compare("session_context", broken, whole).result, MAVA_TUM_INSPECT_MALFORMED);
    EXPECT_EQ(compare("session_context", broken, whole).lines, "");
    EXPECT_EQ(compare("session", whole, whole).result, MAVA_TUM_INSPECT_NO_SUCH_NAME);
}

// Both ways the same number of differences, and none to itself.
TEST(inspect_compare, is_symmetric_for_every_message)
{
    uint64_t different = 0;
    for (const mava_tum_model::message *of : mava_tum_model::all_messages()) {
        const std::vector<byte_vector> seeds = mava_tum_model::seed_wires(*of);
        for (std::size_t i = 0; i < seeds.size() && i < 40; ++i) {
            if (judge(of->name, seeds[i]).result != MAVA_TUM_OK)
                continue;
            EXPECT_EQ(compare(of->name, seeds[i], seeds[i]).lines, "") << of->name << " " << hex_of(seeds[i]);
            const byte_vector &other = seeds[(i + 1) % seeds.size()];
            const compared forth = compare(of->name, seeds[i], other);
            const compared back = compare(of->name, other, seeds[i]);
            EXPECT_EQ(forth.count, back.count) << of->name << " " << hex_of(seeds[i]) << " " << hex_of(other);
            different += forth.result == MAVA_TUM_OK && forth.count != 0 ? 1 : 0;
        }
    }
    EXPECT_GT(different, 100u);
}

} // namespace
