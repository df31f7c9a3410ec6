// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/Interpose.h"

#include <cstdarg>
#include <cstdio>

// Captures the log for comparison.
extern "C" int __android_log_print(int prio, const char* tag, const char* fmt, ...) {
    const harness::Outside outside;
    va_list args;
    va_start(args, fmt);
    char text[4096];
    const int length = vsnprintf(text, sizeof(text), fmt, args);
    va_end(args);
    harness::Current().log.push_back({prio, tag, text});
    return length;
}

extern "C" int memset_s(void* dest, size_t destSize, int value, size_t count) {
    INTERPOSE(memset_s, (dest, destSize, value, count));
    constexpr int refused = 34;
    return isFailing ? refused : real(dest, destSize, value, count);
}
