// The field lists of the statistics messages, which other groups nest.
#pragma once

#include "codec/message.h"
#include "mava_tum/statistics.h"

namespace mava_tum
{

template <>
struct schema<mava_tum_stats> {
    using self = mava_tum_stats;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        varint<4, &self::field_4>, varint<5, &self::field_5>, varint<6, &self::field_6>, varint<7, &self::field_7>,
        varint<8, &self::field_8>, varint<9, &self::field_9>, varint<10, &self::field_10>, varint<11, &self::field_11>,
        varint<12, &self::field_12>, varint<13, &self::field_13>, varint<14, &self::field_14>,
        varint<15, &self::field_15>, varint<16, &self::field_16>, varint<17, &self::field_17>,
        varint<18, &self::field_18>>;
};

template <>
struct schema<mava_tum_service_stats> {
    using self = mava_tum_service_stats;
    using fields = field_list<text<1, &self::field_1>, record<2, &self::field_2>>;
};

template <>
struct schema<mava_tum_subscriber_stats> {
    using self = mava_tum_subscriber_stats;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        varint<4, &self::field_4>, varint<5, &self::field_5>, varint<6, &self::field_6>, record<7, &self::field_7>,
        record_array<8, &self::field_8, &self::field_8_count>, varint<9, &self::field_9>, record<10, &self::field_10>,
        varint<11, &self::field_11>, record<12, &self::field_12>>;
};

} // namespace mava_tum
