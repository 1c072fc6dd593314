// A record that lies inside another one, to be changed: the base of the editor classes, one for each message.
#ifndef MAVA_TUM_CPP_RECORD_EDITOR_HPP
#define MAVA_TUM_CPP_RECORD_EDITOR_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/block_list.hpp"
#include "mava_tum/cpp/encoding.hpp"

namespace mava_tum::cpp
{

// Valid as long as the record that it was obtained from stays where it is and as it is. What it is set to is copied,
// with memory of the record that owns all of it.
template <class Derived, class Record>
class record_editor : public encoding<Derived>
{
public:
    // The codec's record lies somewhere else.
    static constexpr bool holds_record = false;

    // `blocks` is the list of the record that owns all of it.
    record_editor(Record &record, block_list *blocks) noexcept : record_(&record), blocks_(blocks) {}

    // To be read only.
    typename codec_of<Record>::view view() const noexcept
    {
        return typename codec_of<Record>::view(*record_);
    }

    // The same, where a function takes a view.
    operator typename codec_of<Record>::view() const noexcept
    {
        return view();
    }

    // For the C functions.
    const Record &c_record() const noexcept
    {
        return *record_;
    }

    // For what the setters do not do. Pointers set here are never released by the owner.
    Record &mutable_c_record() const noexcept
    {
        return *record_;
    }

    // Where the setters take their memory.
    block_list *own_blocks() const noexcept
    {
        return blocks_;
    }

private:
    Record *record_;
    block_list *blocks_;
};

} // namespace mava_tum::cpp

#endif
