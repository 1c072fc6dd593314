// The lines and cells of a file of comma-separated values, and errors that say where in it something is wrong.
//
//   file     lines that start with '#' and empty lines mean nothing; the first other line names the columns
//   line     cells between ','; there is no quoting, and a cell cannot hold ',' ';' '|' or '"'
//   cell     a list of entries between ';', an entry being values between '|'
#ifndef EXAMPLES_CSV_FILE_H
#define EXAMPLES_CSV_FILE_H

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace examples
{

// The file cannot be read or does not say what it must. what() names file, line and column, and what to do.
class file_error : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// A part of the file that knows where it stands.
struct cell {
    std::string_view file;
    unsigned line = 0;
    std::string where; // column, entry and value, such as "qos entry 2 value_6"
    std::string_view text;

    [[noreturn]] void refuse(const std::string &problem, const std::string &remedy) const;
    cell part(const std::string &name, std::string_view part_text) const;
    bool empty() const
    {
        return text.empty();
    }
};

struct csv_line {
    unsigned number = 0;
    std::string text;
};

// The lines of the file that mean something, the line of column names first.
std::vector<csv_line> read_csv_lines(const std::string &path);

// The parts of `text` between `separator`s; one empty part if `text` is empty.
std::vector<std::string_view> split(std::string_view text, char separator);

// The entries of a list cell; none if the cell is empty.
std::vector<cell> entries_of(const cell &list, size_t entry_limit);

// The values of an entry by their names. Values at the end may be left out; they are then empty.
std::vector<cell> values_of(const cell &entry, std::span<const char *const> names);

} // namespace examples

#endif
