#include "inspector/library/guess.h"

#include "inspector/library/wire_walk.h"

#include <algorithm>
#include <bit>
#include <tuple>

namespace mava_tum_inspect
{

namespace
{

// Forms that this library does not write, except unknown fields.
constexpr uint32_t odd_notes = ~(static_cast<uint32_t>(note::unknown_field) | static_cast<uint32_t>(note::beyond_end));

class weigher final : public wire_visitor
{
public:
    explicit weigher(mava_tum_inspect_candidate &candidate) : candidate_(candidate) {}

    void on_value(const occurrence &at) override
    {
        count_odd(at);
    }

    void on_record(const occurrence &at) override
    {
        count_odd(at);
    }

    void on_unknown(const occurrence &at) override
    {
        ++candidate_.unknown_fields;
        candidate_.unknown_bytes += at.tag.bytes + at.length.bytes + at.value.bytes;
        count_odd(at);
    }

private:
    void count_odd(const occurrence &at)
    {
        candidate_.odd_forms += static_cast<uint64_t>(std::popcount(at.notes.bits & odd_notes));
    }

    mava_tum_inspect_candidate &candidate_;
};

bool is_likelier(const mava_tum_inspect_candidate &first, const mava_tum_inspect_candidate &second)
{
    const auto rank = [](const mava_tum_inspect_candidate &candidate) {
        return std::tuple(
            candidate.unknown_bytes, candidate.unknown_fields, candidate.odd_forms, candidate.absent_fields);
    };
    return rank(first) < rank(second);
}

// After those that are as likely. Candidates above the capacity are only counted.
void insert(const mava_tum_inspect_candidate &candidate, std::span<mava_tum_inspect_candidate> places, uint32_t found)
{
    const std::size_t used = std::min<std::size_t>(found, places.size());
    const auto place = std::upper_bound(places.begin(), places.begin() + used, candidate, is_likelier);
    if (place == places.end())
        return;
    const auto last = places.begin() + std::min(used, places.size() - 1);
    std::copy_backward(place, last, last + 1);
    *place = candidate;
}

} // namespace

uint32_t guess_messages(const uint8_t *data, uint64_t length, std::span<mava_tum_inspect_candidate> candidates)
{
    uint32_t found = 0;
    for (const message_description &message : all_messages()) {
        mava_tum_inspect_candidate candidate{message.name, 0, 0, 0, 0};
        weigher visitor(candidate);
        const walk_result walked = walk_message(message, data, length, visitor);
        if (walked.rule != fault_rule::none)
            continue;
        candidate.absent_fields =
            static_cast<uint32_t>(message.fields.size()) - static_cast<uint32_t>(std::popcount(walked.present));
        insert(candidate, candidates, found++);
    }
    return found;
}

} // namespace mava_tum_inspect
