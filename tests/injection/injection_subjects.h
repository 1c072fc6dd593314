// The subjects: 40 decodes and 40 duplicates. Each gets inputs from a fixed seed until enough of its calls have failed.
#pragma once

#include "injection/injection.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace mava_tum_injection
{

enum class operation : uint8_t { decode, duplicate };

struct injection_subject {
    operation what;
    std::size_t index; // of the message
    std::string name;
    bool asks_for_memory; // some field, at some depth, is bytes, text or a list
};

const std::vector<injection_subject> &all_injection_subjects();

// All seeds, then mutated and random wires, until at least `injections` calls have failed. A subject that requests no
// memory gets the seeds only. Stops at the first input with a deviation.
injection_tally inject(const injection_subject &tested, uint64_t injections);

} // namespace mava_tum_injection
