// The contracts of the walk along an array: src/codec/array_run.h.
#ifndef PROOF_ARRAY_RUN_H
#define PROOF_ARRAY_RUN_H

#include "proof_wire_read.h"

#include <stdbool.h>

struct run_position {
    const uint8_t *at;
    const uint8_t *end;
    uint32_t field_number;
};

enum follower { follower_element, follower_other_field, follower_truncated };

struct run_count {
    uint64_t elements;
    bool is_whole;
};

/*@
  // A position apart from the input that it walks along.
  predicate is_position(struct run_position *position) =
    \valid(position) && span(position->at, position->end) &&
    \separated(position, position->at + (0 .. position->end - position->at - 1));
*/

/*@
  requires position: is_position(position);
  terminates \true;
  exits \false;
  assigns position->at;
  ensures outside: \result.data == \null ==> position->at == \null && \result.length == 0;
  ensures inside: \result.data != \null ==> inside(\old(position->at), \result.data, position->end);
  ensures fits: \result.data != \null ==> \result.length <= position->end - \result.data;
  ensures readable: \result.data != \null ==> \valid_read(\result.data + (0 .. \result.length - 1));
  ensures behind: \result.data != \null ==> position->at == \result.data + \result.length;
  ensures length: \result.data != \null ==>
    \result.length == varint32_value(\old(position->at), \result.data - \old(position->at));
*/
struct payload proof_run_element(struct run_position *position);

/*@
  requires position: is_position(position);
  requires counted: !varint_is_cut(position->at, position->end);
  terminates \true;
  exits \false;
  assigns position->at;
  ensures inside: inside(\old(position->at), position->at, position->end);
  ensures whole: is_varint(\old(position->at), position->at - \old(position->at));
*/
void proof_run_step_over_tag(struct run_position *position);

/*@
  requires position: is_position(position);
  terminates \true;
  exits \false;
  assigns position->at;
  ensures answer: \result == follower_element || \result == follower_other_field || \result == follower_truncated;
  ensures stays: \result != follower_element ==> position->at == \old(position->at);
  ensures at_end: \old(position->at) == position->end ==> \result == follower_other_field;
  ensures truncated: \result == follower_truncated ==> varint_is_cut(\old(position->at), position->end);
  ensures inside: \result == follower_element ==> inside(\old(position->at), position->at, position->end);
  ensures element: \result == follower_element ==>
    is_varint(\old(position->at), position->at - \old(position->at)) &&
    varint32_value(\old(position->at), position->at - \old(position->at)) / 8 == position->field_number;
  ensures other_field: \result == follower_other_field && \old(position->at) != position->end ==>
    \exists integer n; 1 <= n <= position->end - \old(position->at) && is_varint(\old(position->at), n) &&
      varint32_value(\old(position->at), n) / 8 != position->field_number;
*/
enum follower proof_run_next(struct run_position *position);

/*@
  requires input: span(at, end);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures whole: \result.is_whole ==> 1 <= \result.elements <= end - at;
  ensures truncated: !\result.is_whole ==> \result.elements == 0;
*/
struct run_count proof_count_run(const uint8_t *at, const uint8_t *end, uint32_t field_number);

#endif
