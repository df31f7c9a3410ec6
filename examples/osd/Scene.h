// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The scene: a television's display over a picture. Static parts are painted once into a backdrop. Each frame copies the backdrop into a buffer, draws the moving parts, and presents the buffer.
#ifndef OSD_SCENE_H
#define OSD_SCENE_H

#include "Layout.h"
#include "Menu.h"
#include "Typesetter.h"

/// The files of the same names.
struct ScenePictures {
    Picture background; ///< stands in for the video
    Picture glass;      ///< the background seen through frosted glass, scaled down
    Picture logo;       ///< the channel's, with hard edges, at four times the shown size
    Picture volume;     ///< a loudspeaker, also at four times the shown size
};

class Scene {
public:
    Scene(Canvas& canvas, Typesetter& typesetter, const Layout& layout, ScenePictures pictures);

    /// Creates the buffers. Their handles stay valid after a loss of the window.
    void CreateBuffers();
    /// Fills the buffers, from the beginning of the scene.
    void Paint();

    void ScrollMenu(int pixels) { menu.Scroll(pixels); }
    bool IsMenuBetweenRows() const { return menu.IsBetweenRows(); }

    /// Composes a frame and presents it; the caller refreshes the window.
    /// @param minutes since the beginning of the programme
    void DrawFrame(double minutes);

private:
    void PaintGlass();
    void PaintPanels(Stage& stage);
    void PaintProgressTrack(Stage& stage);
    void PaintTexts();
    void ArrangeSubtitles();
    void DrawClock(double minutes);
    void DrawProgress(double minutes);
    void DrawVolume();
    void DrawSubtitles();

    Canvas& canvas;
    Typesetter& typesetter;
    const Layout& layout;
    ScenePictures pictures;
    Menu menu;
    Line subtitles[2];
    unsigned int cells = ZO_NO_HANDLE;    // the glass before it is stretched
    unsigned int glass = ZO_NO_HANDLE;    // the frosted background, shown in the panels
    unsigned int backdrop = ZO_NO_HANDLE; // all static parts
    unsigned int frame = ZO_NO_HANDLE;    // the frame to present
};

#endif
