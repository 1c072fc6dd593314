// protozero: fields are read and written by hand, without message objects. So it has adapter operations only.
#include "peers/harness/peer_program.h"
#include "peers/harness/workload_names.h"
#include "peers/protozero/protozero_records.h"

#include <protozero/version.hpp>

namespace bench
{
namespace
{

template <class Application>
void add_adapter(suite &operations)
{
    const corpus &content = operations.content();
    const std::span<const Application> sent = records_to_send<Application>(content);
    auto bytes = std::make_shared<std::vector<char>>(content.longest_wire() + 64 * 1024);
    operations.add_encode("encode_adapter", "protozero", [sent, bytes](size_t i) {
        output_buffer buffer(bytes->data(), bytes->size());
        write_record(buffer, sent[i]);
        return byte_view(reinterpret_cast<const uint8_t *>(buffer.data()), buffer.size());
    });
    auto received = std::make_shared<Application>();
    operations.add_decode_adapter("protozero", [&content, received](size_t i) -> const Application & {
        const std::vector<uint8_t> &wire = content.wires[i];
        read_record(pbf_reader(reinterpret_cast<const char *>(wire.data()), wire.size()), *received);
        return *received;
    });
}

} // namespace

std::string peer_version()
{
    return "protozero " PROTOZERO_VERSION_STRING;
}

void add_operations(suite &operations)
{
    const std::string &workload = operations.content().workload;
    if (is_session(workload))
        add_adapter<tum_nal_data_session_context>(operations);
    else if (workload == route_batch)
        add_adapter<tum_nal_data_sub_route>(operations);
    else if (workload == subscriber_stats)
        add_adapter<tum_nal_data_subscriber_stats>(operations);
    else if (workload == session_states)
        add_adapter<tum_nal_data_rec_sess_req>(operations);
    else if (workload == group_start)
        add_adapter<tum_nal_data_srg_group_rec_start_req>(operations);
}

} // namespace bench
