// What main() of an example program does around its work: every way in which the work can fail becomes a message and
// an exit status.
#ifndef EXAMPLES_REPORTED_RUN_H
#define EXAMPLES_REPORTED_RUN_H

#include <span>
#include <stdexcept>
#include <string>

namespace examples
{

// `not_done` is also the status for a stream that broke, `bad_input` for a file or arguments that are wrong.
enum exit_status { done = 0, not_done = 1, bad_input = 2 };

// An argument that is none of ours. what() says which.
class usage_error : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Stores `argument` in `file`, which is empty before. Throws usage_error for an unknown option and for a second file.
void take_file(const std::string &argument, std::string &file);

// Calls `run` with the arguments behind the program's name and returns the status to exit with: what `run` returns, or
// that of the error it threw, which is printed after `program`. An output that could not be written is an error too.
int reported_run(const char *program, std::span<char *const> arguments, int (*run)(std::span<char *const>));

// The link names the running program, however it was started.
inline constexpr const char *this_program = "/proc/self/exe";

} // namespace examples

#endif
