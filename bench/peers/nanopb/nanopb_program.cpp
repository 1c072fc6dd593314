// nanopb: structures of fixed size, filled and read with a table of fields. Nothing is allocated or freed, and a
// duplicate is an assignment. Messages that are larger than the structure are not supported: no replay of more than one
// session, and no large bytes.
#include "peers/harness/peer_program.h"
#include "peers/harness/workload_names.h"
#include "peers/nanopb/nanopb_records.h"

#include <pb_decode.h>
#include <pb_encode.h>

namespace bench
{
namespace
{

constexpr const char *side = "nanopb";

template <class Message>
bool decode(Message &message, const std::vector<uint8_t> &wire)
{
    pb_istream_t stream = pb_istream_from_buffer(wire.data(), wire.size());
    return pb_decode(&stream, nanopb::MessageDescriptor<Message>::fields(), &message);
}

template <class Message>
byte_view encode(const Message &message, std::vector<uint8_t> &buffer)
{
    pb_ostream_t stream = pb_ostream_from_buffer(buffer.data(), buffer.size());
    if (!pb_encode(&stream, nanopb::MessageDescriptor<Message>::fields(), &message))
        return {};
    return {buffer.data(), stream.bytes_written};
}

std::shared_ptr<std::vector<uint8_t>> output_buffer(const corpus &content)
{
    return std::make_shared<std::vector<uint8_t>>(content.longest_wire() + 64 * 1024);
}

template <class Message>
void add_codec(suite &operations)
{
    const corpus &content = operations.content();
    auto buffer = output_buffer(content);
    auto message = std::make_shared<Message>();
    operations.add(
        "decode", side, [&content, message](size_t i) { return decode(*message, content.wires[i]); },
        [message, buffer](size_t) { return encode(*message, *buffer); });

    if (!operations.wants("encode") && !operations.wants("duplicate"))
        return;
    auto messages = std::make_shared<std::vector<Message>>(content.message_count());
    for (size_t i = 0; i < messages->size(); ++i)
        decode((*messages)[i], content.wires[i]);
    operations.add_encode("encode", side, [messages, buffer](size_t i) { return encode((*messages)[i], *buffer); });
    operations.add(
        "duplicate", side,
        [messages, message](size_t i) {
            *message = (*messages)[i];
            return true;
        },
        [message, buffer](size_t) { return encode(*message, *buffer); });
}

template <class Message, class Application>
void add_adapter(suite &operations)
{
    const corpus &content = operations.content();
    const std::span<const Application> sent = records_to_send<Application>(content);
    auto buffer = output_buffer(content);
    auto message = std::make_shared<Message>();
    operations.add_encode("encode_adapter", side, [sent, message, buffer](size_t i) {
        std::memset(message.get(), 0, sizeof *message);
        fill_peer(sent[i], *message);
        return encode(*message, *buffer);
    });
    auto received = std::make_shared<Application>();
    operations.add_decode_adapter(side, [&content, message, received](size_t i) -> const Application & {
        if (decode(*message, content.wires[i]))
            read_peer(*message, *received);
        return *received;
    });
}

template <class Message, class Application>
void add_all(suite &operations)
{
    add_codec<Message>(operations);
    add_adapter<Message, Application>(operations);
}

} // namespace

std::string peer_version()
{
    return NANOPB_VERSION;
}

void add_operations(suite &operations)
{
    const std::string &workload = operations.content().workload;
    if (is_session(workload))
        add_all<bench_peer_SessionContext, tum_nal_data_session_context>(operations);
    else if (workload == route_batch)
        add_all<bench_peer_SubRoute, tum_nal_data_sub_route>(operations);
    else if (workload == subscriber_stats)
        add_all<bench_peer_SubscriberStats, tum_nal_data_subscriber_stats>(operations);
    else if (workload == session_states)
        add_all<bench_peer_RecSessReq, tum_nal_data_rec_sess_req>(operations);
    else if (workload == group_start)
        add_all<bench_peer_SrgGroupRecStartReq, tum_nal_data_srg_group_rec_start_req>(operations);
    else if (is_replay(workload) && workload.ends_with("_1"))
        add_codec<bench_peer_RecSessReplayReq>(operations);
}

} // namespace bench
