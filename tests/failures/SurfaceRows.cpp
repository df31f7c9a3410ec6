// Binding, and the buffers' handles.

#include "FailureRows.h"

namespace {

const harness::LogLine creating = SurfaceLine("Create GL window\n", 5);
const harness::LogLine recreating = SurfaceLine("ReCreate GL window\n", 5);
const harness::LogLine initialised = Line("EGLManager", "Initialized EGL v#", 2);
const harness::LogLine releasing = Line("EGLManager", "EGLManager::EGLRelease", 2);
const harness::LogLine released = Line("EGLManager", "EGL Context has been released\n", 5);
const harness::LogLine complete = Line("FBOManager", "Framebuffer complete.\n");
constexpr char full[] = "num of the FBO more than max num 16 \n";

harness::LogLine Egl(const char* text) {
    return Line("EGLManager", text);
}

Rows BindingRows() {
    const auto fails = [](const char* code) {
        return SurfaceLine(std::string("Create openGLES window surface fail ") + code + "\n");
    };
    const Log notCurrent = {Egl("egl make current failed: 0x3000"),
                            SurfaceLine("Make current EGL context fail 100\n")};
    const harness::LogLine noSurface = Egl("eglCreateWindowSurface error: 0x3000");
    const Operation bind = &C::BindWindow;
    const Operation refresh = [](C& c) { return c.surface->ZoRefreshOnSrceen(); };
    const Step bindHalf = [](C& c) {
        harness::FailCall("eglMakeCurrent");
        c.BindWindow();
    };
    const Step expectNothing = [](C&) { EXPECT_EQ(harness::DescribeLive(), ""); };
    return {
        Row("bind_null_window", {}, Without("window"), bind, ZO_INVALID_PARAM,
            {SurfaceLine("native window is NULL\n")}),
        Row("first_bind_no_display", &C::WindowLost, Fail("eglGetDisplay"), bind, ZO_NO_DISPLAY,
            {creating, Egl("eglGetDisplay failed: 0x3000"), fails("1"), releasing, released}),
        Row("first_bind_display_not_initialised", &C::WindowLost, Fail("eglInitialize"), bind,
            ZO_DISPLAY_INIT_FAILED,
            {creating, Egl("eglInitialize failed: 0x3000"), fails("2"), releasing}),
        Row("first_bind_no_configuration", &C::WindowLost, Fail("eglChooseConfig"), bind,
            ZO_NO_CONFIG,
            {creating, initialised, Egl("eglChooseConfig error: 0x3000"), fails("3"), releasing}),
        Row("first_bind_context_refused", &C::WindowLost, Fail("eglCreateContext"), bind,
            ZO_NO_CONTEXT,
            {creating, initialised, Egl("eglCreateContext error: 0x3000"), fails("4"), releasing}),
        Row("first_bind_surface_refused", &C::WindowLost, Fail("eglCreateWindowSurface"), bind,
            ZO_NO_WINDOW_SURFACE,
            {creating, initialised, noSurface, releasing, fails("5"), releasing, released}),
        Row("bind_again_surface_refused", &C::WithAll, Fail("eglCreateWindowSurface"), bind,
            ZO_NO_WINDOW_SURFACE,
            {recreating, noSurface, releasing, fails("5"), releasing, released},
            "-bitmap -blit -bound -buffer10001:8x6 -face -font -frame -pool -rect -standard:2 "
            "-styled:empty -text ",
            expectNothing),
        // The next attempt finds the surface and releases it; the one after that succeeds.
        Row("first_bind_context_not_made_current", {}, Fail("eglMakeCurrent"), bind, ZO_FAILURE,
            Log{creating, initialised} + notCurrent, "+half ", {}, {}, ZO_FAILURE),
        Row("bind_surface_exists", bindHalf, {}, bind, ZO_FAILURE,
            {creating, Egl("surface already created"), fails("100"), releasing}, "-half ",
            expectNothing),
        Row("bind_again_context_not_made_current", &C::WithAll, Fail("eglMakeCurrent"), bind,
            ZO_FAILURE, Log{recreating} + notCurrent),
        Row("first_bind_driver_without_names", &C::WindowLost,
            And(Fail("glGetString", 1), And(Fail("glGetString", 2), Fail("glGetString", 3))), bind,
            ZO_SUCCESS,
            {creating, initialised, Egl("GL Version = \n"), Egl("GL Vendor = \n"),
             Egl("GL Renderer = \n"), complete},
            "+bound +buffer10001:8x6 +pool "),
        Row("refresh_unbound", {}, {}, refresh, ZO_NO_EGL_MANAGER,
            {SurfaceLine("eglManager no init\n")}, "", {}, &C::Bound),
        Row("refresh_swap_fails", &C::Bound, Fail("eglSwapBuffers"), refresh, ZO_SUCCESS, {}),
    };
}

void FillTable(C& c) {
    for (unsigned int i = 1; i <= 16; ++i) {
        c.surface->SaveFboInfo(0x20000 + i, 4, 3, GL_RGBA);
    }
}

void FillPool(C& c) {
    c.Bind();
    for (unsigned int i = 1; i <= 15; ++i) {
        EXPECT_EQ(c.SurfaceFixture::CreateBuffer(4, 4), 0x10000 + i);
    }
}

Rows CreateBufferRows() {
    const Operation create = &C::CreateBuffer;
    const char* created = "+buffer10001:4x3 +record10001:4x3 ";
    const Step withoutPool = [](C& c) {
        c.Bind();
        c.surface->fboManager.reset();
    };
    const Step expectUntouched = [](C& c) { EXPECT_EQ(c.size[0], c.untouched); };
    const Step expectNoCall = [](C& c) {
        EXPECT_TRUE(c.size[0] == c.untouched && c.calls.empty());
    };
    const Step expectRgba = [](C& c) {
        c.handle = c.size[0];
        EXPECT_EQ(c.DrawRect(), ZO_SUCCESS);
        EXPECT_EQ(c.surface->fboInfo[0].format, GL_RGBA);
        EXPECT_EQ(c.Read(c.handle).At(3, 2), (Pixel{255, 255, 255, 255}));
    };
    Rows rows = {
        Row("create_buffer_null_handle", withoutPool, Without("handle"), create, ZO_INVALID_PARAM,
            {SurfaceLine("param is invalid\n")}),
        Row("create_buffer_unbound", &C::WindowLost, {}, create, ZO_FAILURE,
            {SurfaceLine("no window is bound, FBO is not created\n")}, "", expectUntouched,
            &C::Bound),
        Row("create_buffer_unknown_format", &C::Bound, Set(&Request::format, 8), create, ZO_SUCCESS,
            {SurfaceLine("Color format is invalid 8\n"), complete}, created, expectRgba),
        Row("create_buffer_no_memory_for_pool",
            [](C& c) {
                c.Bound();
                c.surface->fboManager.reset();
            },
            RefuseAllocation(1), create, ZO_FAILURE, {SurfaceLine("out of memory\n")}),
        Row("create_buffer_pool_full", FillPool, {}, create, ZO_NO_FREE_FBO,
            {Line("FBOManager", full), SurfaceLine("Create FBO fail 15\n")}, "", expectNoCall,
            [](C& c) {
                c.DestroyBuffer();
                c.surface->ZoDestoryGLFBO(0x10007);
            }),
    };
    const std::string unable = "Unable to set up render Target: ";
    const std::pair<int, std::string> verdicts[] = {
        {0x8CD6, unable + "RFRAMEBUFFER_INCOMPLETE_ATTACHMENT\n"},
        {0x8CD7, unable + "GL_FRAMEBUFFER_INCOMPLETE_MISSING_ATTACHMENT\n"},
        {0x8CD9, unable + "GL_FRAMEBUFFER_INCOMPLETE_DIMENSIONS\n"},
        {0x8CDD, unable + "GL_FRAMEBUFFER_UNSUPPORTED\n"},
        {0x8D56, "Framebuffer incomplete: Unknown error.\n"},
    };
    for (const auto& [status, line] : verdicts) {
        const Step setStatus = [verdict = status](C&) {
            harness::Current().framebufferStatus = verdict;
        };
        rows.push_back(Row("create_buffer_status_" + std::to_string(status), &C::Bound, setStatus,
                           create, ZO_SUCCESS, {Line("FBOManager", line)}, created));
    }
    return rows;
}

Rows HandleRows() {
    const Log tooMany =
        Log(15, complete) +
        Log{Line("FBOManager", full), SurfaceLine("Reset FBO source fail 15, fbo 131088\n")};
    std::string restored;
    for (const char digit : std::string("123456789abcdef")) {
        restored += std::string("+buffer2000") + digit + ":4x3 ";
    }
    const Operation save = [](C& c) {
        c.surface->SaveFboInfo(0x30000, 4, 3, GL_RGBA);
        return ZO_SUCCESS;
    };
    const Operation restore = [](C& c) { return c.surface->ResetFboSource(); };
    const Step boundWithTable = [](C& c) {
        c.Bind();
        FillTable(c);
    };
    const Step freeEntries = [](C& c) {
        for (const unsigned int handle : {0x20001U, 0x20005U, 0x20007U}) {
            c.surface->RemoveFBO(handle);
        }
    };
    const Log opened = {creating, initialised, Egl("GL Version = #\n"), Egl("GL Vendor = #\n"),
                        Egl("GL Renderer = #\n")};
    Rows rows = {
        Row("destroy_buffer_no_pool", &C::WindowLost, {}, &C::DestroyBuffer, ZO_NO_FBO_MANAGER,
            {SurfaceLine("FBO manager is nullptr\n")}, "", {}, &C::Bound),
        Row("record_buffer_table_full", FillTable, {}, save, ZO_SUCCESS, {SurfaceLine(full)}, "",
            {}, freeEntries),
        Row("restore_buffers_unbound", &C::WindowLost, {}, restore, ZO_FAILURE,
            {SurfaceLine("no window is bound, FBOs are not restored\n")}, "", {}, &C::Bound),
        Row("restore_buffers_pool_full", boundWithTable, {}, restore, ZO_NO_FREE_FBO, tooMany,
            restored, {}, freeEntries),
        Row("first_bind_buffer_not_restored", FillTable, {}, &C::BindWindow, ZO_SUCCESS,
            opened + tooMany, "+bound " + restored + "+pool ", {},
            [](C& c) { c.surface->ZoDestoryGLFBO(0x20001); }),
    };
    for (const unsigned int handle : {0U, ZO_WINDOW_HANDLE, 0x10002U, ZO_NO_HANDLE}) {
        const std::string line = "FBO is not exist fboHandleIndex " + std::to_string(handle) + "\n";
        rows.push_back(Row("destroy_buffer_unknown_handle_" + std::to_string(handle), &C::WithAll,
                           Set(&Request::buffer, handle), &C::DestroyBuffer, ZO_SUCCESS,
                           {Line("FBOManager", line), SurfaceLine(line)}));
    }
    return rows;
}

} // namespace

Rows SurfaceRows() {
    return BindingRows() + CreateBufferRows() + HandleRows();
}
