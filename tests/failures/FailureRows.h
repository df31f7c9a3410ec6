// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The conditions under which operations fail, as rows of a table.
#ifndef ZOGLES_TESTS_FAILURES_FAILUREROWS_H
#define ZOGLES_TESTS_FAILURES_FAILUREROWS_H

#include "support/RequestFixture.h"

class ConditionGLTest;
using Step = std::function<void(ConditionGLTest&)>;
using Operation = std::function<int(ConditionGLTest&)>;

/// A condition, and what the operation returns, logs and changes under it.
struct Row {
    std::string name; ///< the condition
    Step prepare;
    Step fault; ///< spoils the request or sets a fault
    Operation run;
    int code;
    Log log;            ///< without verbose lines
    std::string change; ///< of ConditionGLTest::State: "+pool -font "
    Step check;

    Row(std::string condition, Step before, Step wrong, Operation operation, int result, Log lines,
        std::string difference = "", Step checks = {})
        : name(std::move(condition)), prepare(std::move(before)), fault(std::move(wrong)),
          run(std::move(operation)), code(result), log(std::move(lines)),
          change(std::move(difference)), check(std::move(checks)) {}
};
using Rows = std::vector<Row>;

Rows SurfaceRows();
Rows DrawingRows();
Rows TextRows();

class ConditionGLTest : public RequestFixture, public ::testing::WithParamInterface<Row> {
public:
    void SetUp() override;

    /// Resets the request and all faults, and makes every font show A and B only.
    void Restore();

    /// Restores, and gives the client a window and unused buffers.
    void EndCondition();

    /// What exists, a word each.
    std::set<std::string> State() const;

    /// The texture that the text renderer drew with.
    GLuint DrawnTexture() const { return surface->osdText ? surface->osdText->fontTexture : 0; }

    void Bound() { Bind(); }
    void WithFont();
    void WithAll(); ///< all components, and a buffer
    void WindowLost();
    void WithoutPool();

    std::vector<std::string> calls; ///< the operation's
};
using C = ConditionGLTest;

inline harness::LogLine Line(const char* tag, const std::string& text, int priority = 6) {
    return {priority, tag, text};
}
template <typename Items>
Items operator+(Items first, const Items& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

inline Step Fail(const char* call, int nth = 1) {
    return [=](C&) { harness::FailCall(call, nth); };
}
inline Step RefuseAllocation(int nth) {
    return [=](C&) { harness::RefuseAllocation(nth); };
}
inline Step And(const Step& first, const Step& second) {
    return [=](C& c) { first(c), second(c); };
}
inline Step Without(const std::string& part) {
    return [=](C& c) { c.missing = part; };
}
template <typename Value>
Step Set(Value Request::*member, Value value) {
    return [=](C& c) { c.*member = value; };
}

#endif
