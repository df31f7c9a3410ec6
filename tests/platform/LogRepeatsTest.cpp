#include "platform/LogRepeats.h"

#include "platform/Log.h"

#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

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

TEST(LogRepeatsTest, KeepsATerminalReadable) {
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_TRUE(grantpt(terminal) == 0 && unlockpt(terminal) == 0);
    const int client = open(ptsname(terminal), O_RDWR | O_NOCTTY);
    const pid_t child = fork();
    if (child == 0) {
        dup2(client, STDERR_FILENO);
        for (int i = 0; i < 100; ++i) {
            __android_log_print(LogError, "Tag", "again %d", i % 2);
        }
        usleep(1100000);
        __android_log_print(LogError, "Tag", "again %d", 1);
        exit(0); // not _exit, which forgets the counts of coverage
    }
    close(client);
    std::string shown;
    char buffer[4096];
    for (ssize_t size = 0; (size = read(terminal, buffer, sizeof(buffer))) > 0;) {
        shown.append(buffer, static_cast<size_t>(size));
    }
    waitpid(child, nullptr, 0);
    close(terminal);
    EXPECT_EQ(shown, "E/Tag: again 0\r\nE/Tag: again 1\r\n"
                     "E/Tag: again 1 (and 49 times more)\r\n");
}
