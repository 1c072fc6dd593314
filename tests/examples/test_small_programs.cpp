// Each example of one file: built, run as by a user, and compared with the expected output.
#include "run_program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <vector>

namespace
{

const std::filesystem::path sources = EXAMPLES_SOURCE_FOLDER;

std::vector<std::string> small_programs()
{
    std::istringstream names(SMALL_PROGRAMS);
    return {std::istream_iterator<std::string>(names), {}};
}

std::string source_of(const std::string &program)
{
    const std::filesystem::path in_c = sources / (program + ".c");
    return read_file(std::filesystem::exists(in_c) ? in_c : sources / (program + ".cpp"));
}

class small_program : public testing::TestWithParam<std::string>
{
};

// The part of expected_output.txt below the line "== <name>".
std::string expected_output(const std::string &name)
{
    const std::string all = read_file(EXPECTED_OUTPUT_FILE), line = "== " + name + "\n";
    const std::size_t found = ("\n" + all).find("\n" + line);
    if (found == std::string::npos)
        return "nothing is expected of " + name;
    const std::size_t start = found + line.size();
    return all.substr(start, all.find("\n== ", start - 1) + 1 - start);
}

TEST_P(small_program, prints_what_is_expected_of_it)
{
    const program_result result = run_program("'" SMALL_PROGRAMS_FOLDER "/" + GetParam() + "'");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.output, expected_output(GetParam()));
}

TEST_P(small_program, says_in_its_head_what_it_prints)
{
    const std::string source = source_of(GetParam());
    const std::string head = source.substr(0, source.find("\n#"));
    EXPECT_TRUE(head.rfind("/* ", 0) == 0 || head.rfind("// ", 0) == 0) << head;
    EXPECT_NE(head.find("Prints "), std::string::npos) << head;
}

TEST_P(small_program, is_short_enough_to_be_read_at_once)
{
    const std::string source = source_of(GetParam());
    EXPECT_LT(std::count(source.begin(), source.end(), '\n'), 80);
}

INSTANTIATE_TEST_SUITE_P(
    each, small_program, testing::ValuesIn(small_programs()), [](const auto &info) { return info.param; });

// Every example must be run by a test.
TEST(small_programs, are_all_the_programs_beside_the_readme)
{
    std::vector<std::string> present;
    for (const auto &entry : std::filesystem::directory_iterator(sources)) {
        if (entry.path().extension() == ".c" || entry.path().extension() == ".cpp")
            present.push_back(entry.path().stem());
    }
    std::vector<std::string> listed = small_programs();
    std::sort(present.begin(), present.end());
    std::sort(listed.begin(), listed.end());
    EXPECT_EQ(present, listed);
}

TEST(small_programs, stand_in_the_readme_in_the_order_in_which_they_are_built)
{
    const std::string readme = read_file(sources / "README.md");
    std::size_t position = 0;
    for (const std::string &program : small_programs()) {
        position = readme.find("(" + program + ".c", position);
        ASSERT_NE(position, std::string::npos) << program << " is missing, or stands too early";
    }
}

} // namespace
