// What the record of a subscriber's statistics takes: blocks of counters and services.
#pragma once

#include "inspect/limits/limit_rows.h"
#include "messages/statistics_schema.h"
#include "tum_nal/nal_statistics.h"

namespace mava_tum_inspect
{

struct stats_block_limits {
    using wire = mava_tum_stats;
    using own = tum_nal_data_stats_block;
    using rows = limit_rows<takes_slot<&wire::field_1, &own::counter, 0>, takes_slot<&wire::field_2, &own::counter, 1>,
        takes_slot<&wire::field_3, &own::counter, 2>, takes_slot<&wire::field_4, &own::counter, 3>,
        takes_slot<&wire::field_5, &own::counter, 4>, takes_slot<&wire::field_6, &own::counter, 5>,
        takes_slot<&wire::field_7, &own::counter, 6>, takes_slot<&wire::field_8, &own::counter, 7>,
        takes_slot<&wire::field_9, &own::counter, 8>, takes_slot<&wire::field_10, &own::counter, 9>,
        takes_slot<&wire::field_11, &own::counter, 10>, takes_slot<&wire::field_12, &own::counter, 11>,
        takes_slot<&wire::field_13, &own::counter, 12>, takes_slot<&wire::field_14, &own::counter, 13>,
        takes_slot<&wire::field_15, &own::counter, 14>, takes_slot<&wire::field_16, &own::counter, 15>,
        takes_slot<&wire::field_17, &own::counter, 16>, takes_slot<&wire::field_18, &own::counter, 17>>;
};

struct service_entry_limits {
    using wire = mava_tum_service_stats;
    using own = tum_nal_data_service_entry;
    using rows = limit_rows<takes<&wire::field_1, &own::name>, block<&wire::field_2, &own::stats, stats_block_limits>>;
};

struct subscriber_stats_limits {
    using wire = mava_tum_subscriber_stats;
    using own = tum_nal_data_subscriber_stats;
    using rows = limit_rows<takes<&wire::field_1, &own::value_1>, takes<&wire::field_2, &own::value_2>,
        takes<&wire::field_3, &own::value_3>, takes<&wire::field_4, &own::value_4>,
        takes<&wire::field_5, &own::value_5>, takes<&wire::field_6, &own::value_6>,
        block<&wire::field_7, &own::block_7, stats_block_limits>,
        list<&wire::field_8, &own::services, &own::service_count, service_entry_limits>,
        takes<&wire::field_9, &own::block_10_switch>, block<&wire::field_10, &own::block_10, stats_block_limits>,
        takes<&wire::field_11, &own::block_12_switch>, block<&wire::field_12, &own::block_12, stats_block_limits>>;
};

} // namespace mava_tum_inspect
