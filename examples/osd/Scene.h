// The scene: a television's display over a picture. What does not move is painted once into a
// backdrop. Each frame copies the backdrop into a buffer, draws what moves, and presents the buffer.
#ifndef OSD_SCENE_H
#define OSD_SCENE_H

#include "Layout.h"
#include "Menu.h"
#include "Typesetter.h"

/// The files of the same names.
struct ScenePictures {
    Picture background; ///< stands in for the video
    Picture glass;      ///< the background as seen through frosted glass, small
    Picture logo;       ///< of the channel, with hard edges, four times as large as it is shown
    Picture volume;     ///< a loudspeaker, the same
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
    unsigned int glass = ZO_NO_HANDLE;    // what the panels show of the background
    unsigned int backdrop = ZO_NO_HANDLE; // all that does not move
    unsigned int frame = ZO_NO_HANDLE;    // what is presented
};

#endif
