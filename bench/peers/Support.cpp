// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Support.h"

#include <EGL/egl.h>
#include <GLES2/gl2.h>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

// The first frames compile shaders and grow pools.
constexpr int warmUpFrames = 20;

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

// As PPM, without alpha: the window's alpha is not visible.
void WritePicture(const char* path) {
    std::vector<unsigned char> pixels(size_t{windowWidth} * windowHeight * 4);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    glReadPixels(0, 0, windowWidth, windowHeight, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    FILE* file = fopen(path, "wb");
    Require(file != nullptr, path);
    fprintf(file, "P6\n%d %d\n255\n", windowWidth, windowHeight);
    for (size_t row = windowHeight; row-- > 0;) { // GL's rows start at the bottom
        for (size_t x = 0; x < windowWidth; ++x) {
            fwrite(&pixels[(row * windowWidth + x) * 4], 1, 3, file);
        }
    }
    Require(fclose(file) == 0, path);
}

} // namespace

void Require(bool isFine, const char* what) {
    if (!isFine) {
        fprintf(stderr, "peers: failed: %s\n", what);
        exit(1);
    }
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
        glFinish(); // the driver may lag behind by several frames
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
