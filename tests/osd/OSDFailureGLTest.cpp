// What the four drawing operations do when they cannot draw.

#include "support/SurfaceFixture.h"

#include <regex>

namespace {

using Surface = ZoGLDrawSurface;

constexpr tagZoRectInfo rect = {0, 0, 8, 8};
constexpr tagZoColorRGBA color = {1, 1, 1, 1};
constexpr unsigned char pixel[4] = {255, 255, 255, 255};

int Blit(Surface& surface, unsigned int source, unsigned int destination) {
    const tagZoBlitInfo info = {source, destination, rect, rect};
    return surface.ZoBlit(&info);
}

int DisplayBitmap(Surface& surface) {
    const tagZoBitmapInfo info = {pixel, ZO_FORMAT_RGBA8888, 0, 0, 1, 1, rect};
    return surface.ZoDisplayBitmap(&info);
}

const struct Operation {
    const char* tag;
    const char* initLine;
    bool needsPool;
    std::string fills; ///< of each whether the renderer exists by then: y or n
    std::function<int(Surface&, unsigned int handle)> run;
    std::function<bool(Surface&)> hasRenderer;
} operations[] = {
    {"OSDRect", "OSD Rect init fail ", true, "nyy",
     [](Surface& s, unsigned int handle) { return s.ZoDrawRect(handle, &rect, &color); },
     [](Surface& s) { return s.osdRect != nullptr; }},
    {"OSDBlit", "OSD blit init fail ", true, "nn",
     [](Surface& s, unsigned int handle) { return Blit(s, handle, ZO_WINDOW_HANDLE); },
     [](Surface& s) { return s.osdBlit != nullptr; }},
    {"OSDFrame", "OSD frame init fail ", true, "nyy",
     [](Surface& s, unsigned int handle) { return s.ZoDisplayFBO(handle, &rect, &rect); },
     [](Surface& s) { return s.osdFrame != nullptr; }},
    {"OSDBitmap", "OSD bitmap fail ", false, "y",
     [](Surface& s, unsigned int) { return DisplayBitmap(s); },
     [](Surface& s) { return s.osdBitmap != nullptr; }},
};

const harness::LogLine noBuffer = {6, "ZoGLDrawSurface", "There is not the fbo\n"};

Log InitFailure(const Operation& operation, int code, Log before) {
    if (code == ZO_PROGRAM_FAILED) {
        before.push_back({6, operation.tag, "create shader program fail"});
    }
    before.push_back({6, "ZoGLDrawSurface", operation.initLine + std::to_string(code) + "\n"});
    return before;
}

const struct {
    const char* call;
    const char* line;
} programFaults[] = {
    {"glCreateShader", "Create shader fail\n"},
    {"glCompileShader", "Could not compile shader #:\n\n"},
    {"glCreateProgram", "create program fail\n"},
    {"glLinkProgram", "Could not link program:\n\n"},
};

class OSDFailureGLTest : public SurfaceFixture {
protected:
    void ExpectNothingDrawn(const std::function<int()>& run, int code, const Log& log) {
        const auto countDraws = [] {
            return harness::CountOf("glDrawArrays") + harness::CountOf("glDrawElements") +
                   harness::CountOf("glClear");
        };
        harness::Current().infoLogLength = 0; // the driver's own words are not at issue
        const int before = countDraws();
        EXPECT_EQ(run(), code);
        EXPECT_EQ(countDraws(), before);
        Log lines = harness::TakeLog();
        for (harness::LogLine& line : lines) {
            line.text = std::regex_replace(line.text, std::regex("shader \\d+"), "shader #");
        }
        EXPECT_EQ(lines, log);
    }

    // On a fresh surface, the operation fails as told, and succeeds the next time.
    void ExpectFailure(const Operation& operation, const std::function<void()>& setFault, int code,
                       const Log& log, bool hasRenderer = false) {
        surface->ResetGLSource();
        Bind();
        const std::string live = harness::DescribeLive();
        const auto run = [&] { return operation.run(*surface, ZO_WINDOW_HANDLE); };
        setFault();
        ExpectNothingDrawn(run, code, log);
        EXPECT_EQ(operation.hasRenderer(*surface), hasRenderer);
        EXPECT_EQ(harness::DescribeLive() == live, !hasRenderer);
        EXPECT_EQ(run(), ZO_SUCCESS);
        EXPECT_EQ(harness::TakeLog(), Log());
    }
};

} // namespace

TEST_F(OSDFailureGLTest, DrawsNothingAndLeavesTheSurfaceUsable) {
    const harness::LogLine noMemory = {6, "ZoGLDrawSurface", "out of memory\n"};
    const harness::LogLine noFill = {6, "ZoGLDrawSurface", "memset_s_func failed, rc = 34"};
    for (const Operation& operation : operations) {
        SCOPED_TRACE(operation.tag);
        int fill = 0;
        for (const char hasRenderer : operation.fills) {
            SCOPED_TRACE("fill " + std::to_string(++fill));
            ExpectFailure(
                operation, [&] { harness::FailCall("memset_s", fill); }, ZO_FAILURE, {noFill},
                hasRenderer == 'y');
        }
        for (const auto& fault : programFaults) {
            SCOPED_TRACE(fault.call);
            ExpectFailure(
                operation, [&] { harness::FailCall(fault.call); }, ZO_PROGRAM_FAILED,
                InitFailure(operation, ZO_PROGRAM_FAILED, {{6, "ShaderProgram", fault.line}}));
        }
        ExpectFailure(
            operation, [] { harness::RefuseAllocation(1); }, ZO_FAILURE,
            InitFailure(operation, ZO_FAILURE, {noMemory}));
        ExpectFailure(
            operation, [] { harness::RefuseAllocation(2); }, ZO_PROGRAM_FAILED,
            InitFailure(operation, ZO_PROGRAM_FAILED, {}));
        const auto refusePool = [&] {
            surface->fboManager.reset();
            harness::RefuseAllocation(1);
        };
        if (operation.needsPool) {
            ExpectFailure(operation, refusePool, ZO_FAILURE, {noMemory});
        }
    }
}

TEST_F(OSDFailureGLTest, RefusesNullsBeforeAnythingElse) {
    const std::function<int(Surface&)> requests[] = {
        [](Surface& s) { return s.ZoDrawRect(ZO_WINDOW_HANDLE, nullptr, &color); },
        [](Surface& s) { return s.ZoDrawRect(ZO_WINDOW_HANDLE, &rect, nullptr); },
        [](Surface& s) { return s.ZoBlit(nullptr); },
        [](Surface& s) { return s.ZoDisplayFBO(ZO_WINDOW_HANDLE, nullptr, &rect); },
        [](Surface& s) { return s.ZoDisplayFBO(ZO_WINDOW_HANDLE, &rect, nullptr); },
        [](Surface& s) { return s.ZoDisplayBitmap(nullptr); },
    };
    for (const auto& request : requests) {
        SCOPED_TRACE(&request - requests);
        ExpectNothingDrawn([&] { return request(*surface); }, ZO_INVALID_PARAM,
                           {{6, "ZoGLDrawSurface", "param is nullptr\n"}});
        EXPECT_EQ(surface->fboManager, nullptr);
    }
}

TEST_F(OSDFailureGLTest, RefusesUnknownHandlesBeforeMakingARenderer) {
    Bind();
    for (const unsigned int handle : {0U, 1U, 0x10009U, 0x20000U, ZO_NO_HANDLE}) {
        for (const Operation& operation : operations) {
            SCOPED_TRACE(std::string(operation.tag) + " " + std::to_string(handle));
            if (operation.needsPool) {
                ExpectNothingDrawn([&] { return operation.run(*surface, handle); },
                                   ZO_INVALID_PARAM, {noBuffer});
                EXPECT_FALSE(operation.hasRenderer(*surface));
            }
        }
        for (const unsigned int source : {ZO_WINDOW_HANDLE, handle}) { // looked up first
            ExpectNothingDrawn([&] { return Blit(*surface, source, handle); }, ZO_INVALID_PARAM,
                               {noBuffer});
            EXPECT_EQ(surface->osdBlit, nullptr);
        }
    }
}

TEST_F(OSDFailureGLTest, FailsInAnOrderlyWayWithoutAWindow) {
    for (const char* when : {"before binding", "after destruction"}) {
        for (const Operation& operation : operations) {
            SCOPED_TRACE(std::string(operation.tag) + " " + when);
            ExpectNothingDrawn([&] { return operation.run(*surface, ZO_WINDOW_HANDLE); },
                               ZO_PROGRAM_FAILED,
                               InitFailure(operation, ZO_PROGRAM_FAILED,
                                           {{6, "ShaderProgram", "Create shader fail\n"}}));
            EXPECT_FALSE(operation.hasRenderer(*surface));
            if (operation.needsPool) {
                ExpectNothingDrawn([&] { return operation.run(*surface, 0x10001); },
                                   ZO_INVALID_PARAM, {noBuffer});
            }
        }
        Bind();
        for (const Operation& operation : operations) {
            EXPECT_EQ(operation.run(*surface, ZO_WINDOW_HANDLE), ZO_SUCCESS);
        }
        surface->ZoDestoryGLWindowSurface();
        harness::TakeLog();
    }
}
