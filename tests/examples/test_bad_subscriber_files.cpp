// An error in a file of subscribers is reported with line and column, and what to do. One row per error.
#include "run_program.h"
#include "subscriber_file.h"
#include "subscriber_lines.h"

#include <gtest/gtest.h>

namespace
{

// Runs the program with the file `content`. Returns its errors without the folder of the file.
program_result run_with_file(const std::string &content)
{
    const scratch_folder scratch;
    const std::string path = scratch.file("subscribers.csv", content);
    program_result result = run_program("'" SESSION_SETUP "' " + path);
    const std::string folder = std::filesystem::path(path).parent_path().string() + "/";
    for (size_t at = result.errors.find(folder); at != std::string::npos; at = result.errors.find(folder))
        result.errors.erase(at, folder.size());
    return result;
}

const std::string names = examples::column_names();

std::string good_line()
{
    return line_of(full_cells(), names);
}

struct bad_cell {
    const char *name;
    const char *column;
    std::string cell;
    std::string message;
};

void PrintTo(const bad_cell &row, std::ostream *out)
{
    *out << row.name;
}

std::string repeated(const std::string &entry, unsigned count)
{
    std::string result = entry;
    for (unsigned i = 1; i < count; ++i)
        result += ";" + entry;
    return result;
}

const std::string number_hint = "; write decimal digits, or nothing for 0";
const std::string ipv4_hint = "; write four numbers from 0 to 255, such as 192.0.2.17";
const std::string bytes_hint = "; write two hex digits for each and ':' between them, such as 00:00:5e:00:53:01";
const std::string x65(65, 'x'), x33(33, 'x'), x256(256, 'x');

const bad_cell bad_cells[] = {
    {"ipv4_address", "ipv4", "192.0.2.300|1", "ipv4: \"192.0.2.300\" is not an IPv4 address" + ipv4_hint},
    {"ipv6_address", "ipv6_address", "2001:db8::g",
        "ipv6_address: \"2001:db8::g\" is not an IPv6 address; write it as in 2001:db8::17"},
    {"prefix_without_length", "ipv6_prefix",
        "2001:db8::", "ipv6_prefix: \"2001:db8::\" has no prefix length; write it as 2001:db8:17::/48"},
    {"prefix_with_empty_length", "ipv6_prefix", "2001:db8::/",
        "ipv6_prefix: \"2001:db8::/\" has no prefix length; write it as 2001:db8:17::/48"},
    {"prefix_too_long", "ipv6_delegated", "2001:db8::/129",
        "ipv6_delegated: \"129\" is not a number from 0 to 128" + number_hint},
    {"number_with_a_letter", "kind", "4x", "kind: \"4x\" is not a number from 0 to 4294967295" + number_hint},
    {"number_with_a_sign", "kind", "-1", "kind: \"-1\" is not a number from 0 to 4294967295" + number_hint},
    {"number_of_33_bits", "values", "1|4294967296",
        "values value_3: \"4294967296\" is not a number from 0 to 4294967295" + number_hint},
    {"number_of_17_bits", "value_9", "65536", "value_9: \"65536\" is not a number from 0 to 65535" + number_hint},
    {"number_of_65_bits", "data_values", "1|18446744073709551616",
        "data_values value_2: \"18446744073709551616\" is not a number from 0 to 18446744073709551615" + number_hint},
    {"vlan_number", "vlans", "100/x", "vlans inner: \"x\" is not a number from 0 to 65535" + number_hint},
    {"three_vlans", "vlans", "1/2/3", "vlans: \"1/2/3\" has more than two VLANs; write 100 or 100/7"},
    {"missing_line_id", "line", "", "line: the line id is missing; give each subscriber one"},
    {"long_line_id", "line", x65, "line: \"" + x65 + "\" has 65 bytes, but the record has room for 64; shorten it"},
    {"long_label", "label", x33, "label: \"" + x33 + "\" has 33 bytes, but the record has room for 32; shorten it"},
    {"long_redirect", "redirect", "1|" + x256,
        "redirect text_2: \"" + x256 + "\" has 256 bytes, but the record has room for 255; shorten it"},
    {"long_route_text", "ipv4_routes", "192.0.2.0/24|192.0.2.1|1|" + x33,
        "ipv4_routes entry 1 text_2: \"" + x33 + "\" has 33 bytes, but the record has room for 32; shorten it"},
    {"short_identifier", "identifier", "00:01", "identifier: \"00:01\" is not 7 bytes" + bytes_hint},
    {"identifier_not_hex", "identifier", "00:00:5e:00:53:01:zz",
        "identifier: \"00:00:5e:00:53:01:zz\" is not 7 bytes" + bytes_hint},
    {"identifier_with_single_digits", "identifier", "0:0:5:0:5:1:2",
        "identifier: \"0:0:5:0:5:1:2\" is not 7 bytes" + bytes_hint},
    {"ppp_identifier", "ppp", "1|2|3|4|00:01", "ppp identifier: \"00:01\" is not 9 bytes" + bytes_hint},
    {"access_word", "access", "dialup", "access: \"dialup\" is not known; use one of: direct, ppp, l2tp"},
    {"feature_word", "features", "qos;shaping",
        "features: \"shaping\" is not known; use one of: qos, acl, redirect, intercept, urpf, icmp, mtu, accounting, "
        "routes"},
    {"feature_without_values", "mtu", "",
        "features: \"mtu\" is on, but it has no values; fill its cell or take the "
        "word out"},
    {"access_without_values", "l2tp", "",
        "access: l2tp, but the l2tp cell is empty; fill that cell or name the right "
        "access"},
    {"access_with_values_of_another", "access", "direct",
        "access: direct, but the ppp or the l2tp cell is filled; empty those cells or name the right access"},
    {"ppp_access_with_a_tunnel", "access", "ppp",
        "access: ppp needs the ppp cell filled and the l2tp cell empty; correct one of the three cells"},
    {"tunnel_between_two_families", "l2tp", "tunnel|192.0.2.1|2001:db8::1",
        "l2tp remote: \"2001:db8::1\" is not an IPv4 address" + ipv4_hint},
    {"nine_qos_entries", "qos", repeated("1", 9),
        "qos: 9 entries, but a session has room for 8; take out what is too much (entries stand between ';')"},
    {"five_ipv4_routes", "ipv4_routes", repeated("192.0.2.0/24", 5),
        "ipv4_routes: 5 entries, but a session has room for 4; take out what is too much (entries stand between ';')"},
    {"five_ipv6_routes", "ipv6_routes", repeated("2001:db8::/32", 5),
        "ipv6_routes: 5 entries, but a session has room for 4; take out what is too much (entries stand between ';')"},
    {"three_urpf_entries", "urpf", "1;2;3",
        "urpf: 3 entries, but a session has room for 2; take out what is too much (entries stand between ';')"},
    {"values_behind_an_entry", "qos", "1;2|3|a|b|c|4|5|6|d|e|f|7",
        "qos entry 2: 12 values instead of 11 at most; take out what is too much (values stand between '|')"},
    {"quotation_marks", "user", "\"user\"",
        "the line has a quotation mark; write cells without quotes; no cell may contain a comma"},
    {"control_character", "user", "\x1b[2J",
        "the line has a control character or a tab; delete it; cells stand directly between commas"},
    {"comma_in_a_cell", "user", "a,b",
        "30 columns instead of 29; give every column a cell, if an empty one, and no cell a comma"},
};

class bad_subscriber_cell : public testing::TestWithParam<bad_cell>
{
};

} // namespace

TEST_P(bad_subscriber_cell, is_reported_with_file_line_and_column)
{
    // In line 4, after a comment and a valid subscriber, so that line and subscriber numbers differ.
    cells values = full_cells_but("line", "another");
    values.at(GetParam().column) = GetParam().cell;
    const program_result result = run_with_file("# comment\n" + names + "\n" + good_line() + line_of(values, names));
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "subscribers.csv:4: " + GetParam().message + "\n");
    EXPECT_EQ(result.output, "");
}

INSTANTIATE_TEST_SUITE_P(each, bad_subscriber_cell, testing::ValuesIn(bad_cells),
    [](const testing::TestParamInfo<bad_cell> &info) { return std::string(info.param.name); });

TEST(bad_subscriber_file, a_line_id_that_occurs_twice_names_both_lines)
{
    const program_result result = run_with_file(names + "\n" + good_line() + "\n" + good_line());
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "subscribers.csv:4: line: \"node-01 1/1\" stands in line 2 already; give each subscriber "
                             "a line id of its own\n");
}

TEST(bad_subscriber_file, a_line_with_a_column_less_is_refused)
{
    std::string line = good_line();
    line.erase(line.rfind(','));
    const program_result result = run_with_file(names + "\n" + line + "\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "subscribers.csv:2: 28 columns instead of 29; give every column a cell, if an empty one, "
                             "and no cell a comma\n");
}

TEST(bad_subscriber_file, another_line_of_column_names_is_refused)
{
    const program_result result = run_with_file("user,line\nuser@example.com,1\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "subscribers.csv:1: this is not the line of column names; the first line that is no "
                             "comment must be " +
                                 names + "\n");
}

TEST(bad_subscriber_file, an_empty_file_is_refused)
{
    const program_result result = run_with_file("# only a comment\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "subscribers.csv: is empty; give the path of a file of subscribers (--help says more)\n");
}

TEST(bad_subscriber_file, column_names_alone_are_refused)
{
    const program_result result = run_with_file(names + "\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "subscribers.csv:1: no subscriber follows; add at least one\n");
}

TEST(bad_subscriber_file, a_missing_file_is_named)
{
    const program_result result = run_program("'" SESSION_SETUP "' /nowhere/subscribers.csv");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "/nowhere/subscribers.csv: cannot be opened: No such file or directory; give the path of "
                             "a file of subscribers (--help says more)\n");
}

TEST(bad_subscriber_file, a_folder_is_not_a_file)
{
    const program_result result = run_program("'" SESSION_SETUP "' /");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors.rfind("/: ", 0), 0U) << result.errors;
    EXPECT_NE(result.errors.find("give the path of a file of subscribers"), std::string::npos) << result.errors;
}

TEST(good_subscriber_file, may_have_spreadsheet_line_ends_and_a_byte_order_mark)
{
    std::string line = good_line();
    line.insert(line.size() - 1, "\r");
    const program_result result = run_with_file("\xEF\xBB\xBF" + names + "\r\n" + line);
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("\nmismatches: 0 sessions, 0 values\n"), std::string::npos) << result.output;
}

TEST(good_subscriber_file, may_leave_all_cells_but_the_line_id_and_the_access_empty)
{
    cells values = full_cells();
    for (auto &[column, cell] : values)
        cell = column == "line" ? "node-01 1/1" : (column == "access" ? "direct" : "");
    const program_result result = run_with_file(names + "\n" + line_of(values, names));
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("\nmismatches: 0 sessions, 0 values\n"), std::string::npos) << result.output;
}
