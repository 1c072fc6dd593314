// Between the trees of values that the sweeps use and messages of the protobuf runtime, by reflection.
#pragma once

#include "sweeps/record_value.h"

#include <google/protobuf/message.h>

#include <memory>
#include <string>
#include <string_view>

namespace mava_tum_test
{

using peer_message = google::protobuf::Message;

// An empty message of the runtime's by the name that it has in our headers.
std::unique_ptr<peer_message> new_peer(const std::string &name);

// Sets what an encoder writes of `value`.
void fill_peer(peer_message &peer, const record_value &value);

// What `peer` holds, in the shape of `skeleton`.
record_value read_peer(const peer_message &peer, const record_value &skeleton);

// Whether the runtime parses the bytes without complaint.
bool peer_accepts(peer_message &peer, std::string_view hex);

} // namespace mava_tum_test
