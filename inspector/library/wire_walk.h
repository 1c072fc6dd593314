// A walk over wire bytes that makes every step of a decode, in the same order, and calls a visitor for each event. It
// needs the stack only: the depth of nesting is limited.
//
// The verdict is that of a decode with an allocator that never fails. With a failing allocator, or none, the decode may
// end earlier, with MAVA_TUM_NO_MEMORY.
#pragma once

#include "inspector/library/wire_event.h"

#include <cstdint>

namespace mava_tum_inspect
{

// Events are in the order of the bytes. A visitor need not handle all of them. After stop(), none follows.
class wire_visitor
{
public:
    bool is_stopped() const
    {
        return is_stopped_;
    }

    virtual void on_value(const occurrence &) {}   // varint, fixed32, bytes, text, element of an array of texts
    virtual void on_unknown(const occurrence &) {} // skipped
    virtual void on_record(const occurrence &) {}  // a nested record or an element of an array; its fields follow
    virtual void on_record_end(const occurrence &, uint32_t /*present*/) {} // `present`: the bits of its own mask
    // An array has been counted and obtained, and its elements follow. `first` is as far as its tag.
    virtual void on_run(const occurrence & /*first*/, uint64_t /*elements*/) {}
    virtual void on_undecoded(const occurrence &) {} // an entry of a run that is not whole: no element of it is decoded
    virtual void on_fault(const wire_fault &) {}
    virtual void on_unread(const extent &) {} // what a fault leaves unread

protected:
    ~wire_visitor() = default; // not virtual: the deleting destructor would call the C++ runtime library

    void stop()
    {
        is_stopped_ = true;
    }

private:
    bool is_stopped_ = false;
};

struct walk_result {
    fault_rule rule = fault_rule::none;
    uint64_t offset = 0;  // of the fault
    uint32_t present = 0; // the bits of the message's own mask
};

// `data` may be null when `length` is 0.
walk_result walk_message(
    const message_description &message, const uint8_t *data, uint64_t length, wire_visitor &visitor);

// The same for a record at `place`, as if it were a message: `depth` begins at 0, and `present` is its own. `parent` is
// the step into it; null: none.
walk_result walk_record(const message_description &record, const path_step *parent, const uint8_t *data,
    const extent &place, wire_visitor &visitor);

} // namespace mava_tum_inspect
