// From a subscriber of the file to the application record that the library encodes.
//
// The library gives most values of a session no meaning. This program lets `session_text` be the line id,
// `session_name` the user, IPv6 part 2 the host address, part 3 a prefix (its value the prefix length), part 4 the
// gateway, part 6 the delegated prefix (again with its length), and of a route `field_3` with `field_4` the
// destination and `field_5` the next hop. A value of the file called value_3 becomes the member that ends in 3.
#ifndef EXAMPLES_SESSION_RECORD_H
#define EXAMPLES_SESSION_RECORD_H

#include "subscriber.h"
#include "tum_nal/nal_session_context.h"

namespace examples
{

// All that the file says is filled in, also what a feature bit that is off keeps from being sent.
void fill_session_record(tum_nal_data_session_context &record, const subscriber &who);

} // namespace examples

#endif
