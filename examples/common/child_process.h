// The other side as a program of its own, fed through a pipe.
#ifndef EXAMPLES_CHILD_PROCESS_H
#define EXAMPLES_CHILD_PROCESS_H

#include <string>
#include <sys/types.h>
#include <vector>

namespace examples
{

// Where the standard output of a child goes: where this program's own goes, or into a pipe.
enum class child_output { inherited, piped };

// A running program that reads its standard input from a pipe whose other end is `input()` and, if asked to, writes its
// standard output to one whose other end is `output()`. Throws std::system_error when it cannot be started. The
// destructor closes the pipes and waits for the program.
class child_process
{
public:
    explicit child_process(const std::vector<std::string> &command, child_output output = child_output::inherited);
    ~child_process();
    child_process(const child_process &) = delete;
    child_process &operator=(const child_process &) = delete;

    int input() const
    {
        return m_input;
    }

    // -1 if the output is inherited.
    int output() const
    {
        return m_output;
    }

    // Ends the program at once, with SIGKILL.
    void kill() const;

    // Whether it has ended, by itself or by a signal.
    bool has_ended() const;

    // Closes the pipes and waits. Returns the exit status; 128 + n if signal n ended the program, as shells have it.
    int finish();

private:
    int m_input = -1, m_output = -1;
    pid_t m_process = -1;
};

} // namespace examples

#endif
