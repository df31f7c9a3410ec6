#include "Splash.h"

#include "Logo.h"
#include "Palette.h"

// A bitmap is presented on the whole window and replaces what was there, so what goes with it is
// drawn afterwards, straight on the window.
void DrawSplash(Canvas& canvas, Typesetter& typesetter, const Layout& layout) {
    const Rect& window = layout.window;
    const int size = layout.Scale(224);
    const int center = window.width / 2;
    const Rect mark{center - size / 2, window.height / 2 - layout.Scale(176), size, size};
    const std::vector<unsigned char> pixels = Logo::RenderPixels(window, mark);
    canvas.PresentPixels(pixels.data(), window);

    const Type name{layout.Scale(64), Palette::text, true, false};
    typesetter.DrawCentered(ZO_WINDOW_HANDLE, u"zogles", name, center,
                            mark.Bottom() + layout.Scale(92));
    const Type claim{layout.Scale(24), Palette::quiet};
    typesetter.DrawCentered(ZO_WINDOW_HANDLE, u"on-screen display", claim, center,
                            mark.Bottom() + layout.Scale(136));
    const Rect bar{center - layout.Scale(90), mark.Bottom() + layout.Scale(176), layout.Scale(180),
                   layout.Scale(4)};
    canvas.Fill(ZO_WINDOW_HANDLE, bar, Palette::track);
    canvas.Fill(ZO_WINDOW_HANDLE, {bar.x, bar.y, bar.width * 2 / 3, bar.height}, Palette::accent);
}
