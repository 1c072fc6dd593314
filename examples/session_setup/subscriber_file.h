// The file of subscribers.
#ifndef SESSION_SETUP_SUBSCRIBER_FILE_H
#define SESSION_SETUP_SUBSCRIBER_FILE_H

#include "subscriber.h"

namespace session_setup
{

// Throws file_error at the first thing that is wrong with the file. At least one subscriber is returned.
std::vector<subscriber> read_subscribers(const std::string &path);

// The line of column names, for --help and for error messages.
std::string column_names();

} // namespace session_setup

#endif
