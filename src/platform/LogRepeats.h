/// @file
/// Keeping a message that comes again and again from flooding a terminal.
#ifndef ZOGLES_PLATFORM_LOGREPEATS_H
#define ZOGLES_PLATFORM_LOGREPEATS_H

#include <cstddef>
#include <cstdint>

/// Remembers the last few different messages. Each is let through once a second; what comes more
/// often is counted. Allocates nothing and asks for no time of its own.
class LogRepeats {
public:
    /// What becomes of a message.
    struct Verdict {
        bool isShown;
        unsigned int heldBack; ///< how many like it were not shown since the last that was
    };

    /// Judges the next message.
    /// @param message a number that stands for its tag and text
    /// @param now milliseconds since some fixed time
    Verdict Judge(std::uint64_t message, std::int64_t now);

private:
    struct Entry {
        std::uint64_t message;
        std::int64_t shownAt;
        unsigned int heldBack;
        bool isUsed;
    };

    Entry& FindOrReplace(std::uint64_t message);

    static constexpr size_t entryCount = 32;

    Entry entries[entryCount] = {};
};

#endif
