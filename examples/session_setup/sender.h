// The sending process: subscribers of the file, as messages, into a stream.
#ifndef SESSION_SETUP_SENDER_H
#define SESSION_SETUP_SENDER_H

#include "subscriber.h"

namespace examples::session_setup
{

// Sends all `subscribers` and returns a line about it. Throws stream_error, which names the file's line that could not
// be sent, when the receiver goes away.
std::string send_sessions(const std::string &path, const std::vector<subscriber> &subscribers, int fd);

} // namespace examples::session_setup

#endif
