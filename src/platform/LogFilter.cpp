// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "platform/LogFilter.h"

#include <cstring>

namespace {

constexpr char separators[] = " \t\n,";

constexpr int noPriority = 0;

// A letter in either case, a digit, or * for the default. Digits from 8 mean verbose, as on the
// platform.
int PriorityOf(char letter, int bare) {
    if (letter == '*') {
        return bare;
    }
    if (letter >= '0' && letter <= '9') {
        return letter - '0' < LogSilent ? letter - '0' : LogVerbose;
    }
    constexpr char letters[] = "vdiwefs"; // from verbose to silent
    static_assert(LogVerbose + sizeof(letters) - 2 == LogSilent);
    const char* found = strchr(letters, letter | 0x20);
    return found == nullptr ? noPriority : LogVerbose + static_cast<int>(found - letters);
}

} // namespace

LogFilter::LogFilter(const char* expression)
    : leastOfOthers(LogVerbose), ruleCount(0), textLength(0), rules(), text() {
    if (expression == nullptr) {
        return;
    }
    for (expression += strspn(expression, separators); *expression != '\0';
         expression += strspn(expression, separators)) {
        const size_t length = strcspn(expression, separators);
        AddEntry(expression, length);
        expression += length;
    }
}

void LogFilter::AddEntry(const char* entry, size_t length) {
    const char* end = entry + length;
    const char* found = static_cast<const char*>(memchr(entry, ':', length));
    const char* colon = found == nullptr ? end : found;
    const size_t tagLength = static_cast<size_t>(colon - entry);
    const bool isForOthers = tagLength == 1 && *entry == '*';

    // A bare tag shows all of its messages; a bare * leaves verbose ones out.
    int least = isForOthers ? LogDebug : LogVerbose;
    if (colon != end) {
        least = colon + 1 == end ? noPriority : PriorityOf(colon[1], least);
    }
    if (least == noPriority) {
        return;
    }
    if (isForOthers) {
        leastOfOthers = least;
    } else {
        AddRule(entry, tagLength, least);
    }
}

void LogFilter::AddRule(const char* tag, size_t tagLength, int least) {
    if (tagLength == 0 || ruleCount == maxRules || tagLength >= maxText - textLength) {
        return;
    }
    char* copy = text + textLength;
    memcpy(copy, tag, tagLength);
    textLength += tagLength + 1; // the table starts zeroed, so the terminator is there
    rules[ruleCount++] = {copy, least};
}

int LogFilter::LeastFor(const char* tag) const {
    for (size_t i = ruleCount; i > 0; --i) { // if a tag appears twice, the last entry applies
        if (strcmp(rules[i - 1].tag, tag) == 0) {
            return rules[i - 1].least;
        }
    }
    return leastOfOthers;
}
