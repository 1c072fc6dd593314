// Application records straight to wire bytes and back, by the rules of the adapters.
#ifndef MAVA_TUM_BENCH_PROTOZERO_RECORDS_H
#define MAVA_TUM_BENCH_PROTOZERO_RECORDS_H

#include "peers/harness/application_fields.h"

#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"

#include <protozero/basic_pbf_writer.hpp>
#include <protozero/buffer_fixed.hpp>
#include <protozero/pbf_reader.hpp>

namespace bench
{

// A writer into a buffer of fixed size, and functions for single fields.

using output_buffer = protozero::fixed_size_buffer_adaptor;
using writer = protozero::basic_pbf_writer<output_buffer>;
using protozero::pbf_reader;

// A nested message without fields is removed again; the adapters send it empty.
template <class Write>
void write_even_if_empty(output_buffer &buffer, writer &parent, uint32_t tag, Write write)
{
    const size_t size_before = buffer.size();
    {
        writer nested(parent, tag);
        write(nested);
    }
    if (buffer.size() == size_before)
        parent.add_message(tag, "", 0);
}

template <size_t Bytes>
void write_text(writer &message, uint32_t tag, const char (&text)[Bytes])
{
    if (text[0] != 0)
        message.add_string(tag, text, std::strlen(text));
}

template <size_t Bytes>
void write_bytes(writer &message, uint32_t tag, const uint8_t (&bytes)[Bytes])
{
    message.add_bytes(tag, reinterpret_cast<const char *>(bytes), Bytes);
}

inline void write_nonzero(writer &message, uint32_t tag, uint32_t value)
{
    if (value != 0)
        message.add_uint32(tag, value);
}

inline void write_ipv4(writer &message, uint32_t tag, uint32_t address)
{
    message.add_fixed32(tag, swap_ipv4(address));
}

template <class Member>
void read_value(pbf_reader &message, Member &member)
{
    member = static_cast<Member>(message.get_uint32());
}

template <size_t Bytes>
void read_text(pbf_reader &message, char (&array)[Bytes], size_t limit = Bytes)
{
    const protozero::data_view text = message.get_view();
    copy_text(array, limit, text.data(), text.size());
}

template <size_t Bytes>
void read_bytes(pbf_reader &message, uint8_t (&array)[Bytes])
{
    const protozero::data_view bytes = message.get_view();
    copy_bytes(array, bytes.data(), bytes.size());
}

inline uint32_t read_ipv4(pbf_reader &message)
{
    return swap_ipv4(message.get_fixed32());
}

// `buffer` is empty on entry.
void write_record(output_buffer &buffer, const tum_nal_data_session_context &record);
void write_record(output_buffer &buffer, const tum_nal_data_sub_route &record);
void write_record(output_buffer &buffer, const tum_nal_data_subscriber_stats &record);
void write_record(output_buffer &buffer, const tum_nal_data_rec_sess_req &record);
void write_record(output_buffer &buffer, const tum_nal_data_srg_group_rec_start_req &record);

// Overwrite the whole record.
void read_record(pbf_reader message, tum_nal_data_session_context &record);
void read_record(pbf_reader message, tum_nal_data_sub_route &record);
void read_record(pbf_reader message, tum_nal_data_subscriber_stats &record);
void read_record(pbf_reader message, tum_nal_data_rec_sess_req &record);
void read_record(pbf_reader message, tum_nal_data_srg_group_rec_start_req &record);

// Of a session, too. The route is zero before it is read into.
void write_route(writer &message, const tum_nal_data_ipv4_route &route);
void write_route(writer &message, const tum_nal_data_ipv6_route &route);
void read_route(pbf_reader message, tum_nal_data_ipv4_route &route);
void read_route(pbf_reader message, tum_nal_data_ipv6_route &route);

// The nested messages of a session that say how it reaches the network: addresses, PPP, L2TP, VLANs, names.
void read_v4(pbf_reader message, tum_nal_data_session_context &record);
void read_v6(pbf_reader message, tum_nal_data_session_context &record);
void read_session_data(pbf_reader message, tum_nal_data_session_context &record);

} // namespace bench

#endif
