#include "run_report.h"

#include "readable.h"

#include <algorithm>

namespace examples::reconciliation
{

namespace
{

constexpr size_t label_width = 44, name_width = 22, side_width = 10, number_width = 12;

std::string left(const std::string &text, size_t width)
{
    return text + std::string(std::max(width, text.size()) - text.size(), ' ');
}

std::string right(const std::string &text, size_t width)
{
    return std::string(std::max(width, text.size()) - text.size(), ' ') + text;
}

std::string counted(const std::string &label, size_t count)
{
    return "  " + left(label, label_width) + right(readable_count(count), number_width) + "\n";
}

std::string row(const std::string &name, const std::string &side, const traffic &total)
{
    return "  " + left(name, name_width) + left(side, side_width) +
           right(readable_count(total.messages), number_width) + right(readable_count(total.bytes), number_width) +
           "\n";
}

// Requests are the keeper's.
const char *sender_of(message_kind kind)
{
    switch (kind) {
    case message_kind::rec_start_req:
    case message_kind::rec_sess_req:
    case message_kind::session_delete:
    case message_kind::rec_sess_replay_req:
    case message_kind::rec_complete_req:
        return "keeper";
    default:
        return "receiver";
    }
}

} // namespace

std::string describe(const run_totals &totals, const session_set &sessions)
{
    const size_t to_send = totals.missing + totals.outdated;
    return "The sessions, as the receiver answered:\n\n" + counted("sessions there are", sessions.size()) +
           counted("in the receiver's store after its restart", totals.restored) +
           counted("  as they should be", sessions.size() - to_send) + counted("  outdated", totals.outdated) +
           counted("  of subscribers who have gone", totals.gone) +
           counted("not in the receiver's store", totals.missing) +
           counted("replayed, missing and outdated ones", totals.replayed) +
           counted("refused at first and replayed again", totals.refused) +
           counted("replayed with services to start", totals.service_starts) +
           counted("  services started", totals.services) + counted("removed", totals.gone) +
           counted("held by the receiver at the end", totals.held);
}

std::string describe(const message_channel &channel)
{
    std::string text = "The messages:\n\n  " + left("message", name_width) + left("from", side_width) +
                       right("messages", number_width) + right("bytes", number_width) + "\n";
    traffic sum;
    for (size_t i = 1; i < static_cast<size_t>(message_kind::held_session); ++i) {
        const auto kind = static_cast<message_kind>(i);
        const traffic &total = channel.traffic_of(kind);
        text += row(name_of(kind), sender_of(kind), total);
        sum.messages += total.messages;
        sum.bytes += total.bytes;
    }
    return text + row("together", "", sum) + "\nAfter the run, for the comparison:\n\n" +
           row(name_of(message_kind::held_session), "receiver", channel.traffic_of(message_kind::held_session));
}

} // namespace examples::reconciliation
