// Where a command writes: standard output, something that is open or special, or a file that appears under its name
// only when all of it is written.
#pragma once

#include "output/pending_file.h"
#include "inspector/library/text_output.h"

#include <optional>

namespace mava_tum_cli
{

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
        hand_on(m_waiting);
    }

    // Writes what waits, and gives the file its name. Throws bad_use when the disk is full.
    void commit();

    bool is_terminal() const;

private:
    int open_place();
    void hand_on(std::string &waiting) override;
    [[noreturn]] void refuse(const char *what, int error) const;

    std::string m_path;
    std::optional<pending_file> m_pending; // nothing: written in place
    int m_fd;                              // of the pending file, or one that is open for this alone
};

} // namespace mava_tum_cli
