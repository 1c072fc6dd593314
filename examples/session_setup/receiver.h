// The receiving process: a stream of messages back into sessions, each compared with the file.
#ifndef SESSION_SETUP_RECEIVER_H
#define SESSION_SETUP_RECEIVER_H

#include "subscriber.h"

namespace examples::session_setup
{

// Reads one session per subscriber from `fd`, compares, and prints the first sessions, the wire bytes of the very
// first, and totals. Returns the number of sessions that differ; each difference is printed to the standard error
// output. Throws stream_error when sessions are missing, cut or too many.
size_t receive_sessions(const std::string &path, const std::vector<subscriber> &subscribers, int fd);

} // namespace examples::session_setup

#endif
