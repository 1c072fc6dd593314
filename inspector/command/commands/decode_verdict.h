// Whether messages decode, and one line on standard error if not.
#pragma once

#include "bad_use.h"
#include "input/message_source.h"
#include "inspector/library/message_table.h"

#include <optional>
#include <string>

namespace mava_tum_cli
{

// What decodes as the message, with a field that it knows.
plausible_fn plausibility_of(const mava_tum_inspect::message_description &message);

// Whether bytes decode as one of the messages: for input of which nobody says which it is.
plausibility plausibility_of_any(std::span<const uint8_t> wire);

class fault_report
{
public:
    fault_report(std::string command, const mava_tum_inspect::message_description &message);

    // Takes note of the present message.
    void look_at(const message_source &source);

    // The same, where its fault is known.
    void add(const message_source &source, const std::optional<std::string> &fault);

    // Prints the first fault, and how many messages have one. Returns what the command returns.
    exit_status finish() const;

private:
    std::string m_command;
    const mava_tum_inspect::message_description &m_message;
    std::string m_first;
    uint64_t m_broken = 0;
    uint64_t m_seen = 0;
};

} // namespace mava_tum_cli
