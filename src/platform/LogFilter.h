// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Selects the messages that the log shows.
#ifndef ZOGLES_PLATFORM_LOGFILTER_H
#define ZOGLES_PLATFORM_LOGFILTER_H

#include "platform/Log.h"

#include <cstddef>

/// A filter in the platform's syntax (see Log.h), parsed once into a fixed table. A query allocates
/// nothing and makes no system call.
class LogFilter {
public:
    /// @param expression the filter's text, copied; null and "" show everything. Entries after the
    ///     first 32, and tags that exceed 1,024 bytes in total, are ignored.
    explicit LogFilter(const char* expression);

    /// Whether a message of that priority under that tag is shown.
    bool Shows(int priority, const char* tag) const {
        const int least = ruleCount == 0 ? leastOfOthers : LeastFor(tag);
        return priority >= least && least < LogSilent;
    }

private:
    struct Rule {
        const char* tag;
        int least;
    };

    int LeastFor(const char* tag) const;
    void AddEntry(const char* entry, size_t length);
    void AddRule(const char* tag, size_t tagLength, int least);

    static constexpr size_t maxRules = 32;
    static constexpr size_t maxText = 1024;

    int leastOfOthers;
    size_t ruleCount;
    size_t textLength;
    Rule rules[maxRules];
    char text[maxText];
};

#endif
