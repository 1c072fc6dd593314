#include "peers/ours/corpus_content.h"

#include "peers/content/content.h"
#include "peers/harness/workload_names.h"
#include "peers/ours/our_operations.h"

namespace bench
{
namespace
{

template <class Application>
struct filler {
    void (*fixed)(Application &);
    void (*realistic)(random_source &, Application &);
    void (*random)(random_source &, Application &);
};

template <class Application>
void fill(const filler<Application> &fill, const std::string &set, uint64_t number, Application &record)
{
    random_source random(number + 1);
    if (set == "fixed")
        fill.fixed(record);
    else if (set == "realistic")
        fill.realistic(random, record);
    else
        fill.random(random, record);
}

template <class Application>
void append(std::vector<uint8_t> &bytes, const Application &record)
{
    const auto *begin = reinterpret_cast<const uint8_t *>(&record);
    bytes.insert(bytes.end(), begin, begin + sizeof record);
}

template <class Adapter>
void add_messages(corpus &content, const filler<typename Adapter::sent> &from, const message_window &numbers)
{
    using application = typename Adapter::sent;
    auto record = std::make_shared<application>();
    const uint64_t count = content.set == "fixed" ? 1 : numbers.count;
    content.sent.reserve(count * sizeof(application));
    for (uint64_t i = 0; i < count; ++i) {
        std::memset(static_cast<void *>(record.get()), 0, sizeof *record);
        fill(from, content.set, numbers.first + i, *record);
        append(content.sent, *record);
        std::vector<uint8_t> wire(Adapter::encode(record.get(), nullptr, 0));
        Adapter::encode(record.get(), wire.data(), static_cast<uint32_t>(wire.size()));
        content.wires.push_back(std::move(wire));
    }
    content.received = [&content, record](size_t i) {
        const std::vector<uint8_t> &wire = content.wires[i];
        Adapter::decode(wire.data(), static_cast<uint32_t>(wire.size()), record.get());
        return byte_view(reinterpret_cast<const uint8_t *>(record.get()), sizeof *record);
    };
}

std::vector<uint8_t> typical_session_wire()
{
    auto record = std::make_unique<tum_nal_data_session_context>();
    fill_typical_session(*record);
    std::vector<uint8_t> wire(session_adapter::encode(record.get(), nullptr, 0));
    session_adapter::encode(record.get(), wire.data(), static_cast<uint32_t>(wire.size()));
    return wire;
}

// All sessions are the typical one, so that the cost per session can be compared with one session alone.
void add_replay(corpus &content, uint64_t session_count)
{
    const std::vector<uint8_t> wire = typical_session_wire();
    mava_tum_session_context session = {};
    mava_tum_session_context_decode_ext(&session, wire.data(), wire.size(), allocate_zeroed, nullptr, MAVA_TUM_ALIAS);
    std::vector<mava_tum_session_context> sessions(session_count, session);
    char text[] = "bng-north-07.example.net";
    mava_tum_rec_sess_replay_req request = {};
    request.field_1 = 17;
    request.field_2 = 3;
    request.field_3 = 4711;
    request.field_4 = sessions.data();
    request.field_4_count = static_cast<uint32_t>(session_count);
    request.field_5 = 1;
    request.field_6 = text;
    request.presence_mask = 0x3F; // all six fields
    content.wires.push_back(wire_of<replay_codec>(request));
    mava_tum_session_context_free_ext(&session, release_allocated, nullptr, MAVA_TUM_ALIAS);
}

// A session with its numbers and 64 KiB in its bytes field. No nested records: gather output does not count bytes
// fields in their lengths, so its segments would be no message.
void add_large_bytes(corpus &content)
{
    std::vector<uint8_t> large(64 * 1024);
    random_source random(1);
    for (uint8_t &byte : large)
        byte = static_cast<uint8_t>(random.bits());
    mava_tum_session_context session = {};
    session.field_1 = 4;
    session.field_2 = 0x2A01;
    session.field_3 = 4711;
    session.field_4 = 1;
    session.field_6 = {large.data(), large.size()};
    session.field_7 = 86400;
    session.presence_mask = 0x6F; // all of these
    content.wires.push_back(wire_of<session_codec>(session));
}

} // namespace

bool fill_corpus(corpus &content, const message_window &numbers)
{
    if (content.set != "fixed" && content.set != "realistic" && content.set != "random")
        return false;
    const std::string &workload = content.workload;
    if (workload == typical_session)
        add_messages<session_adapter>(
            content, {fill_typical_session, fill_realistic_typical_session, fill_random_typical_session}, numbers);
    else if (workload == full_session)
        add_messages<session_adapter>(
            content, {fill_full_session, fill_realistic_full_session, fill_random_full_session}, numbers);
    else if (workload == route_batch)
        add_messages<routes_adapter>(
            content, {fill_route_batch, fill_realistic_route_batch, fill_random_route_batch}, numbers);
    else if (workload == subscriber_stats)
        add_messages<stats_adapter>(
            content, {fill_subscriber_stats, fill_realistic_subscriber_stats, fill_random_subscriber_stats}, numbers);
    else if (workload == session_states)
        add_messages<states_adapter>(
            content, {fill_session_states, fill_realistic_session_states, fill_random_session_states}, numbers);
    else if (workload == group_start && content.set == "fixed")
        add_messages<group_start_adapter>(content, {fill_group_start, nullptr, nullptr}, numbers);
    else if (is_replay(workload) && content.set == "fixed")
        add_replay(content, std::stoull(workload.substr(std::strlen(replay))));
    else if (is_large_bytes(workload) && content.set == "fixed")
        add_large_bytes(content);
    return content.message_count() != 0;
}

} // namespace bench
