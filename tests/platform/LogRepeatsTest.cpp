#include "platform/LogRepeats.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

using Answers = std::vector<std::pair<bool, unsigned int>>;

Answers Judge(LogRepeats& repeats,
              const std::vector<std::pair<std::uint64_t, std::int64_t>>& asked) {
    Answers answers;
    for (const auto& [message, now] : asked) {
        const LogRepeats::Verdict verdict = repeats.Judge(message, now);
        answers.emplace_back(verdict.isShown, verdict.heldBack);
    }
    return answers;
}

} // namespace

TEST(LogRepeatsTest, ShowsAMessageOnceASecondAndCountsTheRest) {
    LogRepeats repeats;
    EXPECT_EQ(
        Judge(repeats, {{7, 50}, {7, 51}, {0, 52}, {7, 1049}, {7, 1050}, {7, 1051}, {0, 1052}}),
        (Answers{{true, 0}, {false, 0}, {true, 0}, {false, 0}, {true, 2}, {false, 0}, {true, 0}}));
}

TEST(LogRepeatsTest, ForgetsTheMessageShownLongestAgo) {
    LogRepeats repeats;
    for (std::uint64_t message = 0; message < 33; ++message) {
        EXPECT_TRUE(repeats.Judge(message, static_cast<std::int64_t>(message)).isShown);
    }
    EXPECT_EQ(Judge(repeats, {{1, 40}, {32, 41}, {0, 42}}),
              (Answers{{false, 0}, {false, 0}, {true, 0}}));
}
