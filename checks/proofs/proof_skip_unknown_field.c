// src/codec/skip_unknown_field.cpp, line by line. What differs, and why: README.md.
#include "proof_skip_unknown_field.h"

/*@
  requires input: span(at, end);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures step: \result.next == stepped(at, end, bytes) && \result.failure == 0;
*/
static struct field_read step_over(const uint8_t *at, const uint8_t *end, uint32_t bytes)
{
    if (bytes > (uint64_t)(end - at))
        return (struct field_read){end, 0};
    return (struct field_read){at + bytes, 0};
}

/*@
  requires input: span(at, end);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures cut: \result.next == \null ==> varint_is_cut(at, end) && \result.failure == -1;
  ensures position: \result.next != \null ==> inside(at, \result.next, end) && is_varint(at, \result.next - at) &&
    \result.failure == 0;
*/
static struct field_read skip_varint(const uint8_t *at, const uint8_t *end)
{
    const struct number_read32 varint = proof_read_varint32(at, end);
    if (varint.next == NULL)
        return (struct field_read){NULL, -1};
    return (struct field_read){varint.next, 0};
}

/*@
  requires input: span(at, end);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures cut: \result.next == \null ==> varint_is_cut(at, end) && \result.failure == -1;
  ensures position: \result.next != \null ==> inside(at, \result.next, end) && \result.failure == 0;
  ensures step: \result.next != \null ==> \exists integer n; 1 <= n <= end - at && is_varint(at, n) &&
    \result.next == stepped(at + n, end, varint32_value(at, n));
*/
static struct field_read skip_length_delimited(const uint8_t *at, const uint8_t *end)
{
    const struct number_read32 length = proof_read_length_varint(at, end);
    if (length.next == NULL)
        return (struct field_read){NULL, -1};
    return step_over(length.next, end, length.value);
}

struct field_read proof_skip_unknown_field(uint32_t type, const uint8_t *at, const uint8_t *end)
{
    switch (type) {
    case 0:
        return skip_varint(at, end);
    case 1:
        return step_over(at, end, 8);
    case 2:
        return skip_length_delimited(at, end);
    case 5:
        return step_over(at, end, 4);
    default:
        return (struct field_read){NULL, -2};
    }
}
