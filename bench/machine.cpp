#include "machine.h"

#include <google/protobuf/stubs/common.h>

#include <fstream>
#include <thread>

namespace bench
{
namespace
{

std::string processor()
{
    std::ifstream lines("/proc/cpuinfo");
    for (std::string line; std::getline(lines, line);) {
        const size_t colon = line.find(": ");
        if (line.starts_with("model name") && colon != std::string::npos)
            return line.substr(colon + 2) + ", " + std::to_string(std::thread::hardware_concurrency()) + " threads";
    }
    return "unknown";
}

// A machine that is busy with something else gives wide spreads; the reader should know.
std::string load()
{
    std::ifstream averages("/proc/loadavg");
    std::string last_minute = "unknown";
    averages >> last_minute;
    return last_minute + " in the last minute, before the run";
}

std::string protobuf_version()
{
    constexpr int version = GOOGLE_PROTOBUF_VERSION;
    return std::to_string(version / 1000000) + "." + std::to_string(version / 1000 % 1000) + "." +
           std::to_string(version % 1000);
}

std::string command(int argc, char **argv)
{
    std::string words;
    for (int i = 0; i < argc; ++i)
        words += (i == 0 ? "" : " ") + std::string(argv[i]);
    return words;
}

} // namespace

std::vector<std::pair<std::string, std::string>> describe_run(int argc, char **argv)
{
    return {
        {"processor", processor()},
        {"load", load()},
        {"compiler", MAVA_TUM_BENCH_COMPILER},
        {"flags", MAVA_TUM_BENCH_FLAGS},
        {"protobuf C++", protobuf_version()},
        {"Google Benchmark", MAVA_TUM_BENCH_HARNESS_VERSION},
        {"command", command(argc, argv)},
    };
}

} // namespace bench
