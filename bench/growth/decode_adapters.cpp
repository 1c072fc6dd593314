#include "growth/measured_call.h"

#include "mava_tum.h"

namespace bench
{
namespace
{

template <class Record, void (*Decode)(const uint8_t *, uint32_t, Record *)>
void decode_into(const uint8_t *data, uint32_t length, void *record)
{
    Decode(data, length, static_cast<Record *>(record));
}

template <auto Decode, class Record>
constexpr decode_adapter entry(const char *message, void (*)(const uint8_t *, uint32_t, Record *))
{
    return {message, sizeof(Record), decode_into<Record, Decode>};
}

template <auto Decode>
constexpr decode_adapter of(const char *message)
{
    return entry<Decode>(message, Decode);
}

} // namespace

const std::vector<decode_adapter> &decode_adapters()
{
    static const std::vector<decode_adapter> adapters = {
        of<tum_nal_data_gpb_decode_tum_session_context>("session_context"),
        of<tum_nal_data_gpb_decode_tum_session_delete>("session_delete"),
        of<tum_nal_data_gpb_decode_tum_sess_oper_resp>("sess_oper_resp"),
        of<tum_nal_data_gpb_decode_tum_subscriber_stats>("subscriber_stats"),
        of<tum_nal_data_gpb_decode_tum_sub_route>("sub_route"),
        of<tum_nal_data_gpb_decode_tum_subscriber_route_resp>("subscriber_route_resp"),
        of<tum_nal_data_gpb_decode_tum_rec_start_req>("rec_start_req"),
        of<tum_nal_data_gpb_decode_tum_rec_start_res>("rec_resp"),
        of<tum_nal_data_gpb_decode_tum_rec_complete_req>("rec_complete_req"),
        of<tum_nal_data_gpb_decode_tum_rec_sess_req>("rec_sess_req"),
        of<tum_nal_data_gpb_decode_tum_rec_sess_res>("rec_sess_resp"),
        of<tum_nal_data_gpb_decode_tum_rec_sess_replay_req>("rec_sess_replay_req"),
        of<tum_nal_data_gpb_decode_tum_rec_sess_replay_resp>("rec_sess_replay_resp"),
        of<tum_nal_data_gpb_decode_tum_srg_group_rec_start_req>("srg_group_rec_start_req"),
        of<tum_nal_data_gpb_decode_tum_srg_group_rec_resp>("srg_group_rec_resp"),
        of<tum_nal_data_gpb_decode_tum_srg_group_rec_complete_req>("srg_group_rec_complete_req"),
        of<tum_nal_data_gpb_decode_tum_srg_group_rec_replay_req>("srg_group_rec_replay_req"),
        of<tum_nal_data_gpb_decode_tum_srg_group_rec_replay_resp>("srg_group_rec_replay_resp"),
    };
    return adapters;
}

} // namespace bench
