// How a record's layout is written down and compared, on machines with 64-bit pointers.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <initializer_list>

struct member_layout {
    const char *name;
    std::size_t offset;
    std::size_t size;
    std::size_t alignment;
    std::size_t expected_offset;
    std::size_t expected_size;
};

// A member of the type that the test calls `record`: where it stands and how large it is, and both as they have to be.
#define MEMBER(name, expected_offset, expected_size)                                                                   \
    member_layout                                                                                                      \
    {                                                                                                                  \
#name, offsetof(record, name), sizeof(record::name), alignof(decltype(record::name)), expected_offset,         \
            expected_size                                                                                              \
    }

// `members` are all members in order: a gap that alignment does not explain means that one is missing.
inline void expect_layout(std::size_t size, std::size_t alignment, std::size_t expected_size,
    std::size_t expected_alignment, std::initializer_list<member_layout> members)
{
    if (sizeof(void *) != 8)
        GTEST_SKIP() << "the numbers are those of 64-bit pointers";
    EXPECT_EQ(size, expected_size);
    EXPECT_EQ(alignment, expected_alignment);
    std::size_t end = 0;
    for (const member_layout &member : members) {
        EXPECT_EQ(member.offset, member.expected_offset) << member.name;
        EXPECT_EQ(member.size, member.expected_size) << member.name;
        const bool is_reached = member.offset >= end && member.offset < end + member.alignment;
        EXPECT_TRUE(is_reached) << "a member is missing before " << member.name;
        end = member.offset + member.size;
    }
    EXPECT_LT(size - end, alignment) << "a member is missing at the end";
}
