#include "peers/harness/suite.h"

#include <algorithm>

namespace bench
{

void suite::check(const char *name, const char *side, const std::function<std::string(size_t)> &difference_of)
{
    for (size_t i = 0; i < content_.message_count() && disagreement_.empty(); ++i) {
        const std::string difference = difference_of(i);
        if (!difference.empty()) {
            disagreement_ = std::string(side) + " " + name + " of message " + std::to_string(i) + " of " +
                            content_.workload + ", " + content_.set + ": " + difference;
        }
    }
}

std::string suite::wire_difference(size_t i, byte_view written) const
{
    return bytes_difference(content_.wires[i], written);
}

std::string suite::bytes_difference(byte_view wanted, byte_view got) const
{
    if (std::ranges::equal(wanted, got))
        return {};
    const auto first = std::ranges::mismatch(wanted, got).in1 - wanted.begin();
    return std::to_string(got.size()) + " bytes where " + std::to_string(wanted.size()) +
           " are due, the first difference at byte " + std::to_string(first);
}

} // namespace bench
