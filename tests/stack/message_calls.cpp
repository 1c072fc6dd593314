#include "stack/exported_calls.h"
#include "sweeps/expected_wire.h"
#include "sweeps/hostile_inputs.h"
#include "sweeps/message_list.h"
#include "sweeps/random_records.h"
#include "sweeps/record_storage.h"

#include <array>
#include <cstring>

namespace mava_tum_test
{

namespace
{

constexpr std::size_t random_record_count = 20;
constexpr std::size_t hostile_input_count = 300;
constexpr std::size_t arena_bytes = std::size_t{4} * 1024 * 1024;
constexpr uint32_t segment_capacity = 64;

// Memory for the calls, allocated from the front and never released; each call starts at the front.
struct arena {
    std::vector<uint8_t> memory = std::vector<uint8_t>(arena_bytes);
    std::size_t used = 0;

    static void *allocate(uint64_t size, void *context)
    {
        arena &from = *static_cast<arena *>(context);
        const std::size_t rounded = (size + 15) / 16 * 16;
        if (size > arena_bytes || rounded > arena_bytes - from.used)
            return nullptr;
        from.used += rounded;
        return from.memory.data() + from.used - rounded;
    }

    static void release(void *, void *) {}
};

arena &shared_arena()
{
    static arena memory;
    return memory;
}

// The data of one message's calls.
struct material {
    explicit material(const message &described) : tested(described), target(described) {}

    const message &tested;
    arena &memory = shared_arena();
    record_storage target;
    std::vector<std::unique_ptr<record_storage>> records;
    std::vector<byte_vector> inputs;
    byte_vector buffer;
    std::array<mava_tum_segment, segment_capacity> segments{};
    uint32_t segment_count = 0;
};

void add_record(material &used, const record_value &value)
{
    used.records.push_back(std::make_unique<record_storage>(used.tested, value));
    used.inputs.push_back(wire_of(value).bytes);
    byte_vector cut = used.inputs.back();
    cut.resize(cut.size() / 2);
    used.inputs.push_back(cut);
    used.buffer.resize(std::max(used.buffer.size(), used.inputs[used.inputs.size() - 2].size()));
}

std::shared_ptr<material> make_material(const message &tested)
{
    auto made = std::make_shared<material>(tested);
    for (const named_record &seed : seeds_of(*tested.skeleton))
        add_record(*made, seed.value);
    random_source random(1);
    for (std::size_t i = 0; i < random_record_count; ++i)
        add_record(*made, random_record(*tested.skeleton, random));
    hostile_inputs hostile(tested, 1);
    for (std::size_t i = 0; i < hostile_input_count; ++i)
        made->inputs.push_back(hostile.next());
    return made;
}

void decode(material &used, const byte_vector &input, mava_tum_alloc_fn alloc_fn, uint32_t flags)
{
    used.memory.used = 0;
    used.tested.decode(used.target.get(), input.data(), input.size(), alloc_fn, &used.memory, flags);
}

exported_calls decode_calls(const std::shared_ptr<material> &used)
{
    exported_calls made{std::string("mava_tum_") + used->tested.name + "_decode_ext", {}, {used}};
    for (const byte_vector &input : used->inputs) {
        made.calls.push_back([used = used.get(), &input] { decode(*used, input, arena::allocate, 0); });
        made.calls.push_back([used = used.get(), &input] { decode(*used, input, arena::allocate, MAVA_TUM_ALIAS); });
        made.calls.push_back([used = used.get(), &input] { decode(*used, input, nullptr, 0); });
    }
    return made;
}

void encode(material &used, const void *record, std::size_t capacity, bool with_segments, uint32_t flags)
{
    used.segment_count = segment_capacity;
    used.tested.encode(record, used.buffer.data(), capacity, with_segments ? used.segments.data() : nullptr,
        with_segments ? &used.segment_count : nullptr, flags);
}

exported_calls encode_calls(const std::shared_ptr<material> &used)
{
    exported_calls made{std::string("mava_tum_") + used->tested.name + "_encode_ext", {}, {used}};
    const std::size_t whole = used->buffer.size();
    for (const std::unique_ptr<record_storage> &record : used->records) {
        for (const std::size_t capacity : {std::size_t{0}, whole / 3, whole}) {
            made.calls.push_back(
                [used = used.get(), at = record->get(), capacity] { encode(*used, at, capacity, false, 0); });
            made.calls.push_back([used = used.get(), at = record->get(), capacity] {
                encode(*used, at, capacity, true, MAVA_TUM_ALIAS);
            });
        }
    }
    return made;
}

void duplicate(material &used, const void *source, mava_tum_alloc_fn alloc_fn)
{
    used.memory.used = 0;
    used.tested.duplicate(used.target.get(), source, alloc_fn, &used.memory);
}

exported_calls duplicate_calls(const std::shared_ptr<material> &used)
{
    exported_calls made{std::string("mava_tum_") + used->tested.name + "_duplicate", {}, {used}};
    for (const std::unique_ptr<record_storage> &record : used->records) {
        made.calls.push_back([used = used.get(), at = record->get()] { duplicate(*used, at, arena::allocate); });
        made.calls.push_back([used = used.get(), at = record->get()] {
            duplicate(*used, at, [](uint64_t, void *) -> void * { return nullptr; });
        });
    }
    return made;
}

// After the calls that read the records, because it empties them.
exported_calls free_calls(const std::shared_ptr<material> &used)
{
    exported_calls made{std::string("mava_tum_") + used->tested.name + "_free_ext", {}, {used}};
    for (const std::unique_ptr<record_storage> &record : used->records) {
        made.calls.push_back(
            [used = used.get(), at = record->get()] { used->tested.free(at, arena::release, nullptr, 0); });
    }
    return made;
}

} // namespace

std::vector<exported_calls> message_calls()
{
    std::vector<exported_calls> made;
    for (const message &tested : all_messages()) {
        const std::shared_ptr<material> used = make_material(tested);
        for (auto calls : {decode_calls, encode_calls, duplicate_calls, free_calls})
            made.push_back(calls(used));
    }
    return made;
}

} // namespace mava_tum_test
