// A record that lies inside another one, to be changed: the base of the editor classes, one for each message.
#ifndef MAVA_TUM_CPP_RECORD_EDITOR_HPP
#define MAVA_TUM_CPP_RECORD_EDITOR_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/block_list.hpp"
#include "mava_tum/cpp/encoding.hpp"

#include <optional>

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

    // Replaces all fields by a deep copy of those of `source`, also by those of an absent one, which has none. When a
    // block is refused, the record stays as it is.
    result copy_from(const typename codec_of<Record>::view &source) const noexcept
    {
        Record copy{};
        const auto code = static_cast<result>(call_codec(codec_of<Record>::duplicate, &copy, &source.c_record(),
            blocks_ == nullptr ? nullptr : blocks_->allocator(), blocks_ == nullptr ? nullptr : blocks_->context()));
        if (code == result::ok)
            *record_ = copy;
        return code;
    }

    // The same, also of a record that ends with the statement.
    result copy_from(const typename codec_of<Record>::owner &source) const noexcept
    {
        return copy_from(source.view());
    }

    // A deep copy that takes its blocks from `source`; nothing when a block is refused.
    std::optional<typename codec_of<Record>::owner> clone(const memory &source = memory()) const noexcept
    {
        return view().clone(source);
    }

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
