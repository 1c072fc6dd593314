// The rows of docs/departures.md, each with its bytes and the results of both sides.
#pragma once

#include "support/hex.h"

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace mava_tum_test
{

struct page_row {
    std::string name; // D1, S1
    std::string message;
    byte_vector wire;
    int result = 0;                   // of our decode
    byte_vector here;                 // what we write again
    std::string package;              // of the runtime's schema
    std::optional<byte_vector> there; // what the runtime writes again; nothing where it refuses
};

// For failure messages, and for names of tests.
void PrintTo(const page_row &row, std::ostream *stream);

// Throws if a row does not have all of that.
std::vector<page_row> rows_of_page(const std::string &path);

} // namespace mava_tum_test
