// Two streams in the place of two pipes: what one side writes into its output, the other side reads from its input. The
// sides use it as they use pipes, and know of no stream.
#ifndef REPLICATION_STREAM_LINK_H
#define REPLICATION_STREAM_LINK_H

#include "engine.h"
#include "frame_stream.h"

#include <array>
#include <exception>
#include <fcntl.h>
#include <functional>
#include <thread>
#include <unistd.h>

namespace examples::replication
{

class stream_link
{
public:
    // `other_side_has_ended` saves a side that knows it the longest wait. It is called in another thread.
    stream_link(
        std::string socket_path, std::string stream_in, std::string stream_out,
        std::function<bool()> other_side_has_ended = [] { return false; })
        : m_socket_path(std::move(socket_path)), m_stream_in(std::move(stream_in)), m_stream_out(std::move(stream_out)),
          m_other_side_has_ended(std::move(other_side_has_ended))
    {
    }

    // Calls work(input, output) while both directions run. Afterwards the other side sees the end of the stream, and
    // this one has seen the other's. If the engine failed, that is thrown, and not what `work` made of its closed pipe.
    template <typename Work>
    void run(Work work)
    {
        pipe_ends incoming = make_pipe(), outgoing = make_pipe();
        std::exception_ptr failed_to_receive, failed_to_send, failed;
        std::thread receiver([&] { run_to_end([&] { receive(incoming[1]); }, incoming[1], failed_to_receive); });
        std::thread sender([&] { run_to_end([&] { send(outgoing[0]); }, outgoing[0], failed_to_send); });
        try {
            work(incoming[0], outgoing[1]);
        } catch (...) {
            failed = std::current_exception();
        }
        close(outgoing[1]);
        close(incoming[0]);
        sender.join();
        receiver.join();
        for (const std::exception_ptr &first : {failed_to_send, failed_to_receive, failed}) {
            if (first)
                std::rethrow_exception(first);
        }
    }

private:
    using pipe_ends = std::array<int, 2>;

    static pipe_ends make_pipe()
    {
        pipe_ends ends{};
        if (pipe2(ends.data(), O_CLOEXEC) != 0)
            throw engine_error("cannot make a pipe");
        return ends;
    }

    // However a direction ends, its pipe is closed, so that no one waits for it. A pipe that the other thread closed is
    // that thread's failure.
    template <typename Direction>
    static void run_to_end(Direction direction, int pipe_end, std::exception_ptr &failed)
    {
        try {
            direction();
        } catch (const stream_error &) {
        } catch (...) {
            failed = std::current_exception();
        }
        close(pipe_end);
    }

    // An entry without a message is the end.
    void send(int from) const
    {
        engine connection(m_socket_path);
        frame_reader reader(from);
        for (std::span<const uint8_t> message; reader.next(message);)
            connection.append(m_stream_out, message);
        connection.append(m_stream_out, {});
        connection.wait_for_answers();
    }

    void receive(int to) const
    {
        engine connection(m_socket_path);
        std::string after = "0";
        for (;;) {
            const std::vector<entry> entries = next_entries(connection, after);
            for (const entry &each : entries) {
                if (each.message.empty())
                    return;
                write_frame(to, each.message);
            }
            after = entries.back().id;
        }
    }

    // At least one.
    std::vector<entry> next_entries(engine &connection, const std::string &after) const
    {
        for (int waited_ms = 0; waited_ms < longest_wait_ms; waited_ms += short_wait_ms) {
            const bool has_ended = m_other_side_has_ended(); // before reading: what it sent first is there
            std::vector<entry> entries = connection.read(m_stream_in, after);
            if (!entries.empty())
                return entries;
            if (has_ended)
                throw engine_error("the other side ended before its last message");
        }
        throw engine_error("the other side sent nothing for " + std::to_string(longest_wait_ms / 1000) + " seconds");
    }

    const std::string m_socket_path, m_stream_in, m_stream_out;
    const std::function<bool()> m_other_side_has_ended;
};

} // namespace examples::replication

#endif
