// What the encode adapters call: `encode_directly` and the field lists of their messages.
#pragma once

#include "codec/direct_encode.h"
#include "messages/reconciliation_schema.h"
#include "messages/redundancy_group_schema.h"
#include "messages/routes_schema.h"
#include "messages/session_messages_schema.h"
