// How the protobuf side moves texts and byte arrays between an application record and a message.
#ifndef MAVA_TUM_BENCH_PEER_FIELDS_H
#define MAVA_TUM_BENCH_PEER_FIELDS_H

#include "peers/harness/application_fields.h"

#include <string>

namespace bench
{

// The generated set_...(const char *) builds a temporary string; assigning to the mutable one reuses its capacity.
inline void assign_text(std::string *target, const char *text)
{
    target->assign(text, std::strlen(text));
}

template <size_t Bytes>
void assign_bytes(std::string *target, const uint8_t (&bytes)[Bytes])
{
    target->assign(reinterpret_cast<const char *>(bytes), Bytes);
}

inline void copy_text(char *array, size_t limit, const std::string &text)
{
    copy_text(array, limit, text.data(), text.size());
}

template <size_t Bytes>
void copy_text(char (&array)[Bytes], const std::string &text)
{
    copy_text(array, Bytes, text.data(), text.size());
}

template <size_t Bytes>
void copy_bytes(uint8_t (&array)[Bytes], const std::string &bytes)
{
    copy_bytes(array, bytes.data(), bytes.size());
}

} // namespace bench

#endif
