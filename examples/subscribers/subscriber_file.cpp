#include "subscriber_file.h"

#include "subscriber_columns.h"

#include <unordered_map>

namespace examples
{

namespace
{

std::vector<column> all_columns()
{
    std::vector<column> columns;
    for (const std::span<const column> some : {identity_columns(), access_columns(), feature_columns()})
        columns.insert(columns.end(), some.begin(), some.end());
    return columns;
}

void check_column_names(const std::string &path, const csv_line &line)
{
    if (line.text == column_names())
        return;
    const cell whole{path, line.number, "", line.text};
    whole.refuse("this is not the line of column names", "the first line that is no comment must be " + column_names());
}

subscriber read_subscriber(const std::string &path, const csv_line &line, std::span<const column> columns)
{
    const cell whole{path, line.number, "", line.text};
    const std::vector<std::string_view> texts = split(line.text, ',');
    if (texts.size() != columns.size())
        whole.refuse(std::to_string(texts.size()) + " columns instead of " + std::to_string(columns.size()),
            "give every column a cell, if an empty one, and no cell a comma");
    subscriber who;
    who.file_line = line.number;
    for (size_t i = 0; i < columns.size(); ++i)
        columns[i].read(whole.part(columns[i].name, texts[i]), who);
    check_access_columns(whole, who);
    check_feature_columns(whole, who);
    return who;
}

} // namespace

std::string column_names()
{
    std::string names;
    for (const column &each : all_columns())
        names += (names.empty() ? "" : ",") + std::string(each.name);
    return names;
}

std::vector<subscriber> read_subscribers(const std::string &path)
{
    const std::vector<csv_line> lines = read_csv_lines(path);
    check_column_names(path, lines.front());
    const std::vector<column> columns = all_columns();
    std::vector<subscriber> subscribers;
    std::unordered_map<std::string, unsigned> line_of;
    for (size_t i = 1; i < lines.size(); ++i) {
        subscribers.push_back(read_subscriber(path, lines[i], columns));
        const subscriber &who = subscribers.back();
        const auto [first, is_new] = line_of.try_emplace(who.line, who.file_line);
        if (!is_new)
            cell{path, who.file_line, "line", who.line}.refuse(
                "\"" + who.line + "\" stands in line " + std::to_string(first->second) + " already",
                "give each subscriber a line id of its own");
    }
    if (subscribers.empty())
        cell{path, lines.front().number, "", ""}.refuse("no subscriber follows", "add at least one");
    return subscribers;
}

} // namespace examples
