// The scene: a television's display over a picture. What rests is painted once into a backdrop;
// each frame is the backdrop with what moves on top, composed in a buffer and then presented.
#ifndef OSD_SCENE_H
#define OSD_SCENE_H

#include "Landscape.h"
#include "Layout.h"
#include "Menu.h"
#include "Typesetter.h"

class Scene {
public:
    Scene(Canvas& canvas, Typesetter& typesetter, const Layout& layout);

    /// Creates the buffers. Their handles hold for good, also after a loss of the window.
    void CreateBuffers();
    /// Fills the buffers, from the beginning of the scene.
    void Paint();

    void ScrollMenu(int pixels) { menu.Scroll(pixels); }
    bool IsMenuBetweenRows() const { return menu.IsBetweenRows(); }

    /// Composes a frame and presents it; the caller refreshes the window.
    /// @param minutes since the programme began
    void DrawFrame(double minutes);

private:
    void PaintPanels(Stage& stage);
    void PaintProgressTrack(Stage& stage);
    void PaintVolumeIcon(Stage& stage);
    void PaintTexts();
    void ArrangeSubtitles();
    void DrawClock(double minutes);
    void DrawProgress(double minutes);
    void DrawVolume();
    void DrawSubtitles();

    Canvas& canvas;
    Typesetter& typesetter;
    const Layout& layout;
    Landscape landscape;
    Menu menu;
    Line subtitles[2];
    unsigned int glass;    // the picture as seen through the panels
    unsigned int backdrop; // all that rests
    unsigned int frame;    // what is presented
};

#endif
