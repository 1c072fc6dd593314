#include "app/app_adapters.h"

#include "app/record_layouts.h"

namespace mava_tum_cli
{

namespace
{

// Of a function, the type of the record that it takes.
template <auto Function>
struct record_of;

template <class Record, uint64_t (*Encode)(const Record *, uint8_t *, uint32_t)>
struct record_of<Encode> {
    using type = Record;
};

template <class Record, void (*Decode)(const uint8_t *, uint32_t, Record *)>
struct record_of<Decode> {
    using type = Record;
};

template <auto Encode, auto Decode>
app_adapter adapter(std::string_view message = {})
{
    using encode_record = typename record_of<Encode>::type;
    using decode_record = typename record_of<Decode>::type;
    const std::string_view name =
        mava_tum_inspect::text_behind(mava_tum_inspect::argument_text<Encode>(), "gpb_encode_tum_");
    return {name, message.empty() ? name : message, &layout_of<encode_record>(), &layout_of<decode_record>(),
        [](const std::byte *record, uint8_t *buffer, uint32_t capacity) {
            return Encode(reinterpret_cast<const encode_record *>(record), buffer, capacity);
        },
        [](const uint8_t *data, uint32_t length, std::byte *record) {
            Decode(data, length, reinterpret_cast<decode_record *>(record));
        }};
}

} // namespace

std::span<const app_adapter> all_adapters()
{
    static const app_adapter adapters[] = {
        adapter<tum_nal_data_gpb_encode_tum_session_context, tum_nal_data_gpb_decode_tum_session_context>(),
        adapter<tum_nal_data_gpb_encode_tum_session_delete, tum_nal_data_gpb_decode_tum_session_delete>(),
        adapter<tum_nal_data_gpb_encode_tum_sess_oper_resp, tum_nal_data_gpb_decode_tum_sess_oper_resp>(),
        adapter<tum_nal_data_gpb_encode_tum_subscriber_stats, tum_nal_data_gpb_decode_tum_subscriber_stats>(),
        adapter<tum_nal_data_gpb_encode_tum_sub_route, tum_nal_data_gpb_decode_tum_sub_route>(),
        adapter<tum_nal_data_gpb_encode_tum_subscriber_route_resp, tum_nal_data_gpb_decode_tum_subscriber_route_resp>(),
        adapter<tum_nal_data_gpb_encode_tum_rec_start_req, tum_nal_data_gpb_decode_tum_rec_start_req>(),
        adapter<tum_nal_data_gpb_encode_tum_rec_start_res, tum_nal_data_gpb_decode_tum_rec_start_res>("rec_resp"),
        adapter<tum_nal_data_gpb_encode_tum_rec_complete_req, tum_nal_data_gpb_decode_tum_rec_complete_req>(),
        adapter<tum_nal_data_gpb_encode_tum_rec_complete_res, tum_nal_data_gpb_decode_tum_rec_complete_res>("rec_resp"),
        adapter<tum_nal_data_gpb_encode_tum_rec_sess_req, tum_nal_data_gpb_decode_tum_rec_sess_req>(),
        adapter<tum_nal_data_gpb_encode_tum_rec_sess_res, tum_nal_data_gpb_decode_tum_rec_sess_res>("rec_sess_resp"),
        adapter<tum_nal_data_gpb_encode_tum_rec_sess_replay_req, tum_nal_data_gpb_decode_tum_rec_sess_replay_req>(),
        adapter<tum_nal_data_gpb_encode_tum_rec_sess_replay_resp, tum_nal_data_gpb_decode_tum_rec_sess_replay_resp>(),
        adapter<tum_nal_data_gpb_encode_tum_srg_group_rec_start_req,
            tum_nal_data_gpb_decode_tum_srg_group_rec_start_req>(),
        adapter<tum_nal_data_gpb_encode_tum_srg_group_rec_resp, tum_nal_data_gpb_decode_tum_srg_group_rec_resp>(),
        adapter<tum_nal_data_gpb_encode_tum_srg_group_rec_complete_req,
            tum_nal_data_gpb_decode_tum_srg_group_rec_complete_req>(),
        adapter<tum_nal_data_gpb_encode_tum_srg_group_rec_replay_req,
            tum_nal_data_gpb_decode_tum_srg_group_rec_replay_req>(),
        adapter<tum_nal_data_gpb_encode_tum_srg_group_rec_replay_resp,
            tum_nal_data_gpb_decode_tum_srg_group_rec_replay_resp>(),
    };
    return adapters;
}

const app_adapter *find_adapter(std::string_view name)
{
    for (const app_adapter &adapter : all_adapters())
        if (adapter.name == name)
            return &adapter;
    return nullptr;
}

} // namespace mava_tum_cli
