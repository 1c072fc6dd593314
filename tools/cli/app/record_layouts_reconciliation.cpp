#include "app/record_layouts.h"

namespace mava_tum_cli
{

template <>
const record_layout &layout_of<tum_nal_data_rec_start_req>()
{
    using self = tum_nal_data_rec_start_req;
    static const record_layout layout = describe_layout<self>(
        {number<&self::field_1>(), number<&self::field_2>(), number<&self::field_3>(), text<&self::field_4>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_rec_complete_req>()
{
    using self = tum_nal_data_rec_complete_req;
    static const record_layout layout = describe_layout<self>(
        {number<&self::field_1>(), number<&self::field_2>(), number<&self::field_3>(), text<&self::field_4>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_rec_res>()
{
    using self = tum_nal_data_rec_res;
    static const record_layout layout =
        describe_layout<self>({number<&self::field_1>(), text<&self::field_2>(), number<&self::field_3>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_session_state>()
{
    using self = tum_nal_data_session_state;
    static const record_layout layout =
        describe_layout<self>({number<&self::field_1>(), number<&self::field_2>(), number<&self::field_3>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_rec_sess_req>()
{
    using self = tum_nal_data_rec_sess_req;
    static const record_layout layout = describe_layout<self>(
        {number<&self::field_1>(), number<&self::field_2>(), records<&self::field_3, &self::field_3_count>(),
            text<&self::field_4>(), text<&self::field_5>(), number<&self::field_6>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_rec_sess_res>()
{
    using self = tum_nal_data_rec_sess_res;
    static const record_layout layout = describe_layout<self>({number<&self::field_1>(),
        records<&self::field_2, &self::field_2_count>(), number<&self::field_3>(), number<&self::field_4>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_rec_sess_replay_req_encode>()
{
    using self = tum_nal_data_rec_sess_replay_req_encode;
    static const record_layout layout =
        describe_layout<self>({text<&self::field_6>(), number<&self::field_3>(), number<&self::field_1>(),
            number<&self::field_2>(), number<&self::field_5>(), records<&self::field_4, &self::field_4_count>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_rec_sess_replay_req_decode>()
{
    using self = tum_nal_data_rec_sess_replay_req_decode;
    static const record_layout layout =
        describe_layout<self>({number<&self::field_1>(), number<&self::field_2>(), number<&self::field_3>(),
            records<&self::field_4, &self::field_4_count>(), number<&self::field_5>(), text<&self::field_6>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_replay_failure>()
{
    using self = tum_nal_data_replay_failure;
    static const record_layout layout =
        describe_layout<self>({number<&self::field_1>(), number<&self::field_2>(), record<&self::field_3>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_service_start>()
{
    using self = tum_nal_data_service_start;
    static const record_layout layout = describe_layout<self>({number<&self::field_1>(), number<&self::field_2>(),
        number<&self::field_3>(), number<&self::field_4>(), texts<&self::field_5, &self::field_5_count>()});
    return layout;
}

template <>
const record_layout &layout_of<tum_nal_data_rec_sess_replay_resp>()
{
    using self = tum_nal_data_rec_sess_replay_resp;
    static const record_layout layout =
        describe_layout<self>({number<&self::field_1>(), records<&self::field_2, &self::field_2_count>(),
            records<&self::field_3, &self::field_3_count>(), text<&self::field_4>(), number<&self::field_5>()});
    return layout;
}

} // namespace mava_tum_cli
