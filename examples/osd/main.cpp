// A television's on-screen display, drawn with libzogles in a window.
//
// Shows a splash, the scene, the scene scrolled, and the scene after the window was lost; writes a
// picture of each as the X server has it, and prints what a frame costs.

#include "Cost.h"
#include "Options.h"
#include "OsdWindow.h"
#include "Scene.h"
#include "Screenshot.h"
#include "Splash.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>

namespace {

constexpr int exitBadOption = 2;
constexpr double shownMinute = 32; // 21:47 by the scene's clock
constexpr int rowsToScroll = 4;
constexpr int scrollStep = 3;

class Demo {
public:
    explicit Demo(const Options& asked)
        : options(asked), fontFile(ChooseFont(asked)), canvas(surface) {}

    // The library lets go of the window before the window goes.
    ~Demo() { canvas.Unbind(); }
    Demo(const Demo&) = delete;
    Demo& operator=(const Demo&) = delete;

    bool Run();

private:
    bool OpenWindow();
    void PrepareDrawing();
    bool TakePicture(const char* name, const std::function<void()>& draw, Picture* picture);
    bool ShowPictures();
    bool LoseWindow();
    void ScrollRow();
    void DrawMovingFrame();
    void Animate();
    void PrintFolder() const;

    const Options& options;
    std::string fontFile;
    std::unique_ptr<OsdWindow> window;
    ZoGLDrawSurface surface;
    Canvas canvas;
    std::unique_ptr<Layout> layout;
    std::unique_ptr<Typesetter> typesetter;
    std::unique_ptr<Scene> scene;
    Picture firstScene;
    double minute = shownMinute;
};

bool Demo::OpenWindow() {
    window = std::make_unique<OsdWindow>(options.width, options.height);
    if (!window->IsOpen()) {
        return false;
    }
    canvas.Bind(window->GetNativeWindow());
    return canvas.IsGood();
}

// Fonts and components go with the window, so this is needed after each binding.
void Demo::PrepareDrawing() {
    canvas.LoadFont(fontFile, static_cast<unsigned int>(layout->standardText));
    if (canvas.IsGood()) {
        canvas.CreateComponents();
    }
}

bool Demo::TakePicture(const char* name, const std::function<void()>& draw, Picture* picture) {
    if (!WipeWindow(*window)) {
        return false;
    }
    draw();
    canvas.Refresh();
    const std::string path = options.outputFolder + "/" + name;
    if (!canvas.IsGood() || !TakeScreenshot(*window, picture) || !WritePng(path, *picture)) {
        return false;
    }
    printf("wrote %s\n", path.c_str());
    return true;
}

void Demo::ScrollRow() {
    do {
        scene->ScrollMenu(layout->Scale(scrollStep));
        scene->DrawFrame(shownMinute);
        canvas.Refresh();
    } while (scene->IsMenuBetweenRows());
}

bool Demo::ShowPictures() {
    const auto drawScene = [this] { scene->DrawFrame(shownMinute); };
    const auto drawSplash = [this] { DrawSplash(canvas, *typesetter, *layout); };
    Picture picture;
    if (!TakePicture("logo.png", drawSplash, &picture)) {
        return false;
    }
    scene->CreateBuffers();
    scene->Paint();
    if (!TakePicture("osd.png", drawScene, &firstScene)) {
        return false;
    }
    for (int i = 0; i < rowsToScroll; ++i) {
        ScrollRow();
    }
    return TakePicture("osd-scrolled.png", drawScene, &picture);
}

// The buffers come back under their old handles, cleared: the scene paints them anew.
bool Demo::LoseWindow() {
    canvas.Unbind();
    window.reset();
    if (!OpenWindow()) {
        return false;
    }
    PrepareDrawing();
    scene->Paint();
    Picture picture;
    if (!TakePicture(
            "osd-rebound.png", [this] { scene->DrawFrame(shownMinute); }, &picture)) {
        return false;
    }
    const bool isSame = picture.pixels == firstScene.pixels;
    printf("the frame after the loss of the window is %s the one before\n",
           isSame ? "pixel for pixel" : "NOT");
    return isSame;
}

void Demo::DrawMovingFrame() {
    constexpr double minutesPerFrame = 1.0 / 60; // a minute in a second
    minute = minute > 74 ? 0 : minute + minutesPerFrame;
    scene->ScrollMenu(layout->Scale(1));
    scene->DrawFrame(minute);
    canvas.Refresh();
}

void Demo::PrintFolder() const {
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::absolute(options.outputFolder, error);
    printf("the pictures lie in %s\n", error ? options.outputFolder.c_str() : folder.c_str());
}

// The refresh waits for the display where the driver keeps its rate.
void Demo::Animate() {
    printf("animating; Esc in the window ends it\n");
    fflush(stdout);
    while (canvas.IsGood() && window->HandleEvents()) {
        DrawMovingFrame();
    }
}

bool Demo::Run() {
    if (!OpenWindow()) {
        return false;
    }
    layout = std::make_unique<Layout>(canvas.GetWindowRect());
    typesetter = std::make_unique<Typesetter>(canvas, layout->standardText);
    scene = std::make_unique<Scene>(canvas, *typesetter, *layout);
    PrepareDrawing();
    printf("font %s, window %dx%d\n", fontFile.c_str(), layout->window.width,
           layout->window.height);
    if (!canvas.IsGood() || !ShowPictures()) {
        return false;
    }
    const Cost cost = MeasureFrames(options.frames, [this] { DrawMovingFrame(); });
    if (!LoseWindow()) {
        return false;
    }
    PrintCost(cost);
    PrintFolder();
    if (options.staysOpen) {
        Animate();
    }
    return canvas.IsGood();
}

// What the demo settles before SDL, EGL and the library look at it; the user's own choice holds.
void SetDefaults() {
    // These parts of the library log good news and units that the font lacks as errors; their real
    // failures come as result codes, which are reported here.
    setenv("ANDROID_LOG_TAGS", "EGLManager:F FBOManager:F OSDText:F *:E", 0);
    // The window is X11's also where the desktop is not.
    setenv("EGL_PLATFORM", "x11", 0);
    SDL_SetHint(SDL_HINT_VIDEODRIVER, "x11");
}

bool MakeFolder(const std::string& path) {
    std::error_code error;
    std::filesystem::create_directories(path, error);
    if (error) {
        fprintf(stderr, "zogles-osd: %s: %s\n", path.c_str(), error.message().c_str());
    }
    return !error;
}

} // namespace

int main(int argc, char* argv[]) {
    Options options;
    if (!ReadOptions(argc, argv, &options)) {
        return exitBadOption;
    }
    if (options.wantsHelp) {
        PrintHelp();
        return EXIT_SUCCESS;
    }
    SetDefaults();
    if (!MakeFolder(options.outputFolder)) {
        return EXIT_FAILURE;
    }
    if (SDL_Init(SDL_INIT_VIDEO) != 0) {
        fprintf(stderr, "zogles-osd: no X11 display: %s\n", SDL_GetError());
        return EXIT_FAILURE;
    }
    const bool isGood = Demo(options).Run();
    SDL_Quit();
    return isGood ? EXIT_SUCCESS : EXIT_FAILURE;
}
