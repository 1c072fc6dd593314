#include "model/exhaustive.h"

#include "model/check_encode.h"
#include "model/check_message.h"
#include "model/model.h"
#include "model/record_changes.h"

#include <cstring>

namespace mava_tum_model
{

namespace
{

constexpr std::size_t largest_record = 656;

struct record_memory {
    alignas(8) uint8_t bytes[largest_record];
};

// Fails and records the call: such an input is checked again with the slow comparison.
void *refuse(uint64_t, void *context)
{
    *static_cast<bool *>(context) = true;
    return nullptr;
}

class fast_check
{
public:
    explicit fast_check(const exhaustive_range &range)
        : range_(range), of_(*all_messages()[range.message_index]), library_(library_message_at(range.message_index))
    {
        std::memset(image_.bytes, 0, sizeof image_.bytes);
        fill_members(of_, image_.bytes);
    }

    std::string run(const uint8_t *wire);

private:
    const exhaustive_range &range_;
    const message &of_;
    const library_message &library_;
    record_memory image_;
    record_memory library_record_;
    record_memory model_record_;
};

std::string fast_check::run(const uint8_t *wire)
{
    bool library_asked = false;
    bool model_asked = false;
    std::memcpy(library_record_.bytes, image_.bytes, of_.record_bytes);
    std::memcpy(model_record_.bytes, image_.bytes, of_.record_bytes);
    const int32_t actual =
        library_.decode(library_record_.bytes, wire, range_.length, refuse, &library_asked, range_.flags);
    const int32_t expected =
        model_decode(of_, model_record_.bytes, wire, range_.length, {refuse, &model_asked}, range_.flags);
    if (!library_asked && !model_asked && actual == expected &&
        std::memcmp(library_record_.bytes, model_record_.bytes, of_.record_bytes) == 0)
        return "";
    message_case slow;
    slow.message_index = range_.message_index;
    slow.flags = range_.flags;
    slow.wire = {wire, range_.length};
    return check_decode(slow, of_);
}

} // namespace

uint64_t inputs_of_length(std::size_t length)
{
    return uint64_t{1} << (8 * length);
}

exhaustive_result check_inputs(const exhaustive_range &range)
{
    exhaustive_result result;
    fast_check check(range);
    // The input has its exact size, so that the sanitizers detect a read past its end.
    wire_bytes wire(range.length);
    for (uint64_t number = range.first; number < range.end; ++number) {
        for (std::size_t index = 0; index < range.length; ++index)
            wire[index] = static_cast<uint8_t>(number >> (8 * index));
        result.difference = check.run(wire.data());
        result.inputs += 1;
        if (!result.difference.empty())
            break;
    }
    return result;
}

exhaustive_result check_capacities(std::size_t message_index)
{
    exhaustive_result result;
    const message &of = *all_messages()[message_index];
    const library_message &library = library_message_at(message_index);
    for (const wire_bytes &wire : seed_wires(of)) {
        record_memory record = {};
        block_log log;
        model_decode(of, record.bytes, wire.data(), wire.size(), log.source(), 0);
        const uint64_t size = model_encode(of, record.bytes, {}, 0);
        for (uint64_t capacity = 0; capacity <= size + 1; ++capacity) {
            for (const uint32_t flags : {0u, alias_flag}) {
                encode_case chosen;
                chosen.capacity = capacity;
                chosen.flags = flags;
                chosen.segment_capacity = flags == 0 ? no_count : static_cast<uint32_t>(capacity % 8);
                result.difference = check_encode(of, library, record.bytes, chosen);
                result.inputs += 1;
                if (!result.difference.empty()) {
                    result.difference = std::string(of.name) + " encode into " + std::to_string(capacity) +
                                        " bytes: " + result.difference;
                    return result;
                }
            }
        }
    }
    return result;
}

} // namespace mava_tum_model
