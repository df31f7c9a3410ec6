#include "platform/LogFilter.h"

#include <cstring>

namespace {

constexpr char separators[] = " \t\n,";

// The platform's numbers, from "verbose" to "silent".
constexpr int priorityVerbose = 2;
constexpr int priorityDebug = 3;
constexpr int prioritySilent = 8;

// An entry without a priority, or with one that is none, yields the value that the platform takes
// for a bare tag.
int LeastPriority(const char* colon, const char* end, int bare) {
    if (colon == end || colon + 1 == end) {
        return bare;
    }
    switch (colon[1] | 0x20) { // lower case, for letters
    case 'v':
        return priorityVerbose;
    case 'd':
        return priorityDebug;
    case 'i':
        return 4;
    case 'w':
        return 5;
    case 'e':
        return 6;
    case 'f':
        return 7;
    case 's':
        return prioritySilent;
    default:
        return bare;
    }
}

} // namespace

LogFilter::LogFilter(const char* expression)
    : leastOfOthers(priorityVerbose), ruleCount(0), textLength(0), rules(), text() {
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
    if (tagLength == 1 && *entry == '*') {
        leastOfOthers = LeastPriority(colon, end, priorityDebug);
        return;
    }
    if (tagLength == 0 || ruleCount == maxRules || tagLength >= maxText - textLength) {
        return;
    }
    char* tag = text + textLength;
    memcpy(tag, entry, tagLength);
    textLength += tagLength + 1; // the table starts zeroed, so the terminator is there
    rules[ruleCount++] = {tag, LeastPriority(colon, end, priorityVerbose)};
}

bool LogFilter::Shows(int priority, const char* tag) const {
    for (size_t i = ruleCount; i > 0; --i) { // of two entries for one tag the later holds
        if (strcmp(rules[i - 1].tag, tag) == 0) {
            return priority >= rules[i - 1].least && rules[i - 1].least < prioritySilent;
        }
    }
    return priority >= leastOfOthers && leastOfOthers < prioritySilent;
}
