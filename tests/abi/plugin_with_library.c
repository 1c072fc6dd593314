/* A plugin that links the static library. */
#include "mava_tum/subscriber_records.h"

__attribute__((visibility("default"))) uint64_t size_of_record_in_plugin(const mava_tum_subscriber_v4 *record);

uint64_t size_of_record_in_plugin(const mava_tum_subscriber_v4 *record)
{
    return mava_tum_subscriber_v4_encode_ext(record, 0, 0, 0, 0);
}
