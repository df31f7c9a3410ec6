#include "platform/LogRepeats.h"

namespace {

constexpr std::int64_t pause = 1000; // milliseconds

} // namespace

LogRepeats::Verdict LogRepeats::Judge(std::uint64_t message, std::int64_t now) {
    Entry& entry = FindOrReplace(message);
    if (entry.isUsed && now - entry.shownAt < pause) {
        ++entry.heldBack;
        return {false, 0};
    }
    const unsigned int heldBack = entry.heldBack;
    entry = {message, now, 0, true};
    return {true, heldBack};
}

// The message's entry or, emptied, the one that was shown longest ago.
LogRepeats::Entry& LogRepeats::FindOrReplace(std::uint64_t message) {
    Entry* oldest = &entries[0];
    for (Entry& entry : entries) {
        if (entry.isUsed && entry.message == message) {
            return entry;
        }
        if (!entry.isUsed || (oldest->isUsed && entry.shownAt < oldest->shownAt)) {
            oldest = &entry;
        }
    }
    *oldest = {};
    return *oldest;
}
