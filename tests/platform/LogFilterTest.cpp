// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "platform/LogFilter.h"

#include <gtest/gtest.h>
#include <string>

namespace {

constexpr int fatal = 7;
constexpr int silent = fatal + 1;
constexpr int none = silent + 1;

struct Case {
    std::string expression;
    std::string tag;
    int least; ///< the least priority that is shown
};

} // namespace

TEST(LogFilterTest, ShowsFromTheLeastPriorityOn) {
    std::string fullTable; // of 32 entries
    for (int i = 0; i < 33; ++i) {
        fullTable += 'T' + std::to_string(i) + ":S ";
    }
    const std::string longTag(1023, 'x'); // fills the storage for tags
    const Case cases[] = {
        {"", "A", 2},
        {"A:D B:I C:W D:E", "C", 5},
        {"*:F", "A", 7},
        {"*:D", "A", 3},
        {"*:I", "A", 4},
        {"*:1", "A", 1},
        {"A:S,B:E", "B", 6},
        {"A:8", "A", 2}, // digits from 8 mean verbose
        {"*:S", "A", none},
        {"*:w", "A", 5},
        {"A:E", "AB", 2},
        {"AB:E", "A", 2},
        {"A:S *:W", "B", 5},
        {"*:S\tA:V\nB:E", "B", 6},
        {"A:S A:E", "A", 6},
        {"*:S A", "A", 2},
        {"*A:S", "A", 2},
        {"*:S A:*", "A", 2},
        {"*:E A:x", "A", 6},
        {"*", "A", 3},
        {"*:", "A", 2},
        {":E", "", 2},
        {fullTable, "T31", none},
        {fullTable, "T32", 2},
        {longTag + ":S A:S", longTag, none},
        {longTag + "x:S A:S", longTag + "x", 2},
        {longTag + "x:S A:S", "A", none},
    };
    for (const Case& c : cases) {
        std::string expression = c.expression;
        const LogFilter filter(expression.c_str());
        expression.assign(expression.size(), '-'); // the filter keeps a copy
        for (int priority = 1; priority <= silent; ++priority) {
            EXPECT_EQ(filter.Shows(priority, c.tag.c_str()), priority >= c.least)
                << c.expression << ", " << c.tag << ", " << priority;
        }
    }
    EXPECT_TRUE(LogFilter(nullptr).Shows(2, "A"));
}
