// Where and with what a run was made: figures without this say nothing.
#ifndef MAVA_TUM_BENCH_MACHINE_H
#define MAVA_TUM_BENCH_MACHINE_H

#include <string>
#include <utility>
#include <vector>

namespace bench
{

// Name and value, in the order to print them in: processor, load, compiler and flags, versions, command.
std::vector<std::pair<std::string, std::string>> describe_run(int argc, char **argv);

} // namespace bench

#endif
