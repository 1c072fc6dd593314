#include "interop/page_rows.h"

#include <fstream>
#include <regex>
#include <stdexcept>

namespace mava_tum_test
{

namespace
{

std::vector<std::string> cells_of(const std::string &line)
{
    std::vector<std::string> cells;
    std::string::size_type start = 1;
    for (auto end = line.find('|', start); end != std::string::npos; end = line.find('|', start)) {
        cells.push_back(line.substr(start, end - start));
        start = end + 1;
    }
    return cells;
}

// The text in backquotes.
std::vector<std::string> quoted_in(const std::string &cell)
{
    static const std::regex quoted("`([^`]*)`");
    std::vector<std::string> found;
    for (std::sregex_iterator at(cell.begin(), cell.end(), quoted), end; at != end; ++at)
        found.push_back((*at)[1]);
    return found;
}

bool says(const std::string &cell, const char *words)
{
    return cell.find(words) != std::string::npos;
}

// The bytes that a side encodes again; none if it rejects the message.
std::optional<byte_vector> written(const std::string &cell)
{
    if (says(cell, "refused"))
        return std::nullopt;
    if (says(cell, "nothing"))
        return byte_vector();
    return bytes_of(quoted_in(cell).at(0));
}

page_row row_of(const std::vector<std::string> &cells)
{
    page_row row;
    row.name = cells.at(0).substr(1, cells[0].size() - 2);
    const std::vector<std::string> bytes = quoted_in(cells.at(2));
    row.message = bytes.at(bytes.size() - 1);
    if (!says(cells[2], "none"))
        row.wire = bytes_of(bytes.at(bytes.size() - 2));
    row.result = std::stoi(cells.at(3));
    row.here = written(cells.at(4)).value();
    row.package = says(cells.at(5), "proto3") ? "mava_tum_interop_proto3" : "mava_tum_interop";
    row.there = written(cells[5]);
    return row;
}

} // namespace

std::vector<page_row> rows_of_page(const std::string &path)
{
    static const std::regex numbered("^\\| [DS][0-9]+ \\|.*");
    std::ifstream page(path);
    std::vector<page_row> rows;
    for (std::string line; std::getline(page, line);) {
        if (std::regex_match(line, numbered))
            rows.push_back(row_of(cells_of(line)));
    }
    return rows;
}

} // namespace mava_tum_test
