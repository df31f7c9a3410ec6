// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "platform/Log.h"

#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <gtest/gtest.h>
#include <signal.h>
#include <string>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using Writes = std::vector<std::string>;

// Runs `action` in a new process, since a process reads the filter once, and returns its writes to
// stderr. A pipe in packet mode keeps them apart.
Writes Log(const char* filter, const std::function<bool()>& action) {
    int ends[2];
    EXPECT_EQ(pipe2(ends, O_DIRECT), 0);
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDERR_FILENO);
        setenv("ANDROID_LOG_TAGS", filter, 1);
        exit(action() ? 0 : 1); // not _exit, which forgets the counts of coverage
    }
    close(ends[1]);
    Writes writes;
    char buffer[8192];
    for (ssize_t size = 0; (size = read(ends[0], buffer, sizeof(buffer))) > 0;) {
        writes.emplace_back(buffer, static_cast<size_t>(size));
    }
    close(ends[0]);
    int status = 1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    return writes;
}

} // namespace

TEST(LogTest, WritesEachLineOfAMessageAtOnce) {
    const std::string longTag(70, 't');
    const std::string whole(4000, 'm');
    const struct {
        int priority;
        const char* tag;
        std::string text;
        Writes writes;
    } cases[] = {
        {2, "Tag", "text", {"V/Tag: text\n"}},
        {3, "Tag", "text", {"D/Tag: text\n"}},
        {4, "Tag", "text", {"I/Tag: text\n"}},
        {5, "Tag", "text", {"W/Tag: text\n"}},
        {6, "Tag", "text\n", {"E/Tag: text\n"}},
        {7, "Tag", "text", {"F/Tag: text\n"}},
        {8, "Tag", "text", {"?/Tag: text\n"}},
        {6, nullptr, "text", {"E/: text\n"}},
        {6, "Tag", "", {"E/Tag: \n"}},
        {6, "T", "1\n\n2\n", {"E/T: 1\n", "E/T: \n", "E/T: 2\n"}},
        {6, "Tag", whole, {"E/Tag: " + whole + "\n"}},
        {6, "Tag", whole + "x", {"E/Tag: " + whole + "\n"}},
        {6, longTag.c_str(), "text", {"E/" + longTag.substr(0, 64) + ": text\n"}},
    };
    for (const auto& c : cases) {
        size_t size = 0;
        for (const std::string& line : c.writes) {
            size += line.size();
        }
        const Writes writes = Log("", [&] {
            return __android_log_print(c.priority, c.tag, "%s", c.text.c_str()) ==
                   static_cast<int>(size);
        });
        EXPECT_TRUE(writes == c.writes) << c.priority << ", " << c.text.size() << ": " << c.text;
    }
}

TEST(LogTest, NeitherFormatsNorWritesFilteredLines) {
    const char* unreadable = reinterpret_cast<const char*>(1);
    const Writes writes = Log("Quiet:S *:W", [&] {
        bool isRight = __android_log_print(6, "Quiet", "%s", unreadable) == 0 &&
                       __android_log_print(4, "Tag", "%s", unreadable) == 0;
        setenv("ANDROID_LOG_TAGS", "*:S", 1);
        isRight = isRight && __android_log_print(5, "Tag", "%d", 7) == 9;
        close(STDERR_FILENO);
        return isRight && __android_log_print(5, "Tag", "lost\nlost") == -1;
    });
    EXPECT_EQ(writes, Writes{"W/Tag: 7\n"});
}

TEST(LogTest, RepeatsAWriteThatASignalInterrupts) {
    Log("", [] {
        static int ends[2];
        static char page[4096];
        bool isRight = pipe2(ends, O_NONBLOCK) == 0;
        while (write(ends[1], page, sizeof(page)) > 0) {
        }
        fcntl(ends[1], F_SETFL, 0); // the next write waits until the handler empties the pipe
        dup2(ends[1], STDERR_FILENO);
        struct sigaction action = {};
        action.sa_handler = [](int) {
            while (read(ends[0], page, sizeof(page)) > 0) {
            }
        };
        sigaction(SIGALRM, &action, nullptr);
        const itimerval delay = {{0, 0}, {0, 20000}};
        setitimer(ITIMER_REAL, &delay, nullptr);
        isRight = isRight && __android_log_print(6, "Tag", "text") == 12;
        return isRight && read(ends[0], page, sizeof(page)) == 12;
    });
}
