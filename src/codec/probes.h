// Static probes: places at which gdb, perf and bpftrace can stop or watch a running process. A probe is an instruction
// that does nothing, and a note in the file that says where it is and where its arguments are. docs/gdb.md has their
// use.
//
//     decode_fault, adapter_fault(message, field number, address of the field's tag, bytes from there to the end of the
//                                 message, decode result)
//     encode_short(message, size, capacity)
//
// A fault in a nested message is one in the message around it, too: it is reported from the inside out.
//
// MAVA_TUM_PROBED(code) is the code, or nothing where the probes are left out. Nothing is kept for a probe while a call
// succeeds: a fault costs a walk from the start of the last round, and is reported by a function that is called last,
// so that no register is saved for it.
#pragma once

#ifdef MAVA_TUM_PROBES // the build defines it where there is <sys/sdt.h>

#include "codec/skip_unknown_field.h"
#include "codec/wire_read.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <sys/sdt.h>
#include <type_traits>

#define MAVA_TUM_PROBED(...) __VA_ARGS__

namespace mava_tum
{

// Where a decode is, for the report of a fault.
struct probed_place {
    const uint8_t *round_start = nullptr;
    uint32_t field = 0; // 0: at a tag that is not that of a field
};

// The name of a message: its record's without the prefix. Compilers write "[with Record = mava_tum_vlan_info; ...]".
template <class Record>
consteval std::string_view find_message_name()
{
    constexpr std::string_view prefix = "Record = mava_tum_";
    const std::string_view function = __PRETTY_FUNCTION__;
    const size_t start = function.find(prefix) + prefix.size();
    return function.substr(start, function.find_first_of(";]", start) - start);
}

template <class Record>
struct message_name {
    char text[find_message_name<Record>().size() + 1]{};

    consteval message_name()
    {
        find_message_name<Record>().copy(text, sizeof text - 1);
    }
};

template <class Record>
inline constexpr message_name<Record> name_of{};

// What a fault's probe has.
struct reported_fault {
    uint32_t field; // 0: its tag is truncated
    const uint8_t *tag;
    uint64_t left;
};

// The first tag of `field` in a round that ended in it: the fields before it have been read. The start of the round if
// the walk loses its way, as it does at a tag that is longer than it needs (L2) and in a run with another wire type
// (L5).
inline const uint8_t *find_tag(const probed_place &place, const uint8_t *end)
{
    const uint8_t *at = place.round_start;
    while (place.field != 0 && at != nullptr && at != end) {
        const number_read<uint32_t> tag = read_tag(at, end);
        if (tag.next == nullptr)
            break;
        if (field_number_of(tag.value) == place.field)
            return at;
        at = skip_unknown_field(wire_type_of(tag.value), tag.next, end).next;
    }
    return place.round_start;
}

inline reported_fault find_fault(const probed_place &place, const uint8_t *end)
{
    const uint8_t *const tag = find_tag(place, end);
    const uint64_t left = static_cast<uint64_t>(end - tag);
    if (place.field != 0)
        return {place.field, tag, left};
    const number_read<uint32_t> unmatched = read_tag(tag, end);
    return {unmatched.next == nullptr ? 0 : field_number_of(unmatched.value), tag, left};
}

// bpftrace reads only memory that has been loaded.
inline void load_text(const char *text)
{
    static_cast<void>(*static_cast<const volatile char *>(text));
}

// These two return the result.
[[gnu::noinline, gnu::cold]] inline int32_t report_decode_fault(
    const char *message, uint32_t field, const uint8_t *round_start, const uint8_t *end, int32_t result)
{
    const reported_fault fault = find_fault({round_start, field}, end);
    load_text(message);
    STAP_PROBE5(mava_tum, decode_fault, message, fault.field, fault.tag, fault.left, result);
    return result;
}

[[gnu::noinline, gnu::cold]] inline int32_t report_adapter_fault(
    const char *message, uint32_t field, const uint8_t *round_start, const uint8_t *end, int32_t result)
{
    const reported_fault fault = find_fault({round_start, field}, end);
    load_text(message);
    STAP_PROBE5(mava_tum, adapter_fault, message, fault.field, fault.tag, fault.left, result);
    return result;
}

// In the codec's own form, the record is the message.
template <class Form>
[[gnu::always_inline]] inline int32_t report_fault(const probed_place &place, const uint8_t *end, int32_t result)
{
    using message = typename Form::message;
    if constexpr (std::is_same_v<message, typename Form::record>)
        return report_decode_fault(name_of<message>.text, place.field, place.round_start, end, result);
    else
        return report_adapter_fault(name_of<message>.text, place.field, place.round_start, end, result);
}

[[gnu::noinline, gnu::cold]] inline void report_short_buffer(const char *message, uint64_t size, uint64_t capacity)
{
    load_text(message);
    STAP_PROBE3(mava_tum, encode_short, message, size, capacity);
}

// A capacity of 0 asks for the size only.
template <class Message>
[[gnu::always_inline]] inline void report_size(uint64_t size, uint64_t capacity)
{
    if (size > capacity && capacity != 0)
        report_short_buffer(name_of<Message>.text, size, capacity);
}

} // namespace mava_tum

#else
#define MAVA_TUM_PROBED(...)
#endif
