// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "platform/Log.h"

#if !defined(__ANDROID__)

#include "platform/LogFilter.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace {

constexpr size_t maxMessage = 4000;
constexpr size_t maxTag = 64;

char PriorityLetter(int priority) {
    constexpr char letters[] = "VDIWEF";
    constexpr int last = LogVerbose + static_cast<int>(sizeof(letters)) - 2;
    return priority < LogVerbose || priority > last ? '?' : letters[priority - LogVerbose];
}

// One write for a whole line, so that lines of several processes do not mix.
int WriteLine(const char* prefix, size_t prefixLength, const char* text, size_t length) {
    char line[maxTag + 8 + maxMessage + 1];
    memcpy(line, prefix, prefixLength);
    memcpy(line + prefixLength, text, length);
    line[prefixLength + length] = '\n';
    ssize_t written = 0;
    do {
        written = write(STDERR_FILENO, line, prefixLength + length + 1);
    } while (written < 0 && errno == EINTR); // a signal interrupted the wait for a full pipe
    return static_cast<int>(written);
}

int WriteMessage(int priority, const char* tag, const char* text) {
    char prefix[maxTag + 8];
    const int prefixLength = snprintf(prefix, sizeof(prefix), "%c/%.*s: ", PriorityLetter(priority),
                                      static_cast<int>(maxTag), tag);
    int total = 0;
    do {
        const size_t length = strcspn(text, "\n");
        const int written = WriteLine(prefix, static_cast<size_t>(prefixLength), text, length);
        if (written < 0) {
            return written;
        }
        total += written;
        text += length;
        text += *text == '\n' ? 1 : 0;
    } while (*text != '\0');
    return total;
}

// Separate from the filter, so that a message that is not shown does not use this stack space.
__attribute__((noinline, format(printf, 3, 0))) int Format(int priority, const char* tag,
                                                           const char* format, va_list arguments) {
    char text[maxMessage + 1];
    const int length = vsnprintf(text, sizeof(text), format, arguments);
    return length < 0 ? length : WriteMessage(priority, tag, text);
}

} // namespace

extern "C" int __android_log_print(int prio, const char* tag, const char* fmt, ...) {
    static const LogFilter filter(getenv("ANDROID_LOG_TAGS"));
    const char* shownTag = tag == nullptr ? "" : tag;
    if (!filter.Shows(prio, shownTag)) {
        return 0;
    }
    va_list arguments;
    va_start(arguments, fmt);
    const int written = Format(prio, shownTag, fmt, arguments);
    va_end(arguments);
    return written;
}

#endif
