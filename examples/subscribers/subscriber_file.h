// The file of subscribers.
#ifndef EXAMPLES_SUBSCRIBER_FILE_H
#define EXAMPLES_SUBSCRIBER_FILE_H

#include "subscriber.h"

namespace examples
{

// Throws file_error at the first thing that is wrong with the file. At least one subscriber is returned.
std::vector<subscriber> read_subscribers(const std::string &path);

// Where the build wrote the file of the examples.
inline constexpr const char *shipped_file = EXAMPLES_SHIPPED_FILE;

// The line of column names, for --help and for error messages.
std::string column_names();

} // namespace examples

#endif
