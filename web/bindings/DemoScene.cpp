// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The demo's scene, for the page.

#include "osd/Scene.h"

#include <emscripten/bind.h>
#include <emscripten/val.h>
#include <string>

namespace {

using emscripten::val;

constexpr int scrollStep = 1; // pixels of the design per frame

// Converts an ImageData, which the page decoded.
Picture ToPicture(const val& image) {
    const auto rgba = image["data"].as<std::string>();
    return {image["width"].as<unsigned int>(),
            image["height"].as<unsigned int>(),
            {rgba.begin(), rgba.end()}};
}

/// The scene and its drawing tools, on a surface that outlives them.
class DemoScene {
public:
    /// @pre the surface is bound
    DemoScene(ZoGLDrawSurface& surface, const val& pictures)
        : canvas(surface), layout(canvas.GetWindowRect()), typesetter(canvas, layout.standardText),
          scene(canvas, typesetter, layout,
                {ToPicture(pictures["background"]), ToPicture(pictures["glass"]),
                 ToPicture(pictures["logo"]), ToPicture(pictures["volume"])}) {}

    /// Creates the scene's buffers, once: their handles stay valid after a loss of the window.
    void CreateBuffers() { scene.CreateBuffers(); }

    /// Loads a font at the size of the scene's layout.
    void LoadFont(const std::string& path) { canvas.LoadFont(path, layout.standardText); }

    /// Paints the static parts with the loaded font.
    void Paint() { scene.Paint(); }

    void Scroll() { scene.ScrollMenu(layout.Scale(scrollStep)); }

    /// Draws a frame and shows it.
    /// @param minutes since the beginning of the programme
    void DrawFrame(double minutes) {
        scene.DrawFrame(minutes);
        canvas.Refresh();
    }

    /// False once an operation of the scene has failed.
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
        .constructor<ZoGLDrawSurface&, val>()
        .function("CreateBuffers", &DemoScene::CreateBuffers)
        .function("LoadFont", &DemoScene::LoadFont)
        .function("Paint", &DemoScene::Paint)
        .function("Scroll", &DemoScene::Scroll)
        .function("DrawFrame", &DemoScene::DrawFrame)
        .function("IsGood", &DemoScene::IsGood);
}
