// A subscriber's statistics, as they stand in a message of their own, in the answer to an operation and in a replay
// failure.
#pragma once

#include "messages/statistics_schema.h"
#include "nal/rows.h"
#include "tum_nal/nal_statistics.h"

#include <utility>

namespace mava_tum
{

// Counter k is field k.
template <auto Member, size_t... Index>
row_list<number_at<Index + 1, Member, Index>...> rows_of_counters(std::index_sequence<Index...>);

struct stats_block_rows {
    using message = mava_tum_stats;
    using record = tum_nal_data_stats_block;
    using rows = decltype(rows_of_counters<&record::counter>(std::make_index_sequence<TUM_NAL_STATS_COUNTERS>{}));
};

struct service_entry_rows {
    using message = mava_tum_service_stats;
    using record = tum_nal_data_service_entry;
    // L33: a name is sent also when it is empty.
    using rows = row_list<text<1, &record::name, always>, nested_in<2, &record::stats, stats_block_rows>>;
};

// L30: a block travels by the value before it. Not a slip but the message format: that value is itself sent in front of
// block 7 only; before blocks 10 and 12 it is a switch, and fields 9 and 11 are only received.
// L16: a block whose decode failed part-way is delivered up to the fault.
struct subscriber_stats_rows {
    using message = mava_tum_subscriber_stats;
    using record = tum_nal_data_subscriber_stats;
    using rows = row_list<number<1, &record::value_1, if_nonzero>, number<2, &record::value_2, if_nonzero>,
        number<3, &record::value_3, if_nonzero>, number<4, &record::value_4, if_nonzero>,
        number<5, &record::value_5, if_nonzero>, number<6, &record::value_6, if_nonzero>,
        nested_in<7, &record::block_7, stats_block_rows, if_set<&record::value_6>>,
        list<8, &record::services, &record::service_count, service_entry_rows>,
        received<number<9, &record::block_10_switch>>,
        nested_in<10, &record::block_10, stats_block_rows, if_set<&record::block_10_switch>>,
        received<number<11, &record::block_12_switch>>,
        nested_in<12, &record::block_12, stats_block_rows, if_set<&record::block_12_switch>>>;
};

} // namespace mava_tum
