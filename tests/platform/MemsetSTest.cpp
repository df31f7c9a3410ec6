// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "platform/MemsetS.h"

#include <cerrno>
#include <cstdint>
#include <gtest/gtest.h>

TEST(MemsetSTest, FillsWhatFitsAndChangesNothingElse) {
    constexpr size_t half = SIZE_MAX / 2;
    const struct {
        bool hasDestination;
        size_t destSize;
        int value;
        size_t count;
        int code;
        const char* left;
    } cases[] = {
        {true, 4, 'x', 4, 0, "xxxx"},
        {true, 4, 'x', 3, 0, "xxxd"},
        {true, 4, 'x', 0, 0, "abcd"},
        {true, 4, 0x100 | 'y', 4, 0, "yyyy"},
        {true, half, 'x', 1, 0, "xbcd"},
        {true, 4, 'x', 5, ERANGE, "abcd"},
        {true, 4, 'x', SIZE_MAX, ERANGE, "abcd"},
        {true, half + 1, 'x', 1, ERANGE, "abcd"},
        {false, 4, 'x', 4, EINVAL, "abcd"},
    };
    for (const auto& c : cases) {
        char bytes[] = "abcd";
        void* destination = c.hasDestination ? bytes : nullptr;
        EXPECT_EQ(memset_s(destination, c.destSize, c.value, c.count), c.code) << c.count;
        EXPECT_STREQ(bytes, c.left) << c.count;
    }
}
