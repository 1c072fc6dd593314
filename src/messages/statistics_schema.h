// The field lists of the statistics messages, which other groups nest.
#pragma once

#include "codec/message.h"
#include "mava_tum/statistics.h"

namespace mava_tum
{

template <>
struct schema<mava_tum_stats> {
    using self = mava_tum_stats;
    using fields =
        field_list<kind::counter<1, &self::field_1>, kind::counter<2, &self::field_2>, kind::counter<3, &self::field_3>,
            kind::counter<4, &self::field_4>, kind::counter<5, &self::field_5>, kind::counter<6, &self::field_6>,
            kind::counter<7, &self::field_7>, kind::counter<8, &self::field_8>, kind::counter<9, &self::field_9>,
            kind::counter<10, &self::field_10>, kind::counter<11, &self::field_11>, kind::counter<12, &self::field_12>,
            kind::counter<13, &self::field_13>, kind::counter<14, &self::field_14>, kind::counter<15, &self::field_15>,
            kind::counter<16, &self::field_16>, kind::counter<17, &self::field_17>, kind::counter<18, &self::field_18>>;
};

template <>
struct schema<mava_tum_service_stats> {
    using self = mava_tum_service_stats;
    using fields = field_list<kind::text<1, &self::field_1>, kind::record<2, &self::field_2>>;
};

template <>
struct schema<mava_tum_subscriber_stats> {
    using self = mava_tum_subscriber_stats;
    using fields = field_list<kind::varint<1, &self::field_1>, kind::varint<2, &self::field_2>,
        kind::varint<3, &self::field_3>, kind::varint<4, &self::field_4>, kind::varint<5, &self::field_5>,
        kind::varint<6, &self::field_6>, kind::record<7, &self::field_7>,
        kind::record_array<8, &self::field_8, &self::field_8_count>, kind::varint<9, &self::field_9>,
        kind::record<10, &self::field_10>, kind::varint<11, &self::field_11>, kind::record<12, &self::field_12>>;
};

} // namespace mava_tum
