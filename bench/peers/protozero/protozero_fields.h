// What the protozero peer writes and reads with: a writer into a buffer of fixed size, and the moves of single fields.
#ifndef MAVA_TUM_BENCH_PROTOZERO_FIELDS_H
#define MAVA_TUM_BENCH_PROTOZERO_FIELDS_H

#include "peers/harness/application_fields.h"

#include <protozero/basic_pbf_writer.hpp>
#include <protozero/buffer_fixed.hpp>
#include <protozero/pbf_reader.hpp>

namespace bench
{

using output_buffer = protozero::fixed_size_buffer_adaptor;
using writer = protozero::basic_pbf_writer<output_buffer>;
using protozero::pbf_reader;

// A nested message that receives nothing is taken back; the adapters send it, empty.
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

} // namespace bench

#endif
