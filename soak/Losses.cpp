#include "Losses.h"

#include "Sampler.h"
#include "Windows.h"

#include <EGL/egl.h>
#include <GLES2/gl2.h>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr char fontPath[] = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf";
constexpr tagZoRectInfo box = {40, 60, 200, 100};
constexpr tagZoColorRGBA color = {200, 100, 50, 255};

void Require(bool holds, const char* what) {
    if (!holds) {
        throw std::runtime_error(std::string("losses: ") + what);
    }
}

void LoseByLibrary(ZoGLDrawSurface& surface, unsigned int buffer, ANativeWindow* window) {
    static const unsigned char pixels[8 * 8 * 4] = {};
    const tagZoBitmapInfo bitmap = {pixels, ZO_FORMAT_RGBA8888, 0, 0, 8, 8, box};
    const tagZoTextInfo text = {u"Loss", 4, color, color, 0, 30, 0, 0, 1};
    const tagZoBlitInfo within = {buffer, buffer, box, box};
    Require(surface.ZoLoadFont(fontPath, 40) == ZO_SUCCESS, "font");
    Require(surface.ZoDrawRect(buffer, &box, &color) == ZO_SUCCESS, "rectangle");
    Require(surface.ZoDrawText(buffer, &text, &box) == ZO_SUCCESS, "text");
    Require(surface.ZoBlit(&within) == ZO_SUCCESS, "blit");
    Require(surface.ZoDisplayBitmap(&bitmap) == ZO_SUCCESS, "bitmap");
    Require(surface.ZoDisplayFBO(buffer, &box, &box) == ZO_SUCCESS, "present");
    Require(surface.ZoRefreshOnSrceen() == ZO_SUCCESS, "refresh");
    surface.ZoDestoryGLWindowSurface();
    Require(surface.ZoCreateGLWindowSurface(window) == ZO_SUCCESS, "bind");
}

GLuint Compile(GLenum type, const char* source) {
    const GLuint shader = glCreateShader(type);
    glShaderSource(shader, 1, &source, nullptr);
    glCompileShader(shader);
    return shader;
}

// A texture, drawn as a triangle. Whatever is made is deleted, too.
void DrawByHand() {
    const GLuint vertex =
        Compile(GL_VERTEX_SHADER, "attribute vec4 c; varying vec2 t;"
                                  "void main() { gl_Position = vec4(c.xy, 0., 1.); t = c.zw; }");
    const GLuint fragment =
        Compile(GL_FRAGMENT_SHADER, "precision mediump float; uniform sampler2D s; varying vec2 t;"
                                    "void main() { gl_FragColor = texture2D(s, t); }");
    const GLuint program = glCreateProgram();
    glAttachShader(program, vertex);
    glAttachShader(program, fragment);
    glLinkProgram(program);
    glUseProgram(program);
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 8, 8, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    const GLfloat corners[] = {-1, -1, 0, 0, 1, -1, 1, 0, -1, 1, 0, 1};
    GLuint buffer = 0;
    glGenBuffers(1, &buffer);
    glBindBuffer(GL_ARRAY_BUFFER, buffer);
    glBufferData(GL_ARRAY_BUFFER, sizeof(corners), corners, GL_DYNAMIC_DRAW);
    const GLuint location = static_cast<GLuint>(glGetAttribLocation(program, "c"));
    glEnableVertexAttribArray(location);
    glVertexAttribPointer(location, 4, GL_FLOAT, GL_FALSE, 0, nullptr);
    glDrawArrays(GL_TRIANGLES, 0, 3);
    glDeleteBuffers(1, &buffer);
    glDeleteTextures(1, &texture);
    glDeleteProgram(program);
    glDeleteShader(vertex);
    glDeleteShader(fragment);
}

void LoseByHand(ANativeWindow* window) {
    const EGLDisplay display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    Require(eglInitialize(display, nullptr, nullptr) == EGL_TRUE, "eglInitialize");
    const EGLint wanted[] = {EGL_RENDERABLE_TYPE, EGL_OPENGL_ES2_BIT, EGL_ALPHA_SIZE, 8, EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    eglChooseConfig(display, wanted, &config, 1, &count);
    const EGLint version[] = {EGL_CONTEXT_CLIENT_VERSION, 2, EGL_NONE};
    const EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, version);
    const EGLSurface surface = eglCreateWindowSurface(
        display, config, reinterpret_cast<EGLNativeWindowType>(window), nullptr);
    Require(eglMakeCurrent(display, surface, surface, context) == EGL_TRUE, "eglMakeCurrent");
    DrawByHand();
    eglSwapBuffers(display, surface);
    eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    eglDestroySurface(display, surface);
    eglDestroyContext(display, context);
    eglTerminate(display);
    eglReleaseThread();
}

struct Held {
    Memory memory;
    double heap;
};

Held Lose(int losses, const std::function<void()>& lose) {
    for (int i = 0; i < losses; ++i) {
        lose();
    }
    return {ReadHeldMemory(), HeapInUse()};
}

LossCost Measure(int losses, const std::function<void()>& lose) {
    constexpr int warmUp = 30;
    const Held before = Lose(warmUp, lose);
    const Held after = Lose(losses, lose);
    return {static_cast<double>(after.memory.anonymous - before.memory.anonymous) / losses,
            (after.heap - before.heap) / losses,
            static_cast<double>(after.memory.addressSpace - before.memory.addressSpace) / losses};
}

enum class Means { Library, Hand };
enum class Driver { Unloaded, Kept };

LossCost MeasureHere(Means means, Driver driver, int losses) {
    Windows windows;
    ANativeWindow* const window = windows.Get(0);
    if (driver == Driver::Kept) {
        windows.KeepDriver();
    }
    if (means == Means::Hand) {
        return Measure(losses, [&] { LoseByHand(window); });
    }
    ZoGLDrawSurface surface;
    unsigned int buffer = 0;
    Require(surface.ZoCreateGLWindowSurface(window) == ZO_SUCCESS, "bind");
    Require(surface.ZoCreateGLFBO(&buffer, 320, 200, ZO_FORMAT_RGBA8888) == ZO_SUCCESS, "buffer");
    return Measure(losses, [&] { LoseByLibrary(surface, buffer, window); });
}

[[noreturn]] void Serve(Means means, Driver driver, int losses, int descriptor) {
    try {
        const LossCost cost = MeasureHere(means, driver, losses);
        _exit(write(descriptor, &cost, sizeof(cost)) == sizeof(cost) ? EXIT_SUCCESS : EXIT_FAILURE);
    } catch (const std::exception& failure) {
        fprintf(stderr, "%s\n", failure.what());
        _exit(EXIT_FAILURE);
    }
}

LossCost MeasureInChild(Means means, Driver driver, int losses) {
    int ends[2] = {};
    Require(pipe(ends) == 0, "no pipe");
    const pid_t child = fork();
    Require(child >= 0, "no process");
    if (child == 0) {
        Serve(means, driver, losses, ends[1]);
    }
    close(ends[1]);
    LossCost cost = {};
    const bool isWhole = read(ends[0], &cost, sizeof(cost)) == sizeof(cost);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    Require(isWhole && status == 0, "a measurement failed");
    return cost;
}

} // namespace

LossCosts MeasureLosses(int losses) {
    return {losses, MeasureInChild(Means::Library, Driver::Unloaded, losses),
            MeasureInChild(Means::Library, Driver::Kept, losses),
            MeasureInChild(Means::Hand, Driver::Unloaded, losses),
            MeasureInChild(Means::Hand, Driver::Kept, losses)};
}
