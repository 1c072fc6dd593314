// Inputs that our encoders never write: mutated wires of random records, and random bytes.
#pragma once

#include "sweeps/message_list.h"
#include "sweeps/random_records.h"

#include <vector>

namespace mava_tum_test
{

class hostile_inputs
{
public:
    static constexpr std::size_t largest_bytes = 4096;

    hostile_inputs(const message &tested, uint64_t seed);

    // The next input; a seed always makes the same sequence.
    byte_vector next();

    random_source &random()
    {
        return random_;
    }

private:
    std::size_t below(std::size_t limit);
    byte_vector random_bytes();
    uint8_t random_tag();
    void mutate(byte_vector &wire);
    void change_byte(byte_vector &wire);
    void insert_field(byte_vector &wire);
    void lengthen_varint(byte_vector &wire);
    void repeat_range(byte_vector &wire);

    random_source random_;
    const record_value &skeleton_;
    std::vector<byte_vector> wires_;
};

} // namespace mava_tum_test
