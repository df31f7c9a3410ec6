// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// A television's on-screen display, drawn with libzogles in a window.
//
// Shows a splash, the scene, the scene scrolled, and the scene after the window was lost. Writes a
// picture of each and prints what a frame costs.

#include "Options.h"
#include "Palette.h"
#include "Scene.h"
#include "common/XWindow.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int exitBadOption = 2;
constexpr double shownMinute = 32; // 21:47 by the scene's clock
constexpr int rowsToScroll = 4;
constexpr int scrollStep = 3;

double ReadClock(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

Picture ReadPicture(const char* name) {
    return ReadPng(std::string(EXAMPLES_FOLDER "/osd/") + name);
}

class Demo {
public:
    explicit Demo(const Options& asked)
        : options(asked), canvas(surface), layout(OpenWindow()),
          typesetter(canvas, layout.standardText),
          scene(canvas, typesetter, layout,
                {ReadPicture("background.png"), ReadPicture("glass.png"), ReadPicture("logo.png"),
                 ReadPicture("volume.png")}) {}

    bool Run();

private:
    Rect OpenWindow();
    Picture Save(const char* name);
    void DrawSplash();
    void ScrollRow();
    void DrawMovingFrame();
    void MeasureFrames();
    bool LoseWindow(const Picture& before);

    const Options& options;
    std::unique_ptr<XWindow> window;
    ZoGLDrawSurface surface; // destroyed before its window
    Canvas canvas;
    Layout layout;
    Typesetter typesetter;
    Scene scene;
    double minute = shownMinute;
};

// Returns the size of the window, which can differ from the requested one.
Rect Demo::OpenWindow() {
    window = std::make_unique<XWindow>(static_cast<unsigned int>(options.width),
                                       static_cast<unsigned int>(options.height));
    Check("binding the window", surface.ZoCreateGLWindowSurface(window->Show()));
    return canvas.GetWindowRect();
}

// Saves the drawn frame, and shows it.
Picture Demo::Save(const char* name) {
    Picture picture = ReadWindow(surface, surface.ZoGetWindowWidth(), surface.ZoGetWindowHeight());
    const std::string path = options.outputFolder + "/" + name;
    WritePng(path, picture);
    printf("wrote %s\n", path.c_str());
    canvas.Refresh();
    return picture;
}

// A bitmap clears the window, so everything else is drawn after it.
void Demo::DrawSplash() {
    const Picture splash = ReadPicture("splash.png");
    const Rect& all = layout.window;
    const int center = all.width / 2;
    const int width = layout.Scale(splash.width);
    const int height = layout.Scale(splash.height);
    canvas.ShowPicture(splash, {center - width / 2, (all.height - height) / 2, width, height});

    const int bottom = all.height / 2 + layout.Scale(48); // of the logo in the picture
    const Type name{layout.Scale(64), Palette::text, true, false};
    typesetter.Write(ZO_WINDOW_HANDLE, u"zogles", name, center, bottom + layout.Scale(92),
                     Align::Centre);
    const Type claim{layout.Scale(24), Palette::quiet};
    typesetter.Write(ZO_WINDOW_HANDLE, u"on-screen display", claim, center,
                     bottom + layout.Scale(136), Align::Centre);
    const Rect bar{center - layout.Scale(90), bottom + layout.Scale(176), layout.Scale(180),
                   layout.Scale(4)};
    canvas.Fill(ZO_WINDOW_HANDLE, bar, Palette::track);
    canvas.Fill(ZO_WINDOW_HANDLE, {bar.x, bar.y, bar.width * 2 / 3, bar.height}, Palette::accent);
}

void Demo::ScrollRow() {
    do {
        scene.ScrollMenu(layout.Scale(scrollStep));
        scene.DrawFrame(shownMinute);
        canvas.Refresh();
    } while (scene.IsMenuBetweenRows());
}

void Demo::DrawMovingFrame() {
    constexpr double minutesPerFrame = 1.0 / 60; // one minute per second
    minute = minute > 74 ? 0 : minute + minutesPerFrame;
    scene.ScrollMenu(layout.Scale(1));
    scene.DrawFrame(minute);
    canvas.Refresh();
}

void Demo::MeasureFrames() {
    std::vector<double> times;
    const double processStart = ReadClock(CLOCK_PROCESS_CPUTIME_ID);
    double last = ReadClock(CLOCK_MONOTONIC);
    for (int i = 0; i < options.frames; ++i) {
        DrawMovingFrame();
        const double now = ReadClock(CLOCK_MONOTONIC);
        times.push_back(now - last);
        last = now;
    }
    const double process = ReadClock(CLOCK_PROCESS_CPUTIME_ID) - processStart;
    std::sort(times.begin(), times.end());
    const double median = times[times.size() / 2];
    printf("cost of a frame (%d frames, each composed, presented and refreshed; the time includes\n"
           "waiting for the display, the processor time does not):\n"
           "  time, median             %8.2f ms (%.0f frames per second)\n"
           "  time, 99th percentile    %8.2f ms\n"
           "  processor time, mean     %8.2f ms, including the driver's threads\n",
           options.frames, median, 1000 / median, times[(times.size() - 1) * 99 / 100],
           process / options.frames);
}

// The buffers are restored under their handles, but cleared, so the scene is painted again. The font is
// lost.
bool Demo::LoseWindow(const Picture& before) {
    surface.ZoDestoryGLWindowSurface();
    OpenWindow();
    canvas.LoadFont(options.fontFile, layout.standardText);
    scene.Paint();
    scene.DrawFrame(shownMinute);
    const bool isSame = Save("osd-rebound.png").rgba == before.rgba;
    printf("the frames before and after the loss of the window are %s\n",
           isSame ? "identical" : "DIFFERENT");
    return isSame;
}

bool Demo::Run() {
    printf("font %s, window %dx%d\n", options.fontFile.c_str(), layout.window.width,
           layout.window.height);
    canvas.LoadFont(options.fontFile, layout.standardText);
    if (!canvas.IsGood()) {
        return false;
    }
    DrawSplash();
    Save("logo.png");
    scene.CreateBuffers();
    scene.Paint();
    scene.DrawFrame(shownMinute);
    const Picture first = Save("osd.png");
    for (int i = 0; i < rowsToScroll; ++i) {
        ScrollRow();
    }
    scene.DrawFrame(shownMinute);
    Save("osd-scrolled.png");
    MeasureFrames();
    const bool isSame = LoseWindow(first);
    while (options.staysOpen && canvas.IsGood() && window->IsOpen()) {
        DrawMovingFrame();
    }
    return isSame && canvas.IsGood();
}

} // namespace

int main(int argc, char* argv[]) {
    Options options;
    if (!ReadOptions(argc, argv, &options)) {
        return exitBadOption;
    }
    // These parts of the library log informational lines and missing characters as errors. Their
    // failures are also reported by result codes.
    setenv("ANDROID_LOG_TAGS", "EGLManager:F FBOManager:F OSDText:F *:E", 0);
    std::error_code error; // not checked: without the folder, saving the first picture fails
    std::filesystem::create_directories(options.outputFolder, error);
    return Demo(options).Run() ? EXIT_SUCCESS : EXIT_FAILURE;
}
