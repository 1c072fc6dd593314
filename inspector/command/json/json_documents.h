// JSON of any number of messages: objects, one after another, on a line each or spread over lines. One is in memory at
// a time.
#pragma once

#include "output/output_file.h"
#include "json/json_values.h"

#include <optional>

namespace mava_tum_cli
{

class json_documents
{
public:
    // Throws bad_use if the first file cannot be read or is empty; next() does so for the others.
    explicit json_documents(std::vector<std::string> files);

    // What waits in the output is written before the input is waited for.
    void read_beside(output_file &output);

    // Takes the next one; false after the last. Throws bad_use that names file and line of what is no JSON.
    bool next();

    const json &document() const
    {
        return m_document;
    }

    // How messages to the user begin: the file, and the line of the present document unless it is the first line.
    std::string place() const;

private:
    void open(const std::string &path);
    [[noreturn]] void refuse_empty() const;
    bool read_more();
    bool find_begin();
    std::string_view whole_value();
    void parse(std::string_view text);

    std::vector<std::string> m_files;
    output_file *m_output = nullptr;
    std::optional<input_stream> m_stream;
    size_t m_opened = 0;         // files
    bool m_has_document = false; // of the present file
    std::string m_waiting;       // read from it
    size_t m_begin = 0;          // in m_waiting, of the present document
    size_t m_taken = 0;          // its size
    size_t m_line = 1;           // where it begins in the file
    json m_document;
};

} // namespace mava_tum_cli
