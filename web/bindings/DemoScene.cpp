// The demo's scene, for a page to show.

#include "osd/Scene.h"

#include <emscripten/bind.h>

namespace {

constexpr int scrollStep = 1; // pixels of the design in a frame

/// The scene, and what it is drawn with, on a surface that outlives it.
class DemoScene {
public:
    /// @pre the surface is bound
    explicit DemoScene(ZoGLDrawSurface& surface)
        : canvas(surface), layout(canvas.GetWindowRect()), typesetter(canvas, layout.standardText),
          scene(canvas, typesetter, layout) {}

    /// Creates the scene's buffers, once: their handles hold beyond a loss of the window.
    void CreateBuffers() { scene.CreateBuffers(); }

    /// Loads a font at the size that the scene is laid out for.
    void LoadFont(const std::string& path) {
        canvas.LoadFont(path, static_cast<unsigned int>(layout.standardText));
    }

    /// Paints everything that rests, in the font that is loaded.
    void Paint() { scene.Paint(); }

    void Scroll() { scene.ScrollMenu(layout.Scale(scrollStep)); }

    /// Draws a frame and shows it.
    /// @param minutes since the programme began
    void DrawFrame(double minutes) {
        scene.DrawFrame(minutes);
        canvas.Refresh();
    }

    /// False once anything of the scene has failed.
    bool IsGood() const { return canvas.IsGood(); }

private:
    Canvas canvas;
    Layout layout;
    Typesetter typesetter;
    Scene scene;
};

} // namespace

EMSCRIPTEN_BINDINGS(scene) {
    emscripten::class_<DemoScene>("DemoScene")
        .constructor<ZoGLDrawSurface&>()
        .function("CreateBuffers", &DemoScene::CreateBuffers)
        .function("LoadFont", &DemoScene::LoadFont)
        .function("Paint", &DemoScene::Paint)
        .function("Scroll", &DemoScene::Scroll)
        .function("DrawFrame", &DemoScene::DrawFrame)
        .function("IsGood", &DemoScene::IsGood);
}
