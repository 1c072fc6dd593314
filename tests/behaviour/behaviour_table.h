// The rows: for each function and group of arguments, the number of calls and one hash of all their effects.
#pragma once

#include "call_hash.h"

#include <cstdio>
#include <deque>
#include <span>
#include <string>

namespace mava_tum_behaviour
{

struct behaviour_row {
    std::string function;
    std::string group;
    bool dumped = false;
    uint64_t calls = 0;
    call_hash hash = {};

    // `argument`: distinguishes calls with the same input, for example by capacity.
    void add(std::span<const uint8_t> input, uint64_t argument, const call_hash &call)
    {
        calls += 1;
        hash.add(call.value());
        if (dumped)
            dump(input, argument, call);
    }

private:
    void dump(std::span<const uint8_t> input, uint64_t argument, const call_hash &call) const
    {
        std::printf("%s\t%llu\t", group.c_str(), static_cast<unsigned long long>(argument));
        for (const uint8_t byte : input)
            std::printf("%02x", byte);
        std::printf("\t%016llx\n", static_cast<unsigned long long>(call.value()));
    }
};

class behaviour_table
{
public:
    // `dumped`: the function whose calls are printed; empty: none.
    explicit behaviour_table(std::string dumped) : dumped_(std::move(dumped)) {}

    behaviour_row &new_row(const std::string &function, const std::string &group)
    {
        return rows_.emplace_back(function, group, function == dumped_);
    }

    const std::deque<behaviour_row> &rows() const
    {
        return rows_;
    }

private:
    std::string dumped_;
    std::deque<behaviour_row> rows_; // keeps references valid
};

} // namespace mava_tum_behaviour
