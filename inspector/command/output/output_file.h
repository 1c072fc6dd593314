// Where a command writes: standard output, something that is open or special, or a file that appears under its name
// only when all of it is written.
#pragma once

#include "inspector/library/json_writer.h"
#include "output/pending_file.h"

#include <fmt/format.h>
#include <optional>
#include <string>

namespace mava_tum_cli
{

// The program is made of the parts of the library.
using namespace mava_tum_inspect;

// "1 byte", "7 bytes".
inline std::string counted(uint64_t count, std::string_view thing)
{
    return fmt::format("{} {}{}", count, thing, count == 1 ? "" : "s");
}

// All of it stays here.
class text_in_memory final : public text_output
{
public:
    text_in_memory() : text_output(m_buffer, sizeof m_buffer) {}

    std::string take()
    {
        make_room();
        return std::move(m_text);
    }

private:
    void make_room() override
    {
        m_text += written();
        use(m_buffer, sizeof m_buffer);
    }

    char m_buffer[256];
    std::string m_text;
};

class output_file final : public text_output
{
public:
    // An empty path or "-" means standard output. Throws bad_use when the file cannot be made.
    explicit output_file(std::string path);
    // Without a commit before, a file is removed again.
    ~output_file();
    output_file(const output_file &) = delete;
    output_file &operator=(const output_file &) = delete;

    using text_output::write;

    void write(std::span<const uint8_t> bytes)
    {
        write(std::string_view(reinterpret_cast<const char *>(bytes.data()), bytes.size()));
    }

    // Writes what waits.
    void flush()
    {
        make_room();
    }

    // Writes what waits, and gives the file its name. Throws bad_use when the disk is full.
    void commit();

    bool is_terminal() const;

private:
    int open_place();
    void make_room() override;
    [[noreturn]] void refuse(const char *what, int error) const;

    char m_buffer[64 * 1024];
    std::string m_path;
    std::optional<pending_file> m_pending; // nothing: written in place
    int m_fd;                              // of the pending file, or one that is open for this alone
};

} // namespace mava_tum_cli
