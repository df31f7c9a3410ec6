#include "platform/Log.h"

#if !defined(__ANDROID__)

#include "platform/LogFilter.h"
#include "platform/LogRepeats.h"

#include <algorithm>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
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
    return static_cast<int>(write(STDERR_FILENO, line, prefixLength + length + 1));
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

// FNV-1a, see http://www.isthe.com/chongo/tech/comp/fnv/
std::uint64_t Hash(std::uint64_t hash, const char* text) {
    for (; *text != '\0'; ++text) {
        hash = (hash ^ static_cast<unsigned char>(*text)) * 0x100000001B3U;
    }
    return hash;
}

// A coarse clock is read without a system call, where there is one: Emscripten, for one, refuses it.
std::int64_t Milliseconds() {
    timespec time = {};
    if (clock_gettime(CLOCK_MONOTONIC_COARSE, &time) != 0) {
        clock_gettime(CLOCK_MONOTONIC, &time);
    }
    return std::int64_t{time.tv_sec} * 1000 + time.tv_nsec / 1000000;
}

// A person reads a terminal: it shows each message once a second. Files and pipes get all of them.
// What was held back is told when the message is next shown.
bool IsHeldBack(const char* tag, char* text, size_t length, size_t room) {
    static const bool isTerminal = isatty(STDERR_FILENO) == 1;
    if (!isTerminal) {
        return false;
    }
    thread_local LogRepeats repeats;
    const std::uint64_t message = Hash(Hash(0xCBF29CE484222325U, tag), text);
    const LogRepeats::Verdict verdict = repeats.Judge(message, Milliseconds());
    if (verdict.heldBack != 0) {
        length -= length != 0 && text[length - 1] == '\n' ? 1 : 0;
        snprintf(text + length, room - length, " (and %u times more)", verdict.heldBack);
    }
    return !verdict.isShown;
}

} // namespace

extern "C" int __android_log_print(int prio, const char* tag, const char* fmt, ...) {
    static const LogFilter filter(getenv("ANDROID_LOG_TAGS"));
    const char* shownTag = tag == nullptr ? "" : tag;
    if (!filter.Shows(prio, shownTag)) {
        return 0;
    }
    char text[maxMessage + 1];
    va_list args;
    va_start(args, fmt);
    const int length = vsnprintf(text, sizeof(text), fmt, args);
    va_end(args);
    if (length < 0) {
        return length;
    }
    const size_t shownLength = std::min(static_cast<size_t>(length), maxMessage);
    if (IsHeldBack(shownTag, text, shownLength, sizeof(text))) {
        return 0;
    }
    return WriteMessage(prio, shownTag, text);
}

#endif
