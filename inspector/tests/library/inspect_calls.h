// Calls the inspector's C functions for tests: bytes in, strings and vectors out.
#pragma once

#include "mava_tum_inspect.h"
#include "support/hex.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace mava_tum_test
{

// ---- explain ----

struct explained {
    std::string lines; // as from format_line, each with a line end
    mava_tum_inspect_verdict verdict;
};

inline explained explain(const char *message, const byte_vector &input)
{
    struct listing {
        const byte_vector &input;
        std::string lines;
    } listing{input, ""};
    explained result;
    const auto add_line = [](const mava_tum_inspect_line *line, void *context) {
        auto &written = *static_cast<struct listing *>(context);
        char text[512];
        EXPECT_LT(mava_tum_inspect_format_line(line, written.input.data(), text, sizeof(text)), sizeof(text));
        written.lines += std::string(text) + "\n";
        return 0;
    };
    EXPECT_EQ(mava_tum_inspect_explain(message, input.data(), input.size(), add_line, &listing, &result.verdict),
        MAVA_TUM_OK);
    result.lines = listing.lines;
    return result;
}

inline mava_tum_inspect_verdict judge(const char *message, const byte_vector &input)
{
    mava_tum_inspect_verdict verdict;
    EXPECT_EQ(mava_tum_inspect_judge(message, input.data(), input.size(), &verdict), MAVA_TUM_OK);
    return verdict;
}

// ---- check ----

struct finding {
    int32_t kind;
    uint64_t offset;
    uint64_t found;
    uint64_t allowed;
    std::string path;
    std::string text;
};

struct checked {
    std::vector<finding> findings;
    mava_tum_inspect_check_result result;

    bool has(int32_t kind) const
    {
        for (const finding &told : findings)
            if (told.kind == kind)
                return true;
        return false;
    }

    // One line each.
    std::string texts() const
    {
        std::string lines;
        for (const finding &told : findings)
            lines += told.text + "\n";
        return lines;
    }
};

inline checked check(const char *adapter, const byte_vector &input)
{
    checked all;
    const auto add_finding = [](const mava_tum_inspect_finding *told, void *context) {
        static_cast<checked *>(context)->findings.push_back(
            {told->kind, told->offset, told->found, told->allowed, told->path, told->text});
        return 0;
    };
    EXPECT_EQ(mava_tum_inspect_check(adapter, input.data(), input.size(), UINT64_MAX, add_finding, &all, &all.result),
        MAVA_TUM_OK);
    EXPECT_EQ(all.result.finding_count, all.findings.size());
    return all;
}

} // namespace mava_tum_test
