// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The log, with the platform's interface. Platforms that have this log use their own.
#ifndef ZOGLES_PLATFORM_LOG_H
#define ZOGLES_PLATFORM_LOG_H

#if defined(__ANDROID__)
#include <android/log.h>
#else

/// Writes a message to stderr as "E/Tag: message", with one write per line.
///
/// The environment variable ANDROID_LOG_TAGS selects the messages to show. It is read at the first
/// call and has entries "tag:priority", separated by blanks or commas. The priority is the lowest
/// one shown: V, D, I, W, E, F or its number, or S to show none. The tag * applies to every tag
/// without an entry. If a tag appears twice, the last entry applies. Entries with an unknown
/// priority are ignored. The default is "*:V". Messages that are not shown are not formatted.
///
/// Messages longer than 4,000 bytes are truncated.
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
    LogSilent = 8, ///< only for filters: no message has this priority
};

/// Logs that an allocation failed.
inline void LogOutOfMemory(const char* tag) {
    __android_log_print(LogError, tag, "out of memory\n");
}

#endif
