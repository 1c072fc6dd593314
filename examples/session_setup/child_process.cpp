#include "child_process.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace session_setup
{

namespace
{

[[noreturn]] void fail(int error, const std::string &what)
{
    throw std::system_error(error, std::generic_category(), what);
}

// Standard input from the pipe; SIGPIPE as programs expect it, since this process ignores it.
int spawn(pid_t &process, const std::vector<std::string> &command, int standard_input)
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
    posix_spawnattr_setsigdefault(&attributes, &default_signals);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    const int error = posix_spawn(&process, arguments[0], &actions, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return error;
}

} // namespace

child_process::child_process(const std::vector<std::string> &command)
{
    int ends[2];
    // Closed on exec: were the child to hold the writing end too, it would never see the stream's end.
    if (pipe2(ends, O_CLOEXEC) != 0)
        fail(errno, "cannot make a pipe");
    const int error = spawn(m_process, command, ends[0]);
    close(ends[0]);
    m_input = ends[1];
    if (error != 0) {
        close(m_input);
        fail(error, "cannot start the receiver " + command[0]);
    }
}

child_process::~child_process()
{
    finish();
}

int child_process::finish()
{
    if (m_input >= 0)
        close(m_input);
    m_input = -1;
    if (m_process < 0)
        return 0;
    int status = 0;
    while (waitpid(m_process, &status, 0) < 0 && errno == EINTR) {
    }
    m_process = -1;
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

} // namespace session_setup
