// Runs a shell command and keeps its output.
#ifndef TESTS_EXAMPLES_RUN_PROGRAM_H
#define TESTS_EXAMPLES_RUN_PROGRAM_H

#include <filesystem>
#include <string>

struct program_result {
    int status = -1; // as a shell has it: 128 + n after signal n
    std::string output;
    std::string errors;
};

program_result run_program(const std::string &command);

std::string read_file(const std::filesystem::path &path);

// A folder for the running test, removed at its end.
class scratch_folder
{
public:
    scratch_folder();
    ~scratch_folder();
    scratch_folder(const scratch_folder &) = delete;
    scratch_folder &operator=(const scratch_folder &) = delete;

    // Writes `content` and returns the file's path.
    std::string file(const std::string &name, const std::string &content) const;
    std::string program(const std::string &name, const std::string &shell_script) const;

private:
    std::filesystem::path m_path;
};

#endif
