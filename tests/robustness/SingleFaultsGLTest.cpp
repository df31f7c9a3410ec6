// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Makes each call that can fail fail once, in sessions that use every operation.

#include "Session.h"
#include "platform/Log.h"

#include <algorithm>

namespace {

constexpr char allocation[] = "allocation";

// What a step does when nothing fails.
struct Trace {
    std::map<std::string, int> calls; ///< how often each was made
    Log log;
    Image image; ///< of what the step drew on
};

// Calls that report a failure, return nothing useful, or need memory.
bool CanFail(const std::string& call) {
    constexpr const char* families[] = {
        "egl",       "FT_",       "memset_s", "glGen",      "glCreate",     "glGet",   "glCheck",
        "glCopyTex", "glCompile", "glLink",   "glTexImage", "glBufferData", allocation};
    return call != "FT_Set_Transform" &&
           std::any_of(std::begin(families), std::end(families),
                       [&](const char* family) { return call.rfind(family, 0) == 0; });
}

bool IsDocumented(const Step& step, int code) {
    return std::find(step.codes.begin(), step.codes.end(), code) != step.codes.end();
}

template <typename Atlas>
bool IsWholeOrEmpty(const std::shared_ptr<Atlas>& atlas) {
    return !atlas || atlas->texture == 0 || atlas->GetGlyphs().size() == charactersOfFont;
}

class SingleFaultsGLTest : public SessionFixture {
protected:
    Trace RunCleanly(const Step& step) {
        Trace trace;
        harness::Current().callCounts.clear();
        harness::TakeLog();
        int code = -1;
        trace.calls[allocation] = harness::CountAllocations([&] { code = Run(step); });
        EXPECT_EQ(code, ZO_SUCCESS) << step.name;
        trace.calls.insert(harness::Current().callCounts.begin(),
                           harness::Current().callCounts.end());
        trace.log = harness::TakeLog();
        trace.image = Look(step.drawing);
        if (eglGetCurrentContext() != EGL_NO_CONTEXT) {
            EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR)) << step.name;
        }
        return trace;
    }

    void ExpectUnchanged(const Session& session, const std::vector<Trace>& reference,
                         size_t steps) {
        for (size_t i = 0; i < steps; ++i) {
            EXPECT_TRUE(RunCleanly(session[i]).image.pixels == reference[i].image.pixels)
                << session[i].name;
        }
    }

    // One surface survives all faults, so the start of each session also shows that the fault before
    // it has no lasting effect.
    void FailEachCall(const Session& session) {
        std::vector<Trace> reference;
        for (const Step& step : session) {
            reference.push_back(RunCleanly(step));
        }
        for (size_t faulty = 0; faulty < session.size(); ++faulty) {
            for (const auto& [call, count] : reference[faulty].calls) {
                for (int nth = 1; CanFail(call) && nth <= count && !HasFailure(); ++nth) {
                    RunWithFault(session, reference, faulty, call, nth);
                }
            }
        }
        ExpectUnchanged(session, reference, session.size());
    }

    void RunWithFault(const Session& session, const std::vector<Trace>& reference, size_t faulty,
                      const std::string& call, int nth) {
        SCOPED_TRACE(std::string(session[faulty].name) + ", " + call + ' ' + std::to_string(nth));
        ExpectUnchanged(session, reference, faulty);
        const int code = Fail(session[faulty], reference[faulty], call, nth);
        ExpectStateAtRest();
        const bool hasFailed = code != ZO_SUCCESS;
        Repeat(session[faulty], hasFailed, reference[faulty]);
        for (size_t i = faulty + 1; i < session.size(); ++i) {
            const int next = Run(session[i]);
            EXPECT_TRUE(next == ZO_SUCCESS || (!hasFailed && IsDocumented(session[i], next)))
                << session[i].name << " returned " << next;
            const Image image = Look(session[i].drawing);
            EXPECT_TRUE(!hasFailed || image.pixels == reference[i].image.pixels) << session[i].name;
        }
        EXPECT_EQ(harness::DescribeLive(), "");
    }

    // Returns the step's code.
    int Fail(const Step& step, const Trace& usual, const std::string& call, int nth) {
        harness::TakeLog();
        if (call == allocation) {
            harness::RefuseAllocation(nth);
        } else {
            harness::FailCall(call, nth);
        }
        const int code = Run(step);
        harness::RefuseAllocation(0);
        harness::Current().faults.clear();
        EXPECT_TRUE(IsDocumented(step, code)) << "returned " << code;
        const Log log = harness::TakeLog();
        const auto isComplaint = [&](const harness::LogLine& line) {
            return line.priority == LogError &&
                   std::find(usual.log.begin(), usual.log.end(), line) == usual.log.end();
        };
        // A glyph that cannot be converted is left out.
        const bool mustLog = code != ZO_SUCCESS || call == "FT_Bitmap_Convert";
        EXPECT_TRUE(!mustLog || std::any_of(log.begin(), log.end(), isComplaint))
            << "returned " << code << " and logged " << ::testing::PrintToString(log);
        EXPECT_TRUE(code == ZO_SUCCESS || (IsWholeOrEmpty(surface->fontAtlas) &&
                                           IsWholeOrEmpty(surface->fontStyleAtlas)));
        return code;
    }

    void Repeat(const Step& step, bool hasFailed, const Trace& usual) {
        if (surface->eglManager && !surface->surfaceCreated) {
            EXPECT_EQ(Run(step), ZO_FAILURE) << "the first repetition only clears up";
        }
        EXPECT_EQ(Run(step), ZO_SUCCESS) << "repeated";
        const Image image = Look(step.drawing);
        EXPECT_TRUE(!hasFailed || image.pixels == usual.image.pixels);
    }

    // Whatever an operation returns.
    void ExpectStateAtRest() const {
        if (eglGetCurrentContext() == EGL_NO_CONTEXT) {
            EXPECT_FALSE(surface->surfaceCreated);
            return;
        }
        constexpr GLenum state[] = {GL_FRAMEBUFFER_BINDING, GL_ARRAY_BUFFER_BINDING,
                                    GL_TEXTURE_BINDING_2D, GL_BLEND};
        for (const GLenum binding : state) {
            GLint value = -1;
            glGetIntegerv(binding, &value);
            EXPECT_EQ(value, 0) << binding;
        }
    }
};

} // namespace

TEST_F(SingleFaultsGLTest, PreparedSessionSurvivesEachSingleFault) {
    FailEachCall(preparedSession);
}

TEST_F(SingleFaultsGLTest, FirstUsesSurviveEachSingleFault) {
    FailEachCall(firstUseSession);
}
