/// @file
/// The platform log, with the platform's own interface. Where the platform has one, it is used.
#ifndef ZOGLES_PLATFORM_LOG_H
#define ZOGLES_PLATFORM_LOG_H

#if defined(__ANDROID__)
#include <android/log.h>
#else

/// Writes a message to stderr as "E/Tag: message", each line of it by one write.
///
/// The environment variable ANDROID_LOG_TAGS, read at the first call, says what is shown: entries
/// "tag:priority" set apart by blanks or commas, where the priority is the least one shown (one of
/// V D I W E F or its number, or S for none) and the tag * stands for every tag not named. If a tag
/// appears twice, the last entry applies. Entries with an unknown priority are ignored. The default
/// is "*:V". A message that is not shown is not formatted.
///
/// Messages longer than 4,000 bytes are cut.
/// @return the number of bytes written, 0 for a message not shown, or a negative number
// NOLINTBEGIN(bugprone-reserved-identifier): the platform's own name
extern "C" __attribute__((visibility("default"), format(printf, 3, 4))) int
__android_log_print(int prio, const char* tag, const char* fmt, ...);
// NOLINTEND(bugprone-reserved-identifier)

#endif

/// The priorities in use, with the platform's numbers. The library logs at verbose, warning and
/// error.
enum LogPriority : int {
    LogVerbose = 2,
    LogDebug = 3,
    LogWarning = 5,
    LogError = 6,
    LogSilent = 8, ///< for filters: nothing is logged at it
};

/// Logs that memory was refused.
inline void LogOutOfMemory(const char* tag) {
    __android_log_print(LogError, tag, "out of memory\n");
}

#endif
