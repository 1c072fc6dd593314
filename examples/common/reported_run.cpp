#include "reported_run.h"

#include "csv_file.h"

#include <csignal>
#include <iostream>

namespace examples
{

void take_file(const std::string &argument, std::string &file)
{
    if (argument.starts_with('-'))
        throw usage_error("unknown or incomplete argument " + argument + "; see --help");
    if (!file.empty())
        throw usage_error("more than one file: " + file + " and " + argument + "; give one");
    file = argument;
}

int reported_run(const char *program, std::span<char *const> arguments, int (*run)(std::span<char *const>))
{
    std::signal(SIGPIPE, SIG_IGN); // a reader that has gone away is an error message, not a silent end
    try {
        const int status = run(arguments.empty() ? arguments : arguments.subspan(1));
        if (std::cout.flush())
            return status;
        std::cerr << program << ": cannot write to the standard output; what it shows is incomplete\n";
        return status != done ? status : static_cast<int>(not_done);
    } catch (const file_error &error) {
        std::cerr << error.what() << "\n"; // starts with the file, as compilers' messages do
        return bad_input;
    } catch (const usage_error &error) {
        std::cerr << program << ": " << error.what() << "\n";
        return bad_input;
    } catch (const std::exception &error) {
        std::cerr << program << ": " << error.what() << "\n";
        return not_done;
    }
}

} // namespace examples
