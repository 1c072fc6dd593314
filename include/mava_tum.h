/* The whole library: codec records and codec functions, application records and adapters, the queue.
 * Start at mava_tum/codec_contract.h and tum_nal/adapter_contract.h. */
#ifndef MAVA_TUM_H
#define MAVA_TUM_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "mava_tum/codec_contract.h"
#include "mava_tum/feature_records.h"
#include "mava_tum/presence_bits.h"
#include "mava_tum/reconciliation.h"
#include "mava_tum/redundancy_group.h"
#include "mava_tum/routes.h"
#include "mava_tum/session_messages.h"
#include "mava_tum/statistics.h"
#include "mava_tum/subscriber_records.h"
#include "mava_tum/version.h"

#include "tum_nal/adapter_contract.h"
#include "tum_nal/nal_queue.h"
#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"
#include "tum_nal/nal_routes.h"
#include "tum_nal/nal_session.h"
#include "tum_nal/nal_session_context.h"
#include "tum_nal/nal_statistics.h"

#endif
