// Three sets of content for each workload:
//   fixed       one message: the kindest case for branch predictors and caches
//   realistic   what a network sends: the shape of the fixed message with small enumerations, VLAN numbers, identifiers
//               of stable width and counters of any size
//   random      every optional member present in 70 % of the messages, numbers and texts of random width
// All functions expect a record of zeros.
#ifndef MAVA_TUM_BENCH_CONTENT_H
#define MAVA_TUM_BENCH_CONTENT_H

#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"
#include "tum_nal/nal_routes.h"
#include "tum_nal/nal_session_context.h"

#include <cstddef>
#include <cstdint>

namespace bench
{

// Pseudo-random values that are the same on every machine: set and number define a message. SplitMix64, because the
// standard library's distributions differ.
class random_source
{
public:
    explicit random_source(uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15) {}

    uint64_t bits()
    {
        uint64_t mixed = state_ += 0x9E3779B97F4A7C15;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
        return mixed ^ (mixed >> 31);
    }

    // From `first` to `last`, both included.
    uint64_t between(uint64_t first, uint64_t last)
    {
        return first + bits() % (last - first + 1);
    }

    bool in_percent(unsigned percent)
    {
        return bits() % 100 < percent;
    }

    // Not zero, of 1 to `most_bits` bits, each width with the same probability.
    uint64_t of_any_width(unsigned most_bits)
    {
        const unsigned width = static_cast<unsigned>(between(1, most_bits));
        const uint64_t top = uint64_t{1} << (width - 1);
        return top | (bits() & (top - 1));
    }

private:
    uint64_t state_;
};

// Symmetric: the decode adapter fills the same record that the encode adapter sent.

// A typical broadband session: PPP in two VLANs, IPv4 and IPv6, two QoS entries, an access list, a path check, an MTU,
// accounting. About fifty fields, eight texts, 350 bytes.
void fill_typical_session(tum_nal_data_session_context &record);

// Every member that can travel, in its longest usual form: eight QoS entries with six texts each, four routes of each
// family, L2TP over IPv6, all lists, redirect, intercept. About 6 kB.
void fill_full_session(tum_nal_data_session_context &record);

// A batch of fifty routes of each family, every member set. About 11 kB.
void fill_route_batch(tum_nal_data_sub_route &record);

void fill_subscriber_stats(tum_nal_data_subscriber_stats &record);
void fill_session_states(tum_nal_data_rec_sess_req &record);
void fill_group_start(tum_nal_data_srg_group_rec_start_req &record);

void fill_realistic_typical_session(random_source &random, tum_nal_data_session_context &record);
void fill_realistic_full_session(random_source &random, tum_nal_data_session_context &record);
void fill_realistic_route_batch(random_source &random, tum_nal_data_sub_route &record);
void fill_realistic_subscriber_stats(random_source &random, tum_nal_data_subscriber_stats &record);
void fill_realistic_session_states(random_source &random, tum_nal_data_rec_sess_req &record);

void fill_random_typical_session(random_source &random, tum_nal_data_session_context &record);
void fill_random_full_session(random_source &random, tum_nal_data_session_context &record);
void fill_random_route_batch(random_source &random, tum_nal_data_sub_route &record);
void fill_random_subscriber_stats(random_source &random, tum_nal_data_subscriber_stats &record);
void fill_random_session_states(random_source &random, tum_nal_data_rec_sess_req &record);

} // namespace bench

#endif
