#include "csv_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <system_error>

namespace examples
{

namespace
{

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF"; // some spreadsheets write it in front of UTF-8

void drop_line_end(std::string &text)
{
    if (text.ends_with('\r'))
        text.pop_back();
}

bool is_control_character(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

void refuse_odd_characters(const std::string &path, const csv_line &line)
{
    const cell whole{path, line.number, "", line.text};
    // What we read is printed to a terminal later on; there a control character would do harm.
    if (std::ranges::any_of(line.text, is_control_character))
        whole.refuse("the line has a control character or a tab", "delete it; cells stand directly between commas");
    if (line.text.find('"') != std::string::npos)
        whole.refuse("the line has a quotation mark", "write cells without quotes; no cell may contain a comma");
}

[[noreturn]] void refuse_file(const std::string &path, const std::string &problem)
{
    throw file_error(path + ": " + problem + "; give the path of a file of subscribers (--help says more)");
}

} // namespace

void cell::refuse(const std::string &problem, const std::string &remedy) const
{
    const std::string column = where.empty() ? "" : where + ": ";
    throw file_error(std::string(file) + ":" + std::to_string(line) + ": " + column + problem + "; " + remedy);
}

cell cell::part(const std::string &name, std::string_view part_text) const
{
    return {file, line, where.empty() ? name : where + " " + name, part_text};
}

std::vector<csv_line> read_csv_lines(const std::string &path)
{
    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file)
        refuse_file(path, std::string("cannot be opened: ") + std::strerror(errno));
    std::vector<csv_line> lines;
    std::string text;
    for (unsigned number = 1; std::getline(file, text); ++number) {
        if (number == 1 && text.starts_with(byte_order_mark))
            text.erase(0, byte_order_mark.size());
        drop_line_end(text);
        if (text.empty() || text.starts_with('#'))
            continue;
        lines.push_back({number, text});
        refuse_odd_characters(path, lines.back());
    }
    if (file.bad())
        refuse_file(path, std::string("cannot be read: ") + std::strerror(errno));
    if (lines.empty())
        refuse_file(path, "is empty");
    return lines;
}

std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (size_t begin = 0;;) {
        const size_t end = text.find(separator, begin);
        parts.push_back(text.substr(begin, end - begin));
        if (end == std::string_view::npos)
            return parts;
        begin = end + 1;
    }
}

std::vector<cell> entries_of(const cell &list, size_t entry_limit)
{
    std::vector<cell> entries;
    if (list.empty())
        return entries;
    for (const std::string_view text : split(list.text, ';'))
        entries.push_back(list.part("entry " + std::to_string(entries.size() + 1), text));
    if (entries.size() > entry_limit)
        list.refuse(
            std::to_string(entries.size()) + " entries, but a session has room for " + std::to_string(entry_limit),
            "take out what is too much (entries stand between ';')");
    return entries;
}

std::vector<cell> values_of(const cell &entry, std::span<const char *const> names)
{
    const std::vector<std::string_view> texts = split(entry.text, '|');
    if (texts.size() > names.size())
        entry.refuse(std::to_string(texts.size()) + " values instead of " + std::to_string(names.size()) + " at most",
            "take out what is too much (values stand between '|')");
    std::vector<cell> values;
    for (size_t i = 0; i < names.size(); ++i)
        values.push_back(entry.part(names[i], i < texts.size() ? texts[i] : std::string_view{}));
    return values;
}

} // namespace examples
