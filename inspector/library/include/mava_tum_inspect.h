/* Explains wire bytes: their fields and their faults. It is for a process that logs why a message arrived in part: a
 * result code does not say it, and an adapter has no result.
 *
 *     describe   the 40 messages, their fields and the adapters, by name
 *     explain    wire bytes in annotated lines, and the verdict: result, byte, field, rule in words
 *     check      the parts of a message that do not arrive in an adapter's record
 *     guess      the messages of the 40 that given bytes can be
 *     print      a message on one line, for a log; without the values that a log must not have
 *     compare    the fields that two messages have in different ways
 *
 * It is a separate library, libmava_tum_inspect; the codec library contains no names. The functions keep no
 * state, log nothing, allocate nothing, and any number of threads may call them. Input of any length is read in
 * constant memory. Messages are named as in the headers of the codec, without mava_tum_ ("session_context"), adapters
 * as in tum_nal_data_gpb_decode_tum_<name> ("rec_start_res"). Data may be null when its length is 0, and an array when
 * its capacity is 0; another null pointer is refused unless its function documents it. Texts that a function returns or
 * a callback receives are NUL-terminated. Those of `describe` are valid as long as the library is loaded, those of a
 * callback until it returns.
 *
 * "L" and a number, in texts, is an entry of docs/leniency.md: something the decoders accept on purpose. */
#ifndef MAVA_TUM_INSPECT_H
#define MAVA_TUM_INSPECT_H
/* SPDX-License-Identifier: Apache-2.0 */

#include "mava_tum/codec_contract.h"

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* What functions that take a name return besides MAVA_TUM_OK. After the first two, nothing was written or called. */
enum {
    MAVA_TUM_INSPECT_NO_SUCH_NAME = 1,  /* no such message, field or adapter */
    MAVA_TUM_INSPECT_NULL_ARGUMENT = 2, /* a pointer is null that may not be. Functions that count return 0. */
    MAVA_TUM_INSPECT_STOPPED = 3,       /* a callback returned another value than 0: the rest was not read */
    MAVA_TUM_INSPECT_CUT = 4,           /* the buffer is too small: the rest was not printed */
    MAVA_TUM_INSPECT_MALFORMED = 5      /* a message does not decode; nothing was compared */
};

/* Sizes, in bytes with the NUL: no path and no sentence is longer. */
enum { MAVA_TUM_INSPECT_PATH_BYTES = 128, MAVA_TUM_INSPECT_SENTENCE_BYTES = 320 };

/* ---- describe -------------------------------------------------------------------------------------------- */

/* Kinds of field; see codec_contract.h. */
enum {
    MAVA_TUM_INSPECT_VARINT = 0,       /* uint32_t or uint64_t */
    MAVA_TUM_INSPECT_FIXED32 = 1,      /* uint32_t */
    MAVA_TUM_INSPECT_BYTES = 2,        /* mava_tum_bytes */
    MAVA_TUM_INSPECT_TEXT = 3,         /* char * */
    MAVA_TUM_INSPECT_RECORD = 4,       /* another record, inline */
    MAVA_TUM_INSPECT_RECORD_ARRAY = 5, /* pointer and count */
    MAVA_TUM_INSPECT_TEXT_ARRAY = 6    /* pointer and count */
};

/* What a value is besides a number or bytes. */
enum { MAVA_TUM_INSPECT_NO_ADDRESS = 0, MAVA_TUM_INSPECT_IPV4 = 1, MAVA_TUM_INSPECT_IPV6 = 2 };

/* A message, as mava_tum_inspect_describe finds it. */
typedef struct mava_tum_inspect_message {
    const char *name;       /* without mava_tum_ */
    uint32_t field_count;   /* the fields are numbered 1 to field_count */
    uint64_t record_bytes;  /* sizeof(mava_tum_<name>) */
    uint64_t mask_offset;   /* of presence_mask in the record, in bytes */
    uint32_t mask_bytes;    /* 1, 2 or 4 */
    uint32_t has_alias_bit; /* 1: a bytes field is in it, at any depth */
} mava_tum_inspect_message;

/* A field, as mava_tum_inspect_describe_field finds it. */
typedef struct mava_tum_inspect_field {
    const char *name;       /* of the member in the codec record */
    uint32_t number;        /* on the wire; the presence bit is number - 1 */
    int32_t kind;           /* MAVA_TUM_INSPECT_VARINT to _TEXT_ARRAY */
    uint32_t value_bits;    /* varint: 32 or 64; fixed32: 32; else 0 */
    int32_t address;        /* MAVA_TUM_INSPECT_NO_ADDRESS, _IPV4 or _IPV6 */
    uint64_t member_offset; /* in the codec record, in bytes */
    uint64_t count_offset;  /* arrays: of the uint32_t count; else 0 */
    const char *nested;     /* records and arrays of records: the message; else null */
} mava_tum_inspect_field;

/* Returns the number of messages: 40. */
MAVA_TUM_API uint32_t mava_tum_inspect_message_count(void);

/* Returns the name of message `index`, counted from 0 in the order of codec_contract.h; null if there is none. */
MAVA_TUM_API const char *mava_tum_inspect_message_name(uint32_t index);

/* Returns the number of adapters: 19, each an encode and a decode. */
MAVA_TUM_API uint32_t mava_tum_inspect_adapter_count(void);

/* Returns the name of adapter `index`, counted from 0; null if there is none. */
MAVA_TUM_API const char *mava_tum_inspect_adapter_name(uint32_t index);

/* Describes a message. Returns MAVA_TUM_OK or MAVA_TUM_INSPECT_NO_SUCH_NAME. */
MAVA_TUM_API int32_t mava_tum_inspect_describe(const char *message, mava_tum_inspect_message *description);

/* Describes field `number` of a message. Returns MAVA_TUM_OK, or MAVA_TUM_INSPECT_NO_SUCH_NAME when there is no such
 * message or it has no such field. */
MAVA_TUM_API int32_t mava_tum_inspect_describe_field(
    const char *message, uint32_t number, mava_tum_inspect_field *description);

/* Finds the messages whose names are most similar to `wrong`: at most `capacity` and at most 8, the most similar first,
 * none with little in common. Returns their number. */
MAVA_TUM_API uint32_t mava_tum_inspect_similar_messages(const char *wrong, const char **names, uint32_t capacity);

/* The same for adapters. */
MAVA_TUM_API uint32_t mava_tum_inspect_similar_adapters(const char *wrong, const char **names, uint32_t capacity);

/* ---- explain --------------------------------------------------------------------------------------------- */

/* The result of a decode of the whole input, and the reason.
 * It assumes an allocator that never fails. If an allocation fails, or an allocator is needed and not given, a decode
 * ends earlier, with MAVA_TUM_NO_MEMORY. */
typedef struct mava_tum_inspect_verdict {
    int32_t result;                             /* of mava_tum_<message>_decode_ext */
    uint64_t offset;                            /* of the byte at which the fault begins; 0 when there is none */
    char path[MAVA_TUM_INSPECT_PATH_BYTES];     /* the field: "session_data.field_5", "qos[2].field_3"; may be "" */
    char text[MAVA_TUM_INSPECT_SENTENCE_BYTES]; /* "`field_3` occurs in a second, separate run at byte 41: result -1" */
} mava_tum_inspect_verdict;

/* Finds the verdict alone. Returns MAVA_TUM_OK or MAVA_TUM_INSPECT_NO_SUCH_NAME. */
MAVA_TUM_API int32_t mava_tum_inspect_judge(
    const char *message, const uint8_t *data, uint64_t length, mava_tum_inspect_verdict *verdict);

/* Kinds of line. */
enum {
    MAVA_TUM_INSPECT_LINE_TAG = 0,    /* number and wire type of a field */
    MAVA_TUM_INSPECT_LINE_LENGTH = 1, /* of what follows, in bytes */
    MAVA_TUM_INSPECT_LINE_VALUE = 2,  /* or the first bytes of it */
    MAVA_TUM_INSPECT_LINE_MORE = 3,   /* more bytes of the line before */
    MAVA_TUM_INSPECT_LINE_NOTE = 4,   /* no bytes: something unusual that is accepted, or a hint */
    MAVA_TUM_INSPECT_LINE_FAULT = 5,  /* no bytes: the sentence of the verdict */
    MAVA_TUM_INSPECT_LINE_UNREAD = 6  /* what a fault leaves unread */
};

/* A line shows at most so many bytes. */
enum { MAVA_TUM_INSPECT_ROW_BYTES = 8 };

/* Part of the annotated dump. The lines with bytes, one after the other, are the whole input. */
typedef struct mava_tum_inspect_line {
    int32_t kind;        /* MAVA_TUM_INSPECT_LINE_TAG to _UNREAD */
    uint32_t depth;      /* of nesting, from 0 */
    uint64_t offset;     /* of the first byte */
    uint32_t byte_count; /* 0 to MAVA_TUM_INSPECT_ROW_BYTES */
    const char *path;    /* the field that the line is about; may be "" */
    const char *text;    /* what the bytes are; "" where the line before says it */
} mava_tum_inspect_line;

/* Receives a line. Its pointers are valid until the callback returns. A return value other than 0 stops: no line
 * follows. */
typedef int32_t (*mava_tum_inspect_line_fn)(const mava_tum_inspect_line *line, void *context);

/* Calls `line_fn` for each line, in the order of the bytes. `verdict` may be null; it is not written if the callback
 * stops. Returns MAVA_TUM_OK for each verdict, MAVA_TUM_INSPECT_STOPPED or MAVA_TUM_INSPECT_NO_SUCH_NAME. */
MAVA_TUM_API int32_t mava_tum_inspect_explain(const char *message, const uint8_t *data, uint64_t length,
    mava_tum_inspect_line_fn line_fn, void *context, mava_tum_inspect_verdict *verdict);

/* Writes a line as text into `buffer`, of `capacity` bytes, NUL included, without a line end: offset, bytes in hex,
 * words. `data` is what was explained. Returns the length of the whole text; when it is not below `capacity`, the text
 * was cut. */
MAVA_TUM_API uint32_t mava_tum_inspect_format_line(
    const mava_tum_inspect_line *line, const uint8_t *data, char *buffer, uint32_t capacity);

/* ---- check ----------------------------------------------------------------------------------------------- */

/* Kinds of finding: why a part of a message does not arrive in an application record. */
enum {
    MAVA_TUM_INSPECT_FAULT = 0,         /* malformed: the bytes after the fault do not arrive (L15, L16) */
    MAVA_TUM_INSPECT_LIST_CUT = 1,      /* more elements than slots (L17) */
    MAVA_TUM_INSPECT_TEXT_CUT = 2,      /* longer than its array, or than the record takes (L21, L22) */
    MAVA_TUM_INSPECT_TEXT_ENDS = 3,     /* at a NUL inside it (L21) */
    MAVA_TUM_INSPECT_BYTES_CUT = 4,     /* longer than its array (L19) */
    MAVA_TUM_INSPECT_BYTES_PADDED = 5,  /* shorter: zeros follow, and its length is lost (L19) */
    MAVA_TUM_INSPECT_NUMBER_CUT = 6,    /* wider than its member (L20) */
    MAVA_TUM_INSPECT_NO_MEMBER = 7,     /* no member holds the field (L26, L28) */
    MAVA_TUM_INSPECT_PART_MISSING = 8,  /* the value arrives only with another field, which is absent (L24) */
    MAVA_TUM_INSPECT_REPLACED = 9,      /* the field occurs again: the earlier value is lost (L11) */
    MAVA_TUM_INSPECT_UNKNOWN_FIELD = 10 /* the message has no such field */
};

/* A part of a message that does not arrive, or arrives changed. */
typedef struct mava_tum_inspect_finding {
    int32_t kind;     /* MAVA_TUM_INSPECT_FAULT to _UNKNOWN_FIELD */
    uint64_t offset;  /* of the field's tag; of a missing part, of its record's; of a fault, of what is wrong */
    uint64_t found;   /* elements, characters, bytes or bits in the message; else 0 */
    uint64_t allowed; /* how many of them the record holds; else 0 */
    const char *path; /* the field in the message; may be "" */
    const char *text; /* "`session_name` has 70 characters at byte 12, of which 64 arrive" */
} mava_tum_inspect_finding;

/* Receives a finding. Its pointers are valid until the callback returns. A return value other than 0 stops. */
typedef int32_t (*mava_tum_inspect_finding_fn)(const mava_tum_inspect_finding *finding, void *context);

/* The result of a check. */
typedef struct mava_tum_inspect_check_result {
    uint64_t finding_count;           /* findings, also above the limit and without a callback */
    uint64_t record_bytes;            /* sizeof the application record */
    mava_tum_inspect_verdict verdict; /* as mava_tum_inspect_judge finds it; all zero if the callback stopped */
} mava_tum_inspect_check_result;

/* Looks at a message as the adapter `adapter` decodes it (a message with one adapter may also be named itself). Calls
 * `finding_fn`, which may be null, for the first `finding_limit` findings, in the order of the bytes; a finding about a
 * whole record comes at its end. The others are counted: untrusted input can have a finding for every two bytes. Zeros
 * and empty texts that have no member are no finding: an absent value reads the same. Returns MAVA_TUM_OK, also with
 * findings, MAVA_TUM_INSPECT_STOPPED or MAVA_TUM_INSPECT_NO_SUCH_NAME. */
MAVA_TUM_API int32_t mava_tum_inspect_check(const char *adapter, const uint8_t *data, uint64_t length,
    uint64_t finding_limit, mava_tum_inspect_finding_fn finding_fn, void *context,
    mava_tum_inspect_check_result *result);

/* Counts the blocks, and the sum of their sizes in bytes, that mava_tum_<message>_decode_ext asks its allocator for
 * with `flags` (MAVA_TUM_ALIAS or 0). Returns MAVA_TUM_OK or MAVA_TUM_INSPECT_NO_SUCH_NAME. */
MAVA_TUM_API int32_t mava_tum_inspect_memory(const char *message, const uint8_t *data, uint64_t length, uint32_t flags,
    uint64_t *block_count, uint64_t *block_bytes);

/* ---- guess ----------------------------------------------------------------------------------------------- */

/* A message that the bytes can be. */
typedef struct mava_tum_inspect_candidate {
    const char *message;     /* its name, valid as long as the library is loaded */
    uint64_t unknown_bytes;  /* of fields, at any depth, that it does not have; tags and lengths included */
    uint64_t unknown_fields; /* how many these are */
    uint64_t odd_forms;      /* forms that this library never writes: over-long varints, texts that are no UTF-8, ... */
    uint32_t absent_fields;  /* of the message itself */
} mava_tum_inspect_candidate;

/* Finds the messages as which the bytes decode with result 0: at most `capacity`, at `candidates`, the likeliest first:
 * fewest unknown bytes, unknown fields, odd forms and absent fields, in this order. Returns their number, which may be
 * above `capacity`; 40 at most. */
MAVA_TUM_API uint32_t mava_tum_inspect_guess(
    const uint8_t *data, uint64_t length, mava_tum_inspect_candidate *candidates, uint32_t capacity);

/* ---- print ----------------------------------------------------------------------------------------------- */

/* Forms. */
enum {
    MAVA_TUM_INSPECT_WORDS = 0, /* names and values without quotes and commas */
    MAVA_TUM_INSPECT_JSON = 1   /* as `mava-tum decode --json` prints many messages */
};

/* A value that is about to be printed. */
typedef struct mava_tum_inspect_value {
    const char *record;  /* the message that has the field: "session_data" */
    const char *path;    /* "session_data.field_5", "qos[2].field_3" */
    uint32_t number;     /* of the field */
    int32_t kind;        /* MAVA_TUM_INSPECT_VARINT to _TEXT; _TEXT_ARRAY: one text of the array */
    int32_t address;     /* MAVA_TUM_INSPECT_NO_ADDRESS, _IPV4 or _IPV6 */
    const uint8_t *data; /* the value on the wire */
    uint64_t length;     /* of it, in bytes */
} mava_tum_inspect_value;

/* Returns a NUL-terminated text to print instead of the value, or null for the value itself. The text is copied before
 * the next call. */
typedef const char *(*mava_tum_inspect_redact_fn)(const mava_tum_inspect_value *value, void *context);

/* Prints a message on one line into `buffer`, of `capacity` bytes, NUL included, without a line end: the verdict, and
 * the fields that are present, up to a fault. `form` is MAVA_TUM_INSPECT_WORDS or _JSON. `redact_fn` may be null.
 * Control characters are escaped. Unknown fields are left out. Returns MAVA_TUM_OK, MAVA_TUM_INSPECT_NO_SUCH_NAME or
 * MAVA_TUM_INSPECT_CUT. A line that is cut ends before a value, with " ..."; JSON is complete and has a member "cut".
 * If not even the verdict fits, the line is empty. */
MAVA_TUM_API int32_t mava_tum_inspect_print(const char *message, const uint8_t *data, uint64_t length, int32_t form,
    mava_tum_inspect_redact_fn redact_fn, void *context, char *buffer, uint64_t capacity);

/* ---- compare --------------------------------------------------------------------------------------------- */

/* A field that two messages have in different ways. */
typedef struct mava_tum_inspect_difference {
    const char *path;   /* "session_data.field_5", "qos[2]"; of an unknown field "#99" */
    const char *first;  /* its value as text, which may be truncated; null: only the second message has it */
    const char *second; /* null: only the first has it */
} mava_tum_inspect_difference;

/* Receives a difference. Its pointers are valid until the callback returns. A return value other than 0 stops. */
typedef int32_t (*mava_tum_inspect_difference_fn)(const mava_tum_inspect_difference *difference, void *context);

/* Compares two messages by the values that a decode keeps: other bytes for the same values are no difference. Calls
 * `difference_fn`, which may be null, in the order of the first message; fields that only the second has come last. A
 * record that only one message has is a difference, and so is each of its fields. Unknown fields are compared if both
 * have them in the same order. `difference_count` may be null. Returns MAVA_TUM_OK, also with differences,
 * MAVA_TUM_INSPECT_STOPPED, MAVA_TUM_INSPECT_MALFORMED or MAVA_TUM_INSPECT_NO_SUCH_NAME. */
MAVA_TUM_API int32_t mava_tum_inspect_compare(const char *message, const uint8_t *first, uint64_t first_length,
    const uint8_t *second, uint64_t second_length, mava_tum_inspect_difference_fn difference_fn, void *context,
    uint64_t *difference_count);

#ifdef __cplusplus
}
#endif

#endif
