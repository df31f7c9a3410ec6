// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// A speed in large digits, status icons and a blinking label, with few operations per frame.
//
//   dashboard                  until a key is pressed
//   dashboard --out FILE.png   saves what the window shows, and ends
//
// Text of another size than the loaded one is rendered at every draw, and a font that is loaded at the
// size of these digits lacks many characters. So each digit is drawn once, into a buffer, and copied.
// Two buffers of the window's size hold the rest: everything switched off, and everything switched on.
// A frame copies the first one and parts of the second one.

#include "common/Picture.h"
#include "common/XWindow.h"

#include <cstdlib>
#include <cstring>

namespace {

constexpr tagZoRectInfo all = {0, 0, 640, 360};
constexpr unsigned int textSize = 24;
constexpr unsigned int digitSize = 168;
constexpr tagZoRectInfo digit = {0, 0, 107, 132};
constexpr unsigned int speedTop = 84;
constexpr tagZoRectInfo icon = {40, 28, 32, 32}; // the first one
constexpr unsigned int iconStep = 132;
constexpr tagZoRectInfo bar = {40, 270, 560, 14};
constexpr unsigned int barStep = 10; // pixels for 4 km/h
constexpr tagZoRectInfo label = {40, 304, 560, 40};
constexpr tagZoColorRGBA ground = {17, 23, 48, 255}; // also behind the icons
constexpr tagZoColorRGBA dim = {52, 60, 98, 255};
constexpr tagZoColorRGBA quiet = {174, 182, 208, 255};
constexpr tagZoColorRGBA white = {244, 246, 252, 255};
constexpr tagZoColorRGBA amber = {255, 200, 87, 255};
constexpr tagZoColorRGBA red = {236, 96, 104, 255};

// In the order of icons.png, whose upper half has the icons switched off, its lower half switched on.
enum Icon { LeftArrow, Headlight, Battery, Fuel, RightArrow };

struct Dashboard {
    ZoGLDrawSurface& surface;
    Picture icons;
    unsigned int digits = ZO_NO_HANDLE; // all ten, side by side
    unsigned int off = ZO_NO_HANDLE;
    unsigned int on = ZO_NO_HANDLE;

    void Fill(unsigned int buffer, const tagZoRectInfo& rect, const tagZoColorRGBA& color) {
        Check("rectangle", surface.ZoDrawRect(buffer, &rect, &color));
    }

    unsigned int CreateBuffer(unsigned int width, unsigned int height) {
        unsigned int buffer = ZO_NO_HANDLE;
        Check("buffer", surface.ZoCreateGLFBO(&buffer, width, height, ZO_FORMAT_RGBA8888));
        Fill(buffer, {0, 0, width, height}, ground);
        return buffer;
    }

    void DrawCentred(unsigned int buffer, const tagZoTextInfo& text, unsigned int baseline) {
        unsigned int width = 0;
        unsigned int unused = 0;
        Check("measuring", surface.ZoGetTextSize(&text, &width, &unused));
        const tagZoRectInfo pen = {(all.width - width) / 2, baseline, 0, 0};
        Check("text", surface.ZoDrawText(buffer, &text, &pen));
    }

    unsigned int PaintDigits() {
        const unsigned int buffer = CreateBuffer(10 * digit.width, digit.height);
        constexpr std::u16string_view figures = u"0123456789";
        for (unsigned int i = 0; i < figures.size(); ++i) {
            tagZoTextInfo text = ToText(figures.substr(i, 1), white);
            text.fontSize = digitSize;
            const tagZoRectInfo pen = {i * digit.width, digit.height - 4, 0, 0};
            Check("digit", surface.ZoDrawText(buffer, &text, &pen));
        }
        return buffer;
    }

    // Draws pixels into a buffer as rectangles, one for each run of equal colour.
    void PaintIcons(unsigned int buffer, unsigned int firstRow) {
        for (unsigned int y = 0; y < icon.height; ++y) {
            for (unsigned int x = 0, end = 0; x < icons.width; x = end) {
                const unsigned char* pixel = icons.At(x, firstRow + y);
                while (end < icons.width && memcmp(icons.At(end, firstRow + y), pixel, 4) == 0) {
                    ++end;
                }
                Fill(buffer, {icon.x + x, icon.y + y, end - x, 1},
                     {pixel[0], pixel[1], pixel[2], 255});
            }
        }
    }

    unsigned int PaintAll(bool isOn) {
        const unsigned int buffer = CreateBuffer(all.width, all.height);
        PaintIcons(buffer, isOn ? icon.height : 0);
        for (unsigned int x = 0; x < bar.width; x += barStep) {
            const tagZoColorRGBA& color = x < 420 ? amber : red;
            Fill(buffer, {bar.x + x, bar.y, barStep - 2, bar.height}, isOn ? color : dim);
        }
        DrawCentred(buffer, ToText(u"km/h", quiet), 248);
        if (isOn) {
            DrawCentred(buffer, ToText(u"REFUEL", amber), 332);
        }
        return buffer;
    }

    void Copy(unsigned int buffer, const tagZoRectInfo& part, const tagZoRectInfo& place) {
        const tagZoBlitInfo copy = {buffer, ZO_WINDOW_HANDLE, part, place};
        Check("copy to the window", surface.ZoBlit(&copy));
    }

    void SwitchOn(Icon which) {
        const tagZoRectInfo place = {icon.x + which * iconStep, icon.y, icon.width, icon.height};
        Copy(on, place, place);
    }

    void Draw(unsigned int speed, bool isBlinkOn) {
        Copy(off, all, all);
        const tagZoRectInfo reached = {bar.x, bar.y, speed / 4 * barStep, bar.height};
        Copy(on, reached, reached);
        SwitchOn(Headlight);
        SwitchOn(Fuel);
        if (isBlinkOn) {
            SwitchOn(LeftArrow);
            Copy(on, label, label);
        }
        const unsigned int count = speed < 10 ? 1 : speed < 100 ? 2 : 3;
        const unsigned int right = (all.width + count * digit.width) / 2;
        tagZoRectInfo place = {right, speedTop, digit.width, digit.height};
        do {
            place.x -= digit.width;
            Copy(digits, {speed % 10 * digit.width, 0, digit.width, digit.height}, place);
            speed /= 10;
        } while (speed > 0);
    }
};

// Up to 200 and down again, in 20 seconds.
unsigned int SpeedAt(unsigned int milliseconds) {
    const unsigned int time = milliseconds % 20000;
    return (time < 10000 ? time : 20000 - time) / 50;
}

} // namespace

int main(int argc, char* argv[]) {
    const Arguments arguments = ReadArguments(argc, argv, 6400);
    XWindow window(all.width, all.height);
    ZoGLDrawSurface surface;
    Check("binding", surface.ZoCreateGLWindowSurface(window.Show()));
    Check("font", surface.ZoLoadFont(fontFile, textSize));
    Dashboard dashboard = {surface, ReadPng(EXAMPLES_FOLDER "/icons.png")};
    dashboard.digits = dashboard.PaintDigits();
    dashboard.off = dashboard.PaintAll(false);
    dashboard.on = dashboard.PaintAll(true);
    Animate(window, surface, arguments, [&](unsigned int milliseconds) {
        dashboard.Draw(SpeedAt(milliseconds), milliseconds % 1000 < 500);
    });
    return EXIT_SUCCESS;
}
