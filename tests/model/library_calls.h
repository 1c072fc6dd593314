// The library's functions of the model's messages, with common parameters.
#pragma once

#include "catalogue.h"
#include "model/message_tables.h"

#include <algorithm>
#include <vector>

namespace mava_tum_model
{

using library_message = mava_tum_catalogue::message;

// In the order of mava_tum_model::all_messages().
inline const library_message &library_message_at(std::size_t index)
{
    static const auto found = [] {
        std::vector<const library_message *> in_order;
        for (const message *each : all_messages())
            in_order.push_back(mava_tum_catalogue::find_message(each->name));
        return in_order;
    }();
    return *found[index];
}

} // namespace mava_tum_model
