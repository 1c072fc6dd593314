// A benchmark's name is workload/operation/side: the registration writes it, the table at the end reads it.
#ifndef MAVA_TUM_BENCH_BENCHMARK_NAMES_H
#define MAVA_TUM_BENCH_BENCHMARK_NAMES_H

#include <string>

namespace bench
{

inline constexpr const char *decode_free = "decode+free";
inline constexpr const char *encode = "encode";
inline constexpr const char *duplicate_free = "duplicate+free";
inline constexpr const char *encode_adapter = "encode_adapter";
inline constexpr const char *decode_adapter = "decode_adapter";
inline constexpr const char *copy_wire = "copy_wire";

inline constexpr const char *ours = "ours";
inline constexpr const char *protobuf_heap = "protobuf";
inline constexpr const char *protobuf_arena = "arena";
inline constexpr const char *plain_copy = "memcpy";

inline std::string benchmark_name(const std::string &work, const std::string &operation, const std::string &side)
{
    return work + "/" + operation + "/" + side;
}

} // namespace bench

#endif
