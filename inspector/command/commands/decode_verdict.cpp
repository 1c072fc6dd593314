#include "commands/decode_verdict.h"

#include "bad_use.h"
#include "inspector/library/wire_walk.h"
#include "message/verdict.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

class oddity_visitor : public mava_tum_inspect::wire_visitor
{
public:
    void on_value(const mava_tum_inspect::occurrence &at) override
    {
        is_odd |= at.notes.bits != 0;
    }

    void on_record(const mava_tum_inspect::occurrence &at) override
    {
        is_odd |= at.notes.bits != 0;
    }

    void on_unknown(const mava_tum_inspect::occurrence &) override
    {
        is_odd = true;
    }

    bool is_odd = false;
};

} // namespace

plausible_fn plausibility_of(const mava_tum_inspect::message_description &message)
{
    return [&message](std::span<const uint8_t> wire) {
        oddity_visitor visitor;
        const mava_tum_inspect::walk_result result =
            mava_tum_inspect::walk_message(message, wire.data(), wire.size(), visitor);
        if (result.rule != mava_tum_inspect::fault_rule::none || result.present == 0)
            return plausibility::none;
        return visitor.is_odd ? plausibility::decodes : plausibility::exact;
    };
}

fault_report::fault_report(std::string command, const mava_tum_inspect::message_description &message)
    : m_command(std::move(command)), m_message(message)
{
}

void fault_report::look_at(const message_source &source)
{
    add(source, fault_of(m_message, source.message()));
}

void fault_report::add(const message_source &source, const std::optional<std::string> &fault)
{
    ++m_seen;
    if (!fault)
        return;
    if (++m_broken == 1)
        m_first = source.full_place() + ": " + m_message.name + " does not decode: " + *fault;
}

exit_status fault_report::finish() const
{
    if (m_broken == 0)
        return exit_ok;
    const std::string sum = m_seen == 1 ? "" : fmt::format("; {} of {} messages do not decode", m_broken, m_seen);
    print_error(m_command, m_first + sum);
    return exit_broken_data;
}

} // namespace mava_tum_cli
