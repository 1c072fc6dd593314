// The whole C++ layer: a class for each message of the codec, over its C functions. C++17 or later; nothing here is
// compiled into the library.
//
//     namespace tum = mava_tum::cpp;
//     tum::session_context session;                     // owns what it refers to, moves, is not copied
//     if (session.decode(wire) != tum::result::ok)      // wire: whatever has data() and size()
//         return;
//     if (const auto name = session.session_data().field_5())    // std::optional<std::string_view>
//         use(*name);
//     for (const auto qos : session.qos())              // a subscriber_qos_view for each
//         use(qos.field_1().value_or(0));
//
// docs/cpp.md of the sources has the rest: memory, presence, changing and encoding.
#ifndef MAVA_TUM_CPP_MAVA_TUM_HPP
#define MAVA_TUM_CPP_MAVA_TUM_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/adapters.hpp"
#include "mava_tum/cpp/feature_records.hpp"
#include "mava_tum/cpp/ipv4.hpp"
#include "mava_tum/cpp/reconciliation.hpp"
#include "mava_tum/cpp/redundancy_group.hpp"
#include "mava_tum/cpp/routes.hpp"
#include "mava_tum/cpp/session_messages.hpp"
#include "mava_tum/cpp/statistics.hpp"
#include "mava_tum/cpp/subscriber_records.hpp"

#endif
