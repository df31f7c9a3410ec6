// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Binding, and the buffers' handles.

#include "FailureRows.h"

namespace {

const harness::LogLine creating = SurfaceLine("Create GL window\n", 5);
const harness::LogLine recreating = SurfaceLine("ReCreate GL window\n", 5);
const harness::LogLine released = Line("EGLManager", "EGL Context has been released\n", 5);
const harness::LogLine complete = Line("FBOManager", "Framebuffer complete.\n");
constexpr char full[] = "num of the FBO more than max num 16 \n";

harness::LogLine Egl(const char* text) {
    return Line("EGLManager", text);
}
const Log unnamed = {Egl("GL Version = \n"), Egl("GL Vendor = \n"), Egl("GL Renderer = \n")};
const harness::LogLine noSurface = Egl("eglCreateWindowSurface error: 0x3000");

harness::LogLine BindFails(int code) {
    return SurfaceLine("Create openGLES window surface fail " + std::to_string(code) + "\n");
}

void WithoutNames(C&) {
    for (int nth = 1; nth <= 3; ++nth) {
        harness::FailCall("glGetString", nth);
    }
}

Rows BindingRows() {
    const Log notCurrent = {Egl("egl make current failed: 0x3000"),
                            SurfaceLine("Make current EGL context fail 100\n")};
    const Operation bind = &C::BindWindow;
    const Step bindHalf = [](C& c) {
        harness::FailCall("eglMakeCurrent");
        c.BindWindow();
    };
    const Step expectRefusal = [](C& c) { EXPECT_EQ(c.BindWindow(), ZO_FAILURE); };
    return {
        Row("bind_null_window", {}, Without("window"), bind, ZO_INVALID_PARAM,
            {SurfaceLine("native window is NULL\n")}),
        Row("first_bind_no_display", &C::WindowLost, Fail("eglGetDisplay"), bind, ZO_NO_DISPLAY,
            {creating, Egl("eglGetDisplay failed: 0x3000"), BindFails(1), released}),
        Row("first_bind_display_not_initialised", &C::WindowLost, Fail("eglInitialize"), bind,
            ZO_DISPLAY_INIT_FAILED, {creating, Egl("eglInitialize failed: 0x3000"), BindFails(2)}),
        Row("first_bind_no_configuration", &C::WindowLost, Fail("eglChooseConfig"), bind,
            ZO_NO_CONFIG, {creating, Egl("eglChooseConfig error: 0x3000"), BindFails(3)}),
        Row("first_bind_context_refused", &C::WindowLost, Fail("eglCreateContext"), bind,
            ZO_NO_CONTEXT, {creating, Egl("eglCreateContext error: 0x3000"), BindFails(4)}),
        Row("first_bind_surface_refused", &C::WindowLost, Fail("eglCreateWindowSurface"), bind,
            ZO_NO_WINDOW_SURFACE, {creating, noSurface, BindFails(5), released}),
        Row("bind_again_surface_refused", &C::WithAll, Fail("eglCreateWindowSurface"), bind,
            ZO_NO_WINDOW_SURFACE, {recreating, noSurface, BindFails(5), released},
            "-bitmap -blit -bound -buffer10001:8x6 -face -font -frame -pool -rect -standard:2 "
            "-styled:empty -text "),
        // The next attempt finds the surface and releases it; the one after that succeeds.
        Row("first_bind_context_not_made_current", {}, Fail("eglMakeCurrent"), bind, ZO_FAILURE,
            Log{creating} + notCurrent, "+half ", expectRefusal),
        Row("bind_surface_exists", bindHalf, {}, bind, ZO_FAILURE,
            {creating, Egl("surface already created"), BindFails(100)}, "-half "),
        Row("bind_again_context_not_made_current", &C::WithAll, Fail("eglMakeCurrent"), bind,
            ZO_FAILURE, Log{recreating} + notCurrent),
        Row("first_bind_driver_without_names", &C::WindowLost, WithoutNames, bind, ZO_SUCCESS,
            Log{creating} + unnamed + Log{complete}, "+bound +buffer10001:8x6 +pool "),
        Row("refresh_unbound", {}, {}, &C::Refresh, ZO_NO_EGL_MANAGER,
            {SurfaceLine("eglManager no init\n")}),
        Row("refresh_swap_fails", &C::Bound, Fail("eglSwapBuffers"), &C::Refresh, ZO_SUCCESS, {}),
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
    const Step expectNoCall = [](C& c) { EXPECT_TRUE(c.calls.empty()); };
    const Step expectRgba = [](C& c) {
        c.handle = c.size[0];
        EXPECT_EQ(c.DrawRect(), ZO_SUCCESS);
        EXPECT_EQ(c.surface->fboInfo[0].format, GL_RGBA);
        EXPECT_EQ(c.Read(c.handle).At(3, 2), (Pixel{200, 100, 50, 255}));
    };
    Rows rows = {
        Row("create_buffer_null_handle", &C::WithoutPool, Without("handle"), create,
            ZO_INVALID_PARAM, {SurfaceLine("param is invalid\n")}),
        Row("create_buffer_unbound", &C::WindowLost, {}, create, ZO_FAILURE,
            {SurfaceLine("no window is bound, FBO is not created\n")}),
        Row("create_buffer_unknown_format", &C::Bound, Set(&Request::format, 8), create, ZO_SUCCESS,
            {SurfaceLine("Color format is invalid 8\n"), complete}, created, expectRgba),
        Row("create_buffer_no_memory_for_pool", &C::WithoutPool, RefuseAllocation(1), create,
            ZO_FAILURE, {SurfaceLine("out of memory\n")}),
        Row("create_buffer_pool_full", FillPool, {}, create, ZO_NO_FREE_FBO,
            {Line("FBOManager", full), SurfaceLine("Create FBO fail 15\n")}, "", expectNoCall),
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
    Rows rows = {
        Row("destroy_buffer_no_pool", &C::WindowLost, {}, &C::DestroyBuffer, ZO_NO_FBO_MANAGER,
            {SurfaceLine("FBO manager is nullptr\n")}),
        Row("record_buffer_table_full", FillTable, {}, save, ZO_SUCCESS, {SurfaceLine(full)}),
        Row("restore_buffers_unbound", &C::WindowLost, {}, restore, ZO_FAILURE,
            {SurfaceLine("no window is bound, FBOs are not restored\n")}),
        Row("restore_buffers_pool_full", boundWithTable, {}, restore, ZO_NO_FREE_FBO, tooMany,
            restored),
        Row("first_bind_buffer_not_restored", FillTable, WithoutNames, &C::BindWindow, ZO_SUCCESS,
            Log{creating} + unnamed + tooMany, "+bound " + restored + "+pool "),
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
