// All that a message's source needs: the kinds of field and the four operations.
#pragma once

#include "codec/field_bytes.h"
#include "codec/field_fixed32.h"
#include "codec/field_record.h"
#include "codec/field_record_array.h"
#include "codec/field_text.h"
#include "codec/field_text_array.h"
#include "codec/field_varint.h"
#include "codec/message_decode.h"
#include "codec/message_duplicate.h"
#include "codec/message_encode.h"
#include "codec/message_free.h"
