// One row per rule of the session adapters: the members that it fills, and their bytes.
#pragma once

#include "support/hex.h"
#include "tum_nal/nal_session_context.h"

#include <cstdint>
#include <vector>

namespace mava_tum_test
{

// A message has the values that are always present, then the parts that are given here in hex, without tag and length
// of their nested record. The rest is that of an all-zero record.
struct session_row {
    const char *what;
    void (*fill)(tum_nal_data_session_context &record);
    uint32_t features = 0; // the feature mask
    const char *values = "08 00 10 00 18 00 20 00";
    const char *value_7 = "38 00";
    const char *v4 = "";         // content of field 8, absent if empty
    const char *v6 = "";         // content of field 9, absent if empty
    const char *data = "1A 00";  // content of field 10
    const char *after_data = ""; // all fields from 11 on, complete
};

byte_vector wire_of(const session_row &row);
tum_nal_data_session_context record_of(const session_row &row);

// Rows for both directions: the record is sent as these bytes, and these bytes are received as the record.
std::vector<session_row> value_and_address_rows();
std::vector<session_row> session_data_rows();
std::vector<session_row> feature_rows();
std::vector<session_row> list_rows();
std::vector<session_row> symmetric_rows();

} // namespace mava_tum_test
