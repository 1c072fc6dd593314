// Values of messages and records as JSON writes them, both ways. A reader gets the path of its value, a JSON pointer,
// and throws bad_use that begins with it: "/qos/3/field_2: expected a number from 0 to 4294967295, found a text".
//
//     number     a number
//     IPv4       "192.0.2.1", or the number that a record holds
//     bytes      "0a0b0c" in hex; "2001:db8::1" if there are 16; {"text": "..."} or {"hex": "..."} to say which
//     text       "...", {"hex": "..."} when it is no UTF-8 or contains a zero byte
#pragma once

#include "input/input_stream.h"
#include "output/output_file.h"

#include <cstdint>
#include <nlohmann/json.hpp>
#include <span>
#include <string>
#include <string_view>

namespace mava_tum_cli
{

// Members keep the order in which they were added.
using json = nlohmann::ordered_json;

// "found ..." of a value that is not what was expected.
[[noreturn]] void refuse_value(const std::string &path, const std::string &expected, const json &found);

// The path of a member; with the characters that a JSON pointer replaces.
std::string member_path(const std::string &path, std::string_view name);
std::string element_path(const std::string &path, size_t index);

uint64_t number_of_json(const json &value, const std::string &path, uint64_t largest);
uint32_t ipv4_of_json(const json &value, const std::string &path); // in host byte order
byte_vector bytes_of_json(const json &value, const std::string &path);
// Refuses a zero byte, which would end the text.
std::string text_of_json(const json &value, const std::string &path);

json json_of_ipv4(uint32_t host_order);
json json_of_bytes(std::span<const uint8_t> bytes, bool is_ipv6);
json json_of_text(std::string_view text);

void write_json(json_writer &writer, const json &value);

} // namespace mava_tum_cli
