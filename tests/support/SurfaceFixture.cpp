// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/SurfaceFixture.h"

#include <EGL/egl.h>
#include <X11/Xlib.h>

namespace {

Display* Open(void* display) {
    return static_cast<Display*>(display);
}

GLint Integer(GLenum name) {
    GLint value = -1;
    glGetIntegerv(name, &value);
    return value;
}

} // namespace

TestWindow::TestWindow(int width, int height) : display(XOpenDisplay(nullptr)), window(0) {
    if (display == nullptr) {
        throw std::runtime_error("the tests need an X server");
    }
    window = XCreateSimpleWindow(Open(display), DefaultRootWindow(Open(display)), 0, 0,
                                 static_cast<unsigned int>(width),
                                 static_cast<unsigned int>(height), 0, 0, 0);
    XMapWindow(Open(display), window);
    XSync(Open(display), False);
}

TestWindow::~TestWindow() {
    XDestroyWindow(Open(display), window);
    XCloseDisplay(Open(display));
}

ANativeWindow* TestWindow::Native() const {
    return reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(window));
}

void SurfaceFixture::SetUp() {
    harness::Reset();
    surface = std::make_unique<ZoGLDrawSurface>();
}

void SurfaceFixture::TearDown() {
    if (eglGetCurrentContext() != EGL_NO_CONTEXT) {
        EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    }
    surface.reset();
    EXPECT_EQ(harness::DescribeLive(), "");
    harness::Reset();
}

void SurfaceFixture::Bind() {
    ASSERT_EQ(surface->ZoCreateGLWindowSurface(window.Native()), ZO_SUCCESS);
    ReadWindowSize();
    harness::TakeLog();
}

void SurfaceFixture::ReadWindowSize() {
    const harness::Outside outside;
    const EGLDisplay display = eglGetCurrentDisplay();
    const EGLSurface current = eglGetCurrentSurface(EGL_DRAW);
    eglQuerySurface(display, current, EGL_WIDTH, &windowWidth);
    eglQuerySurface(display, current, EGL_HEIGHT, &windowHeight);
}

unsigned int SurfaceFixture::CreateBuffer(unsigned int width, unsigned int height) {
    unsigned int handle = 0;
    EXPECT_EQ(surface->ZoCreateGLFBO(&handle, width, height, ZO_FORMAT_RGBA8888), ZO_SUCCESS);
    harness::TakeLog();
    return handle;
}

tagFrameBuffObject SurfaceFixture::Target(unsigned int handle) {
    tagFrameBuffObject target = {};
    EXPECT_TRUE(surface->fboManager->GetFBOInst(handle, &target));
    return target;
}

void SurfaceFixture::Fill(unsigned int handle, const Pixel& pixel) {
    const tagFrameBuffObject target = Target(handle);
    const tagZoRectInfo rect = {0, 0, static_cast<unsigned int>(target.width),
                                static_cast<unsigned int>(target.height)};
    const tagZoColorRGBA color = {pixel[0], pixel[1], pixel[2], pixel[3]};
    EXPECT_EQ(surface->ZoDrawRect(handle, &rect, &color), ZO_SUCCESS);
}

Image SurfaceFixture::Read(unsigned int handle) {
    const tagFrameBuffObject target = Target(handle);
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    Image image = ReadPixels(target.width, target.height);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    return image;
}

void SurfaceFixture::ExpectGlError(GLenum error) {
    EXPECT_EQ(glGetError(), error);
    while (glGetError() != GL_NO_ERROR) {
    }
}

void SurfaceFixture::ExpectStateAfterDraw(GLenum activeTexture) {
    EXPECT_EQ(Integer(GL_ARRAY_BUFFER_BINDING), 0);
    EXPECT_EQ(Integer(GL_ELEMENT_ARRAY_BUFFER_BINDING), 0);
    EXPECT_EQ(Integer(GL_FRAMEBUFFER_BINDING), 0);
    EXPECT_EQ(Integer(GL_ACTIVE_TEXTURE), static_cast<GLint>(activeTexture));
    EXPECT_EQ(Integer(GL_TEXTURE_BINDING_2D), 0);
    constexpr GLenum capabilities[] = {GL_BLEND, GL_DEPTH_TEST, GL_STENCIL_TEST, GL_SCISSOR_TEST,
                                       GL_CULL_FACE};
    for (const GLenum capability : capabilities) {
        EXPECT_EQ(glIsEnabled(capability), GL_FALSE) << capability;
    }
    for (GLuint attribute = 0; attribute < 8; ++attribute) {
        GLint isEnabled = 1;
        glGetVertexAttribiv(attribute, GL_VERTEX_ATTRIB_ARRAY_ENABLED, &isEnabled);
        EXPECT_EQ(isEnabled, 0) << attribute;
    }
}
