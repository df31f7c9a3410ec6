#include "Memory.h"

#include "Stage.h"

#include <EGL/egl.h>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <malloc.h>
#include <unistd.h>

namespace {

constexpr unsigned int fontCharacters = 128; // a whole font would take the time of the run
constexpr tagZoColorRGBA color = {200, 100, 50, 255};
constexpr tagZoRectInfo box = {40, 60, 200, 100};

const std::vector<unsigned char>& Pixels() {
    static const std::vector<unsigned char> pixels(size_t{64} * 64 * 4, 99);
    return pixels;
}

long ResidentKiB() {
    long total = 0;
    long resident = 0;
    if (FILE* file = fopen("/proc/self/statm", "r")) {
        if (fscanf(file, "%ld %ld", &total, &resident) != 2) {
            resident = 0;
        }
        fclose(file);
    }
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

// Ten rounds go before, so that what is made on first use is there.
void Report(const char* name, int count, const std::function<void()>& round) {
    constexpr int before = 10;
    for (int i = 0; i < before; ++i) {
        round();
    }
    const long resident = ResidentKiB();
    const size_t heap = mallinfo2().uordblks;
    for (int i = 0; i < count; ++i) {
        round();
    }
    printf("%s\t%d\t%ld\t%ld\t%zu\t%zu\n", name, count, resident, ResidentKiB(), heap,
           mallinfo2().uordblks);
    fflush(stdout);
}

// A little of everything, styled text and a blit within one buffer included.
void DrawFrame(ZoGLDrawSurface& surface, const unsigned int (&buffers)[2]) {
    static const std::u16string text = Line(30);
    const tagZoTextInfo plain = Request(text, color);
    tagZoTextInfo bold = plain;
    bold.length = 8;
    bold.bold = 1;
    const tagZoBlitInfo across = {buffers[1], buffers[0], box, box};
    const tagZoBlitInfo within = {buffers[0], buffers[0], box, box};
    const tagZoBitmapInfo bitmap = {Pixels().data(), ZO_FORMAT_RGBA8888, 0, 0, 64, 64, box};
    surface.ZoDrawRect(buffers[0], &box, &color);
    surface.ZoDrawText(buffers[0], &plain, &box);
    surface.ZoDrawText(buffers[0], &bold, &box);
    surface.ZoBlit(&across);
    surface.ZoBlit(&within);
    surface.ZoDisplayBitmap(&bitmap);
    surface.ZoDisplayFBO(buffers[0], &box, &box);
    surface.ZoRefreshOnSrceen();
}

void LoadFont(ZoGLDrawSurface& surface) {
    LimitFont(fontCharacters);
    surface.ZoLoadFont(FontPath().c_str(), fontSize);
    LimitFont(0);
}

void CreateBuffers(ZoGLDrawSurface& surface, unsigned int (&buffers)[2]) {
    for (unsigned int& buffer : buffers) {
        surface.ZoCreateGLFBO(&buffer, 640, 360, ZO_FORMAT_RGBA8888);
    }
}

// The same by hand, for comparison: driver, FreeType and EGL without the library.
void LoseWindowByHand() {
    const EGLDisplay display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    EGLint version[2] = {};
    eglInitialize(display, &version[0], &version[1]);
    const EGLint configAttributes[] = {EGL_RENDERABLE_TYPE, EGL_OPENGL_ES2_BIT, EGL_ALPHA_SIZE, 8,
                                       EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    eglChooseConfig(display, configAttributes, &config, 1, &count);
    const EGLint contextAttributes[] = {EGL_CONTEXT_CLIENT_VERSION, 2, EGL_NONE};
    const EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, contextAttributes);
    const EGLSurface surface = eglCreateWindowSurface(
        display, config, reinterpret_cast<EGLNativeWindowType>(OpenWindow()), nullptr);
    eglMakeCurrent(display, surface, surface, context);
    {
        Floor floor(windowWidth, windowHeight, 30);
        const Floor::Target targets[] = {floor.CreateTarget(640, 360),
                                         floor.CreateTarget(640, 360)};
        LimitFont(fontCharacters);
        floor.LoadFont(FontPath().c_str(), fontSize);
        LimitFont(0);
        const std::u16string text = Line(30);
        floor.FillRect(targets[0], box, ToFloorColor(color));
        floor.DrawLine(targets[0], text.c_str(), 30, ToFloorColor(color), box.x, box.y);
        floor.DrawStyled(targets[0], text.c_str(), 8, {fontSize, true, false}, ToFloorColor(color),
                         box.x, box.y);
        floor.Blit(targets[1], targets[0], box, box);
        floor.ShowBitmap(Pixels().data(), 64, 64, box);
        floor.Present(targets[0], box, box);
        eglSwapBuffers(display, surface);
    }
    eglDestroyContext(display, context);
    eglDestroySurface(display, surface);
    eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    eglTerminate(display);
    eglReleaseThread();
}

} // namespace

void PrintMemory(int frames, int losses) {
    {
        BoundSurface surface;
        unsigned int buffers[2] = {};
        CreateBuffers(surface, buffers);
        LoadFont(surface);
        Report("frames", frames, [&] { DrawFrame(surface, buffers); });
    }
    {
        BoundSurface surface;
        unsigned int buffers[2] = {};
        CreateBuffers(surface, buffers);
        Report("window losses", losses, [&] {
            LoadFont(surface);
            DrawFrame(surface, buffers);
            surface.ZoDestoryGLWindowSurface();
            surface.ZoCreateGLWindowSurface(OpenWindow());
        });
    }
    Report("window losses, by hand", losses, LoseWindowByHand);
}
