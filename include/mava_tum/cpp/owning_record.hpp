// A record that owns what it refers to: the base of the record classes, one for each message.
#ifndef MAVA_TUM_CPP_OWNING_RECORD_HPP
#define MAVA_TUM_CPP_OWNING_RECORD_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/block_list.hpp"
#include "mava_tum/cpp/encoding.hpp"

#include <optional>

namespace mava_tum::cpp
{

// Says that bytes fields are to point into the input instead of being copied. The input then outlives the record's
// content, and whatever the content is moved to.
struct alias_t {
    explicit alias_t() = default; // not from {}
};
inline constexpr alias_t alias{}; // to be written as the first argument

// Holds the codec's record itself and the list of its blocks. All blocks go back when the record is destroyed, decoded
// into, cleared or assigned to. Moving takes blocks and memory along: what is moved from is empty, and still usable.
template <class Derived, class Record>
class owning_record : public encoding<Derived>
{
    using message = codec_of<Record>;
    using blocks = std::conditional_t<message::owns_memory, block_list, no_blocks>;

public:
    // The codec's record is a member.
    static constexpr bool holds_record = true;

    // Without content; blocks will come from the heap.
    owning_record() noexcept : owning_record(memory()) {}

    // Without content; blocks will come from `source`.
    explicit owning_record(const memory &source) noexcept : blocks_(source) {}

    // Takes content, blocks and memory of `other`.
    owning_record(owning_record &&other) noexcept
        : record_(std::exchange(other.record_, Record{})), blocks_(std::move(other.blocks_))
    {
    }

    // Gives its own blocks back, and takes content, blocks and memory of `other`.
    owning_record &operator=(owning_record &&other) noexcept
    {
        if (this != &other) {
            blocks_ = std::move(other.blocks_);
            record_ = std::exchange(other.record_, Record{});
        }
        return *this;
    }

    // What the record held before is gone, whatever the result. After a failure it holds the fields before the fault.
    // `wire` must not lie in this record's own memory.
    result decode(bytes_argument wire) noexcept
    {
        return decode(wire, 0);
    }

    // The same, with bytes fields that point into `wire`, which therefore has to have a name.
    result decode(alias_t, bytes_view wire) noexcept
    {
        return decode(wire, MAVA_TUM_ALIAS);
    }

    // A deep copy of `source` with memory of this record, all of it or, when a block is refused, nothing: the record is
    // empty then. Bytes fields are copied also where `source` only points at them.
    result copy_from(const typename message::view &source) noexcept
    {
        if (&source.c_record() == &record_)
            return result::ok;
        clear();
        const auto code = static_cast<result>(
            call_codec(message::duplicate, &record_, &source.c_record(), blocks_.allocator(), blocks_.context()));
        if (code != result::ok)
            clear();
        return code;
    }

    // The same, also of a record that ends with the statement.
    result copy_from(const Derived &source) noexcept
    {
        return copy_from(source.view());
    }

    // A deep copy that takes its blocks from `source`; nothing when a block is refused.
    std::optional<Derived> clone(const memory &source = memory()) const noexcept
    {
        return view().clone(source);
    }

    // Copies all fields to new blocks and gives the old ones back, also those that setters replaced. The record then
    // owns its bytes fields, too. When a block is refused, it stays as it is. Does nothing if blocks do not go back.
    result compact() noexcept
    {
        if constexpr (message::owns_memory) {
            if (blocks_.source().is_monotonic())
                return result::ok;
            Derived copy(blocks_.source());
            if (copy.copy_from(view()) != result::ok)
                return result::no_memory;
            *this = std::move(copy);
        }
        return result::ok;
    }

    // Gives all blocks back. The record is as new.
    void clear() noexcept
    {
        record_ = Record{};
        blocks_.release_all();
    }

    // A view, for code that does not need to know the owner of the record.
    typename message::view view() const &noexcept MAVA_TUM_LIFETIMEBOUND
    {
        return typename message::view(record_);
    }
    typename message::view view() const && = delete; // the record ends with the statement: give it a name first

    // The same, where a function takes a view.
    operator typename message::view() const &noexcept MAVA_TUM_LIFETIMEBOUND
    {
        return view();
    }
    operator typename message::view() const && = delete; // the record ends with the statement: give it a name first

    // For the C functions, but not for the codec's free: the blocks are this object's.
    const Record &c_record() const &noexcept MAVA_TUM_LIFETIMEBOUND
    {
        return record_;
    }
    const Record &c_record() const && = delete; // the record ends with the statement: give it a name first

    // For what the setters do not do. Pointers set here are never released by this object: they may lead anywhere.
    Record &mutable_c_record() &noexcept MAVA_TUM_LIFETIMEBOUND
    {
        return record_;
    }

    // Where the setters take their memory; null for messages that need none.
    block_list *own_blocks() noexcept
    {
        return list_in(blocks_);
    }

protected:
    ~owning_record() = default; // no Derived is destroyed through this base

private:
    static block_list *list_in(block_list &list) noexcept
    {
        return &list;
    }

    static block_list *list_in(no_blocks &) noexcept
    {
        return nullptr;
    }

    result decode(bytes_view wire, std::uint32_t flags) noexcept
    {
        blocks_.release_all();
        return static_cast<result>(call_codec(
            message::decode, &record_, wire.data(), wire.size(), blocks_.allocator(), blocks_.context(), flags));
    }

    Record record_{};
    blocks blocks_;
};

} // namespace mava_tum::cpp

#endif
