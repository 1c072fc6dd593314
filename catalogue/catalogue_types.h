// The catalogue's types: messages, application records, adapters.
#pragma once

#include "mava_tum.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>

namespace mava_tum_catalogue
{

// ---- messages ----

enum class field_kind : uint8_t { varint, fixed32, bytes, text, record, record_array, text_array };

// How to show an address. IPv4: every fixed32 field; its four bytes on the wire are in network order. IPv6: bytes; a
// value whose length is not 16 (L13) is not shown as an address.
enum class address_kind : uint8_t { none, ipv4, ipv6 };

struct message;

struct field {
    uint32_t number; // field n owns bit n-1 of the presence mask
    const char *name;
    field_kind kind;
    uint32_t value_bits; // varint: 32 or 64, fixed32: 32, else 0
    address_kind address;
    std::size_t member_offset; // in the record: uint32_t, uint64_t, mava_tum_bytes, char *, a record, a pointer
    std::size_t count_offset;  // record_array, text_array: of the uint32_t count; else 0
    const message *nested;     // record, record_array; else null
};

// A message's functions, with the same parameters for all messages: arguments that its own function does not have are
// dropped.
struct codec_calls {
    int32_t (*decode)(void *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx,
        uint32_t flags);
    uint64_t (*encode)(const void *record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments,
        uint32_t *segment_count, uint32_t flags);
    int32_t (*duplicate)(void *destination, const void *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx);
    void (*free)(void *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags);
};

struct message {
    const char *name;  // as in mava_tum_<name>
    std::size_t place; // in tables::messages
    std::size_t record_bytes;
    std::size_t mask_offset;
    std::size_t mask_bytes;        // 1, 2 or 4
    bool holds_bytes;              // at any depth: the alias bit means something
    bool allocates;                // at any depth: a decode may call the allocator
    std::span<const field> fields; // field n is fields[n - 1]

    // In catalogue_calls.cpp: programs that only read the tables need not link the codec.
    const codec_calls &calls() const;

    int32_t decode(void *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx,
        uint32_t flags) const
    {
        return calls().decode(record, data, length, alloc_fn, alloc_ctx, flags);
    }

    uint64_t encode(const void *record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments,
        uint32_t *segment_count, uint32_t flags) const
    {
        return calls().encode(record, buffer, length, segments, segment_count, flags);
    }

    int32_t duplicate(void *destination, const void *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx) const
    {
        return calls().duplicate(destination, source, alloc_fn, alloc_ctx);
    }

    void free(void *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags) const
    {
        calls().free(record, release_fn, release_ctx, flags);
    }
};

// Of each codec record: `place` in tables::messages, and its functions `decode`, `encode`, `duplicate` and `release` as
// the headers declare them.
template <class Record>
struct message_row;

template <class Record>
constexpr message describe_message(const char *name, std::span<const field> fields, bool holds_bytes, bool allocates)
{
    return {name, message_row<Record>::place, sizeof(Record), offsetof(Record, presence_mask),
        sizeof(Record::presence_mask), holds_bytes, allocates, fields};
}

// ---- application records ----

enum class member_kind : uint8_t {
    number,   // unsigned, 8 to 64 bits
    numbers,  // an array of unsigned numbers, all of it used
    ipv4,     // uint32_t in host byte order
    ipv6,     // 16 bytes
    bytes,    // an array of uint8_t, all of it used
    text,     // a char array with a NUL
    record,   // another record, inline
    records,  // an array of records, of which the first `count` are used
    texts,    // the same of texts
    count,    // of the elements of an array
    reserved, // neither read nor written
};

struct record_layout;

struct record_member {
    std::string_view name; // a NUL follows
    member_kind kind;
    std::size_t offset;
    std::size_t size_bytes;
    std::size_t element_bytes; // of arrays of elements; otherwise the same as size_bytes
    // records, texts: the member that counts; otherwise 0.
    std::size_t count_offset;
    std::size_t count_bytes;
    const record_layout *layout; // record, records: of the record, or of an element; otherwise null

    constexpr std::size_t slots() const
    {
        return size_bytes / element_bytes;
    }
};

enum class limit_kind : uint8_t {
    number, // `allowed`: bits of the member
    text,   // characters that are taken, without the NUL
    bytes,  // bytes of the array
    record, // its fields arrive in `members`
    list,   // elements; of each, the fields arrive in `members`
    texts   // elements; of each, `text_characters` characters are taken
};

// The member that receives a field of a message, and how much of the value.
struct member_limit {
    uint32_t number; // of the field in its message
    limit_kind kind;
    uint64_t allowed;
    const char *member;       // its name; null for a record whose fields have members of their own
    std::size_t offset;       // of the member in its application record, or in the element of a list
    std::size_t member_bytes; // its size; of a list, of one element
    uint32_t only_with;       // other than 0: it arrives only when this field of the same record is there too
    uint32_t count_bits;      // list, texts: of the member that counts the elements
    std::size_t count_offset; // and where it is
    uint64_t text_characters;
    std::span<const member_limit> members;
};

struct record_layout {
    std::string_view name; // as in tum_nal_data_<name>
    std::size_t size_bytes;
    std::span<const record_member> members;
    std::span<const member_limit> limits; // empty where it is only sent
};

// The place of an application record in tables::records.
template <class Record>
inline constexpr std::size_t record_place = std::size_t(-1);

// ---- adapters ----

struct adapter_calls {
    uint64_t (*encode)(const void *record, uint8_t *buffer, uint32_t capacity);
    void (*decode)(const uint8_t *data, uint32_t length, void *record);
};

struct adapter {
    const char *name;  // as in tum_nal_data_gpb_encode_tum_<name>
    std::size_t place; // in tables::adapters
    const message *carried;
    const record_layout *sent; // one record has another layout for each direction
    const record_layout *received;
    uint32_t max_size; // bytes of its largest message, by its header

    const adapter_calls &calls() const;

    uint64_t encode(const void *record, uint8_t *buffer, uint32_t capacity) const
    {
        return calls().encode(record, buffer, capacity);
    }

    void decode(const uint8_t *data, uint32_t length, void *record) const
    {
        calls().decode(data, length, record);
    }
};

// ---- lists of types ----

template <class... Type>
struct type_list {
};

// Calls `visit` with a std::type_identity of each type.
template <class... Type, class Visit>
constexpr void for_each_type(type_list<Type...>, Visit visit)
{
    (visit(std::type_identity<Type>()), ...);
}

} // namespace mava_tum_catalogue
