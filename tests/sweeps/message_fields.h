// The fields of every record, written a second time, independently of the library's lists. A field is its kind, its
// number and its member. Field number n owns bit n-1 of the presence mask.
//
// A new message gets one `visit_fields` in the file of its group.
#pragma once

#include "sweeps/message_fields_parts.h"
#include "sweeps/message_fields_reconciliation.h"
#include "sweeps/message_fields_sessions.h"
