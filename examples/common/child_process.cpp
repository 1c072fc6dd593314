#include "child_process.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace examples
{

namespace
{

[[noreturn]] void fail(int error, const std::string &what)
{
    throw std::system_error(error, std::generic_category(), what);
}

struct pipe_ends {
    int reading = -1, writing = -1;
};

// Closed on exec: were the child to hold our ends too, it would never see the stream's end.
pipe_ends make_pipe()
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        fail(errno, "cannot make a pipe");
    return {ends[0], ends[1]};
}

void close_and_forget(int &fd)
{
    if (fd >= 0)
        close(fd);
    fd = -1;
}

// SIGPIPE as programs expect it, since this process ignores it. A standard output of -1 is inherited.
int spawn(pid_t &process, const std::vector<std::string> &command, int standard_input, int standard_output)
{
    std::vector<char *> arguments;
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str())); // posix_spawn's type; it does not write
    arguments.push_back(nullptr);
    sigset_t default_signals;
    sigemptyset(&default_signals);
    sigaddset(&default_signals, SIGPIPE);
    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&actions);
    posix_spawnattr_init(&attributes);
    posix_spawn_file_actions_adddup2(&actions, standard_input, STDIN_FILENO);
    if (standard_output >= 0)
        posix_spawn_file_actions_adddup2(&actions, standard_output, STDOUT_FILENO);
    posix_spawnattr_setsigdefault(&attributes, &default_signals);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    const int error = posix_spawn(&process, arguments[0], &actions, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return error;
}

} // namespace

child_process::child_process(const std::vector<std::string> &command, child_output output)
{
    pipe_ends to_child = make_pipe();
    pipe_ends from_child = output == child_output::piped ? make_pipe() : pipe_ends{};
    const int error = spawn(m_process, command, to_child.reading, from_child.writing);
    close_and_forget(to_child.reading);
    close_and_forget(from_child.writing);
    m_input = to_child.writing;
    m_output = from_child.reading;
    if (error != 0) {
        close_and_forget(m_input);
        close_and_forget(m_output);
        fail(error, "cannot start the receiver " + command[0]);
    }
}

child_process::~child_process()
{
    finish();
}

void child_process::kill() const
{
    if (m_process >= 0)
        ::kill(m_process, SIGKILL);
}

// Its status is left for finish().
bool child_process::has_ended() const
{
    siginfo_t ended{};
    return waitid(P_PID, static_cast<id_t>(m_process), &ended, WEXITED | WNOHANG | WNOWAIT) == 0 && ended.si_pid != 0;
}

int child_process::finish()
{
    close_and_forget(m_input);
    close_and_forget(m_output);
    if (m_process < 0)
        return 0;
    int status = 0;
    while (waitpid(m_process, &status, 0) < 0 && errno == EINTR) {
    }
    m_process = -1;
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace examples
