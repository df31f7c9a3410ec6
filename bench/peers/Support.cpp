#include "Support.h"

#include "Frame.h"

#include <EGL/egl.h>
#include <GLES2/gl2.h>
#include <X11/Xlib.h>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <png.h>

namespace {

// The first frames compile shaders and grow pools.
constexpr int warmUpFrames = 20;

EGLDisplay eglDisplay = EGL_NO_DISPLAY;
EGLSurface eglSurface = EGL_NO_SURFACE;

double Now(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) * 1e-3;
}

struct Times {
    double wall = Now(CLOCK_MONOTONIC);
    double thread = Now(CLOCK_THREAD_CPUTIME_ID);
    double process = Now(CLOCK_PROCESS_CPUTIME_ID);
};

void WritePicture(const char* path) {
    std::vector<unsigned char> pixels(static_cast<size_t>(frameWidth * frameHeight * 4));
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    glReadPixels(0, 0, frameWidth, frameHeight, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    // What a viewer gets to see: the window's alpha has no meaning on the screen.
    for (size_t i = 3; i < pixels.size(); i += 4) {
        pixels[i] = 255;
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = frameWidth;
    image.height = frameHeight;
    image.format = PNG_FORMAT_RGBA;
    const int bottomUp = -frameWidth * 4; // GL's rows start at the bottom
    Require(png_image_write_to_file(&image, path, 0, pixels.data(), bottomUp, nullptr) != 0, path);
}

} // namespace

void Require(bool isFine, const char* what) {
    if (!isFine) {
        fprintf(stderr, "peers: failed: %s\n", what);
        exit(1);
    }
}

unsigned long OpenWindow() {
    Display* const display = XOpenDisplay(nullptr);
    Require(display != nullptr, "opening the X display");
    const Window window = XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0,
                                              frameWidth, frameHeight, 0, 0, 0);
    XMapWindow(display, window);
    XSync(display, False);
    return window;
}

void OpenContext() {
    eglDisplay = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    Require(eglInitialize(eglDisplay, nullptr, nullptr) == EGL_TRUE, "eglInitialize");
    const EGLint configAttributes[] = {EGL_SURFACE_TYPE,
                                       EGL_WINDOW_BIT,
                                       EGL_RENDERABLE_TYPE,
                                       EGL_OPENGL_ES2_BIT,
                                       EGL_RED_SIZE,
                                       8,
                                       EGL_GREEN_SIZE,
                                       8,
                                       EGL_BLUE_SIZE,
                                       8,
                                       EGL_ALPHA_SIZE,
                                       8,
                                       EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    eglChooseConfig(eglDisplay, configAttributes, &config, 1, &count);
    Require(count == 1, "eglChooseConfig");
    const EGLint contextAttributes[] = {EGL_CONTEXT_CLIENT_VERSION, 2, EGL_NONE};
    const EGLContext context =
        eglCreateContext(eglDisplay, config, EGL_NO_CONTEXT, contextAttributes);
    eglSurface = eglCreateWindowSurface(eglDisplay, config,
                                        static_cast<EGLNativeWindowType>(OpenWindow()), nullptr);
    Require(eglMakeCurrent(eglDisplay, eglSurface, eglSurface, context) == EGL_TRUE,
            "eglMakeCurrent");
    TurnOffVsync();
}

void SwapContext() {
    eglSwapBuffers(eglDisplay, eglSurface);
}

unsigned int MakeTexture(int width, int height) {
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, width, height, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    return texture;
}

void TurnOffVsync() {
    Require(eglSwapInterval(eglGetCurrentDisplay(), 0) == EGL_TRUE, "eglSwapInterval");
}

void RunContestant(int argc, char** argv, const Contestant& contestant) {
    Require(argc >= 4, "arguments: NAME ROUND FRAMES [PICTURE]");
    const int frames = atoi(argv[3]);
    Require(frames > 0, "FRAMES is a number above 0");
    const auto drawFrames = [&contestant](int count) {
        for (int i = 0; i < count; ++i) {
            contestant.draw();
            contestant.swap();
        }
        glFinish(); // a driver may be frames behind
    };
    drawFrames(warmUpFrames);
    const Times start;
    drawFrames(frames);
    const Times end;
    Require(glGetError() == GL_NO_ERROR, "drawing without a GL error");
    printf("{\"name\": \"%s\", \"round\": %d, \"frames\": %d, \"wall_us\": %.1f, "
           "\"thread_us\": %.1f, \"process_us\": %.1f, \"renderer\": \"%s\"}\n",
           argv[1], atoi(argv[2]), frames, (end.wall - start.wall) / frames,
           (end.thread - start.thread) / frames, (end.process - start.process) / frames,
           reinterpret_cast<const char*>(glGetString(GL_RENDERER)));
    if (argc > 4) {
        contestant.draw();
        contestant.flush();
        WritePicture(argv[4]);
    }
}
