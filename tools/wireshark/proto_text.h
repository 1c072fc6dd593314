// The messages as a .proto file, and the ports that the profile gives them.
#pragma once

#include <string>

namespace mava_tum_wireshark
{

// Message n of codec_contract.h travels to the port behind this one by n: subscriber_v4 to 21001. Any free range would
// do: Wireshark knows nothing else there, and systems take no port of theirs from it.
inline constexpr unsigned port_before_first = 21000;

std::string proto_text();

// One line for each field that holds an address, for the table in mava_tum_addresses.lua.
std::string address_table();

// One line for each message, as Wireshark keeps them in protobuf_udp_message_types.
std::string port_table();

} // namespace mava_tum_wireshark
