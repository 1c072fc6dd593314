// A record that lies somewhere else, to be read: the base of the view classes, one for each message.
#ifndef MAVA_TUM_CPP_RECORD_VIEW_HPP
#define MAVA_TUM_CPP_RECORD_VIEW_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/encoding.hpp"
#include "mava_tum/cpp/memory.hpp"

#include <optional>

namespace mava_tum::cpp
{

// What the view of an absent record shows. The field's own place need not be empty: a decode that fails inside of a
// nested record leaves there what came before the fault, and does not mark the record present.
template <class Record>
inline constexpr Record absent_record{};

// Like an optional: true when the field it came from is present. All fields of an absent record are absent, so a chain
// of them need not be tested link by link. Valid as long as the record it refers to stays where it is and as it is.
template <class Derived, class Record>
class record_view : public encoding<Derived>
{
public:
    // The codec's record lies somewhere else.
    static constexpr bool holds_record = false;

    // Of an absent record.
    record_view() noexcept : record_view(absent_record<Record>, false) {}

    // Any record of the codec can be read through a view.
    explicit record_view(const Record &record, bool present = true) noexcept
        : record_(present ? &record : &absent_record<Record>), present_(present)
    {
    }

    // What it refers to would end with the statement.
    record_view(const Record &&, bool = true) = delete;

    bool has_value() const noexcept
    {
        return present_;
    }

    explicit operator bool() const noexcept
    {
        return present_;
    }

    const Derived &operator*() const &noexcept
    {
        return static_cast<const Derived &>(*this);
    }

    Derived operator*() const &&noexcept
    {
        return static_cast<const Derived &>(*this);
    }

    const Derived *operator->() const noexcept
    {
        return static_cast<const Derived *>(this);
    }

    // A deep copy that takes its blocks from `source`; nothing when a block is refused. Of an absent record: one
    // without content.
    std::optional<typename codec_of<Record>::owner> clone(const memory &source = memory()) const noexcept
    {
        std::optional<typename codec_of<Record>::owner> copy(std::in_place, source);
        if (copy->copy_from(static_cast<const Derived &>(*this)) != result::ok)
            copy.reset();
        return copy;
    }

    // This one, as of an owner or an editor.
    Derived view() const noexcept
    {
        return static_cast<const Derived &>(*this);
    }

    // For the C functions. Of an absent record: one without content.
    const Record &c_record() const noexcept
    {
        return *record_;
    }

private:
    const Record *record_;
    bool present_;
};

} // namespace mava_tum::cpp

#endif
