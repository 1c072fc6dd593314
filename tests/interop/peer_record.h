// Converts between the value trees of the sweeps and messages of the protobuf runtime, by reflection.
#pragma once

#include "sweeps/record_value.h"

#include <google/protobuf/message.h>

#include <memory>
#include <string>
#include <string_view>

namespace mava_tum_test
{

using peer_message = google::protobuf::Message;

// An empty message of the runtime, by its name in our headers.
std::unique_ptr<peer_message> new_peer(const std::string &name);

// Sets what an encoder writes of `value`.
void fill_peer(peer_message &peer, const record_value &value);

// The content of `peer`, with the fields of `skeleton`.
record_value read_peer(const peer_message &peer, const record_value &skeleton);

// Whether the runtime parses the bytes.
bool peer_accepts(peer_message &peer, std::string_view hex);

} // namespace mava_tum_test
