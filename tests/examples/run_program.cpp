#include "run_program.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <sys/wait.h>

program_result run_program(const std::string &command)
{
    const scratch_folder scratch;
    const std::string output = scratch.file("output", "");
    const std::string errors = scratch.file("errors", "");
    // In braces, so that a pipeline's errors go to the file, too.
    const int status = std::system(("{ " + command + " ; } >" + output + " 2>" + errors).c_str());
    if (status == -1)
        throw std::runtime_error("cannot run " + command);
    return {WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status), read_file(output), read_file(errors)};
}

std::string read_file(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot open " + path.string());
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

scratch_folder::scratch_folder()
{
    std::string name = (std::filesystem::temp_directory_path() / "session_setup_XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("cannot make a folder like " + name);
    m_path = name;
}

scratch_folder::~scratch_folder()
{
    std::error_code ignored; // files that are left are in the system's folder for temporary files
    std::filesystem::remove_all(m_path, ignored);
}

std::string scratch_folder::file(const std::string &name, const std::string &content) const
{
    const std::filesystem::path path = m_path / name;
    std::ofstream(path, std::ios::binary) << content;
    return path.string();
}

std::string scratch_folder::program(const std::string &name, const std::string &shell_script) const
{
    const std::string path = file(name, "#!/bin/sh\n" + shell_script + "\n");
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    return path;
}
