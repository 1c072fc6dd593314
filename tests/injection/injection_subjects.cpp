#include "injection/injection_subjects.h"

#include "injection/inject_message.h"
#include "model/library_calls.h"
#include "model/message_tables.h"
#include "model/wire_maker.h"

namespace mava_tum_injection
{

namespace
{

using namespace mava_tum_model;

bool can_ask(const message &of)
{
    for (const field &member : of.fields) {
        switch (member.kind) {
        case field_kind::text:
        case field_kind::record_array:
        case field_kind::text_array:
        case field_kind::bytes:
            return true;
        case field_kind::record:
            if (can_ask(*member.nested))
                return true;
            break;
        default:
            break;
        }
    }
    return false;
}

std::vector<injection_subject> list_subjects()
{
    std::vector<injection_subject> subjects;
    for (std::size_t index = 0; index < all_messages().size(); ++index) {
        const message &of = *all_messages()[index];
        subjects.push_back({operation::decode, index, std::string(of.name) + " decode", can_ask(of)});
        subjects.push_back({operation::duplicate, index, std::string(of.name) + " duplicate", can_ask(of)});
    }
    return subjects;
}

void fail_one_input(const injection_subject &tested, const wire_bytes &wire, uint64_t seed, injection_tally &tally)
{
    switch (tested.what) {
    case operation::decode:
        fail_decode(tested.index, wire, 0, tally);
        fail_decode(tested.index, wire, alias_flag, tally);
        return;
    case operation::duplicate:
        fail_duplicate(tested.index, wire, seed, tally);
        return;
    }
}

wire_bytes changed_wire(const message &of, const std::vector<wire_bytes> &seeds, random_source &random)
{
    wire_bytes wire = random.one_in(2) ? random_wire(of, random) : seeds[random.below(seeds.size())];
    for (uint64_t changes = random.below(4); changes > 0; --changes)
        mutate_wire(of, wire, random);
    return wire;
}

} // namespace

const std::vector<injection_subject> &all_injection_subjects()
{
    static const std::vector<injection_subject> subjects = list_subjects();
    return subjects;
}

injection_tally inject(const injection_subject &tested, uint64_t injections)
{
    const message &of = *all_messages()[tested.index];
    const std::vector<wire_bytes> seeds = seed_wires(of);
    random_source random(tested.index + 100 * static_cast<uint64_t>(tested.what));
    injection_tally tally;
    for (std::size_t next = 0; tally.deviations == 0 && next < seeds.size(); ++next)
        fail_one_input(tested, seeds[next], random.next(), tally);
    while (tested.asks_for_memory && tally.deviations == 0 && tally.injections < injections)
        fail_one_input(tested, changed_wire(of, seeds, random), random.next(), tally);
    return tally;
}

} // namespace mava_tum_injection
