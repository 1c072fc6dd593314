// A server of this run's own, on a socket in a folder of its own, with an append-only file beside it. Both are gone
// after this process, however it ends.
#ifndef REPLICATION_PRIVATE_SERVER_H
#define REPLICATION_PRIVATE_SERVER_H

#include "child_process.h"
#include "engine.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <thread>

namespace examples::replication
{

class private_server
{
public:
    private_server() : m_folder(new_folder()), m_remover(remover(m_folder))
    {
        start();
    }

    std::string socket_path() const
    {
        return file("socket");
    }

    // A file of this run, removed at its end.
    std::string file(const std::string &name) const
    {
        return (m_folder / name).string();
    }

    // With SIGKILL, and starts it again over the same append-only file.
    void kill_and_restart()
    {
        m_process.reset();
        start();
    }

private:
    struct kill_first {
        void operator()(child_process *process) const
        {
            process->kill();
            delete process;
        }
    };

    static constexpr auto between_attempts = std::chrono::milliseconds(20);
    static constexpr int most_attempts = 6000; // 2 minutes: a large append-only file is read at the start

    static std::filesystem::path new_folder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "replication-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr)
            throw std::system_error(errno, std::generic_category(), "cannot make the folder " + name);
        return name;
    }

    // No port: no one else reaches it. It flushes what it has acknowledged, so that neither its own end nor that of the
    // machine loses it. `everysec` would be wrong: while a flush takes long, the server acknowledges for up to two
    // seconds what it has not written. It does not rewrite its file: the process for that would outlive it.
    void start()
    {
        if (std::system("command -v redis-server >/dev/null") != 0)
            throw engine_error("cannot start a server: redis-server is not installed");
        m_process.reset(new child_process({"/usr/bin/setpriv", "--pdeathsig", "KILL", "redis-server", "--port", "0",
            "--unixsocket", socket_path(), "--dir", m_folder.string(), "--logfile", file("log"), "--save", "",
            "--appendonly", "yes", "--appendfsync", "always", "--auto-aof-rewrite-percentage", "0"}));
        wait_until_it_answers();
    }

    // While it loads its file, it refuses commands.
    void wait_until_it_answers() const
    {
        for (int attempt = 1;; ++attempt) {
            try {
                engine(socket_path()).length_of("sessions");
                return;
            } catch (const engine_error &error) {
                if (attempt == most_attempts || m_process->has_ended())
                    throw engine_error(std::string("the server did not start: ") + error.what());
            }
            std::this_thread::sleep_for(between_attempts);
        }
    }

    // A shell that removes the folder when its input ends: when this process closes the pipe, or is killed.
    static std::vector<std::string> remover(const std::filesystem::path &folder)
    {
        return {"/bin/sh", "-c", "trap '' INT TERM HUP; read -r end; /bin/rm -rf \"$0\"", folder.string()};
    }

    const std::filesystem::path m_folder;
    const child_process m_remover; // before the server, and so ended after it
    std::unique_ptr<child_process, kill_first> m_process;
};

} // namespace examples::replication

#endif
