#include "injection/inject_message.h"

#include "model/library_calls.h"
#include "model/message_tables.h"
#include "model/model.h"
#include "model/record_changes.h"
#include "model/record_compare.h"

#include <cstring>

namespace mava_tum_injection
{

namespace
{

using namespace mava_tum_model;

// Large enough for every record of the library, and aligned for any member.
constexpr std::size_t largest_record = 656;

struct record_memory {
    alignas(8) uint8_t bytes[largest_record] = {};
};

std::string difference(const char *what, int64_t expected, int64_t actual)
{
    if (expected == actual)
        return "";
    return std::string(what) + ": expected " + std::to_string(expected) + ", actual " + std::to_string(actual);
}

int64_t blocks_of(const block_log &log)
{
    return static_cast<int64_t>(log.outstanding());
}

// The library's record and the model's, and the blocks of each.
class two_records
{
public:
    two_records(std::size_t message_index, const injection &failing_call)
        : of_(*all_messages()[message_index]), functions_(library_message_at(message_index)),
          library_log_(failing_call.library), model_log_(failing_call.model)
    {
        fill_members(of_, library_.bytes);
        fill_members(of_, model_.bytes);
    }

    std::string decode(std::span<const uint8_t> wire, uint32_t flags)
    {
        const memory_source source = library_log_.source();
        const int32_t actual =
            functions_.decode(library_.bytes, wire.data(), wire.size(), source.allocate, source.context, flags);
        const int32_t expected = model_decode(of_, model_.bytes, wire.data(), wire.size(), model_log_.source(), flags);
        return compare("decode", expected, actual);
    }

    std::string duplicate(const uint8_t *from)
    {
        const memory_source source = library_log_.source();
        const int32_t actual = functions_.duplicate(library_.bytes, from, source.allocate, source.context);
        const int32_t expected = model_duplicate(of_, model_.bytes, from, model_log_.source());
        return compare("duplicate", expected, actual);
    }

    // The blocks that a decode drops (of a nested record that occurs twice) stay outstanding: as many as predicted.
    std::string free(uint32_t flags)
    {
        const memory_sink sink = library_log_.sink();
        functions_.free(library_.bytes, sink.release, sink.context, flags);
        model_free(of_, model_.bytes, model_log_.sink(), flags);
        const std::string calls = block_log::compare_releases(library_log_, model_log_);
        if (!calls.empty())
            return named("free", calls);
        return library_log_.released_wrongly() ? named("free", "a block is released twice") : compare("free", 0, 0);
    }

private:
    std::string compare(const char *operation, int32_t expected, int32_t actual) const
    {
        std::string found = difference("result", expected, actual);
        if (found.empty())
            found = block_log::compare_allocations(library_log_, model_log_);
        if (found.empty())
            found = difference("blocks outstanding", blocks_of(model_log_), blocks_of(library_log_));
        if (found.empty())
            found = compare_records(of_, {library_.bytes, model_.bytes}, library_log_, model_log_);
        return named(operation, found);
    }

    std::string named(const char *operation, const std::string &found) const
    {
        return found.empty() ? found : std::string(of_.name) + " " + operation + ": " + found;
    }

    const message &of_;
    const library_message &functions_;
    block_log library_log_;
    block_log model_log_;
    record_memory library_;
    record_memory model_;
};

} // namespace

std::string inject_decode(
    std::size_t message_index, std::span<const uint8_t> wire, uint32_t flags, const injection &failing_call)
{
    two_records records(message_index, failing_call);
    const std::string found = records.decode(wire, flags);
    return found.empty() ? records.free(flags) : found;
}

std::string inject_duplicate(std::size_t message_index, const uint8_t *source, const injection &failing_call)
{
    const uint32_t record_bytes = all_messages()[message_index]->record_bytes;
    record_memory before;
    std::memcpy(before.bytes, source, record_bytes);
    two_records records(message_index, failing_call);
    const std::string found = records.duplicate(source);
    if (!found.empty())
        return found;
    if (std::memcmp(before.bytes, source, record_bytes) != 0)
        return std::string(all_messages()[message_index]->name) + " duplicate: the source has changed";
    return records.free(0);
}

void fail_decode(std::size_t message_index, std::span<const uint8_t> wire, uint32_t flags, injection_tally &tally)
{
    record_memory record;
    call_counter counted;
    model_decode(*all_messages()[message_index], record.bytes, wire.data(), wire.size(), counted.source(), flags);
    fail_every_call(counted.calls(), tally,
        [&](const injection &failing_call) { return inject_decode(message_index, wire, flags, failing_call); });
}

void fail_duplicate(std::size_t message_index, std::span<const uint8_t> wire, uint64_t seed, injection_tally &tally)
{
    const message &of = *all_messages()[message_index];
    random_source random(seed);
    record_memory source;
    block_log blocks;
    model_decode(of, source.bytes, wire.data(), wire.size(), blocks.source(), 0);
    if (random.one_in(2))
        change_record(of, source.bytes, random);

    record_memory copy;
    call_counter counted;
    model_duplicate(of, copy.bytes, source.bytes, counted.source());
    fail_every_call(counted.calls(), tally,
        [&](const injection &failing_call) { return inject_duplicate(message_index, source.bytes, failing_call); });
}

} // namespace mava_tum_injection
