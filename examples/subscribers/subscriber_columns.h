// The columns of the file of subscribers: what each is called and what its cell means.
//
//   identity_columns.cpp   who and where: line id, names, addresses, VLANs
//   access_columns.cpp     how the subscriber reaches us: PPP, L2TP
//   feature_columns.cpp    what is set for the subscriber: QoS, access lists, routes and so on
#ifndef EXAMPLES_SUBSCRIBER_COLUMNS_H
#define EXAMPLES_SUBSCRIBER_COLUMNS_H

#include "csv_file.h"
#include "subscriber.h"

namespace examples
{

struct column {
    const char *name;
    void (*read)(const cell &value, subscriber &who);
};

// In the file they stand in this order.
std::span<const column> identity_columns();
std::span<const column> access_columns();
std::span<const column> feature_columns();

// Refuse a subscriber whose cells contradict each other. `line` is where it stands.
void check_access_columns(const cell &line, const subscriber &who);
void check_feature_columns(const cell &line, const subscriber &who);

} // namespace examples

#endif
