// The library through its C++ layer, to compare with plain C calls.
#include "bump_allocator.h"
#include "peers/harness/peer_program.h"
#include "peers/harness/workload_names.h"

#include "mava_tum/cpp/mava_tum.hpp"

#include <memory_resource>

namespace bench
{
namespace
{

namespace tum = mava_tum::cpp;

template <class Owner>
std::vector<Owner> decoded_corpus(const corpus &content)
{
    std::vector<Owner> records(content.message_count());
    for (size_t i = 0; i < records.size(); ++i)
        static_cast<void>(records[i].decode(content.wires[i]));
    return records;
}

// `with_record` calls its argument with a new record.
template <class WithRecord>
void add_decode_side(suite &operations, const char *side, WithRecord with_record)
{
    operations.add(
        "decode", side,
        [with_record](size_t i) {
            return with_record(i, [](const auto &record, tum::result code) {
                keep(&record);
                return code == tum::result::ok;
            });
        },
        [with_record](
            size_t i) { return with_record(i, [](const auto &record, tum::result) { return record.encode(); }); });
}

// Memory from the heap; from a block that is released as a whole, through callbacks and as a memory resource.
template <class Owner>
void add_decode(suite &operations)
{
    const corpus &content = operations.content();
    const uint64_t block_bytes = 64 * 1024 + 16 * content.longest_wire();
    add_decode_side(operations, "C++ layer", [&content](size_t i, auto use) {
        Owner record;
        const tum::result code = record.decode(content.wires[i]);
        return use(record, code);
    });
    auto block = std::make_shared<bump_allocator>(block_bytes);
    add_decode_side(operations, "C++ layer bump", [&content, block](size_t i, auto use) {
        block->reset();
        Owner record(tum::memory(bump_allocator::allocate, nullptr, block.get()));
        const tum::result code = record.decode(tum::alias, content.wires[i]);
        return use(record, code);
    });
    auto room = std::make_shared<std::vector<unsigned char>>(block_bytes);
    add_decode_side(operations, "C++ layer resource", [&content, room](size_t i, auto use) {
        std::pmr::monotonic_buffer_resource resource(room->data(), room->size(), std::pmr::null_memory_resource());
        Owner record(tum::memory(tum::monotonic, &resource));
        const tum::result code = record.decode(tum::alias, content.wires[i]);
        return use(record, code);
    });
}

template <class Owner>
void add_encode(suite &operations)
{
    if (!operations.wants("encode"))
        return;
    auto records = std::make_shared<std::vector<Owner>>(decoded_corpus<Owner>(operations.content()));
    auto buffer = std::make_shared<std::vector<uint8_t>>(operations.content().longest_wire() + 64 * 1024);
    operations.add_encode("encode", "C++ layer", [records, buffer](size_t i) {
        return byte_view(buffer->data(), (*records)[i].encode(tum::span<uint8_t>(*buffer)).size);
    });
}

template <class Owner>
void add_duplicate(suite &operations)
{
    if (!operations.wants("duplicate"))
        return;
    auto records = std::make_shared<std::vector<Owner>>(decoded_corpus<Owner>(operations.content()));
    operations.add(
        "duplicate", "C++ layer",
        [records](size_t i) {
            const auto copy = (*records)[i].clone();
            keep(&copy);
            return copy.has_value();
        },
        [records](size_t i) { return (*records)[i].clone()->encode(); });
}

// Reads numbers, texts, a nested record and a list of a session.
uint64_t read_by_members(const mava_tum_session_context &session)
{
    uint64_t sum = (session.presence_mask & 1U << 4) != 0 ? session.feature_mask : 0;
    if ((session.presence_mask & 1U << 9) != 0 && (session.session_data.presence_mask & 1U << 4) != 0)
        sum += static_cast<unsigned char>(session.session_data.field_5[0]);
    for (uint32_t i = 0; i < session.qos_count; ++i) {
        if ((session.qos[i].presence_mask & 1U << 0) != 0)
            sum += session.qos[i].field_1;
    }
    return sum;
}

uint64_t read_by_accessors(const tum::session_context &session)
{
    uint64_t sum = session.feature_mask().value_or(0);
    if (const auto name = session.session_data().field_5())
        sum += static_cast<unsigned char>(name->data()[0]);
    for (const auto qos : session.qos())
        sum += qos.field_1().value_or(0);
    return sum;
}

void add_read(suite &operations)
{
    if (!operations.wants("read"))
        return;
    auto records =
        std::make_shared<std::vector<tum::session_context>>(decoded_corpus<tum::session_context>(operations.content()));
    auto sums = std::make_shared<std::vector<uint64_t>>();
    for (const tum::session_context &record : *records)
        sums->push_back(read_by_members(record.c_record()));
    operations.add_floor(
        "read", "ours", [records, sums](size_t i) { return read_by_members((*records)[i].c_record()) == (*sums)[i]; });
    operations.add_floor(
        "read", "C++ layer", [records, sums](size_t i) { return read_by_accessors((*records)[i]) == (*sums)[i]; });
}

template <class Owner>
void add_all(suite &operations)
{
    add_decode<Owner>(operations);
    add_encode<Owner>(operations);
    add_duplicate<Owner>(operations);
}

} // namespace

std::string peer_version()
{
    return "the library's C++ layer";
}

void add_operations(suite &operations)
{
    const std::string &workload = operations.content().workload;
    if (is_session(workload)) {
        add_all<tum::session_context>(operations);
        add_read(operations);
    } else if (workload == route_batch)
        add_all<tum::sub_route>(operations);
    else if (workload == subscriber_stats)
        add_all<tum::subscriber_stats>(operations);
    else if (workload == session_states)
        add_all<tum::rec_sess_req>(operations);
}

} // namespace bench
