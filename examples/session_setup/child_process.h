// The receiver as a program of its own, fed through a pipe.
#ifndef SESSION_SETUP_CHILD_PROCESS_H
#define SESSION_SETUP_CHILD_PROCESS_H

#include <string>
#include <sys/types.h>
#include <vector>

namespace session_setup
{

// A running program that reads its standard input from a pipe whose other end is `input()`. Throws
// std::system_error when it cannot be started. The destructor closes the pipe and waits for the program.
class child_process
{
public:
    explicit child_process(const std::vector<std::string> &command);
    ~child_process();
    child_process(const child_process &) = delete;
    child_process &operator=(const child_process &) = delete;

    int input() const
    {
        return m_input;
    }

    // Closes the pipe and waits. Returns the exit status; 128 + n if signal n ended the program, as shells have it.
    int finish();

private:
    int m_input = -1;
    pid_t m_process = -1;
};

} // namespace session_setup

#endif
