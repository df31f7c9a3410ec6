#include "Stage.h"

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace {

std::string FirstReadable(const char* variable, const char* path) {
    const char* wanted = getenv(variable);
    const std::string found = wanted == nullptr ? path : wanted;
    return access(found.c_str(), R_OK) == 0 ? found : std::string();
}

void Require(int code, const char* what) {
    if (code != ZO_SUCCESS) {
        fprintf(stderr, "%s failed with %d\n", what, code);
        exit(1);
    }
}

} // namespace

std::u16string Line(size_t length) {
    const std::u16string words = u"ThequickbrownfoxjumpsoverthelazydogPackmyboxwithfivedozenjugs";
    std::u16string text;
    while (text.size() < length) {
        text += words.substr(0, length - text.size());
    }
    return text;
}

tagZoTextInfo Request(const std::u16string& text, tagZoColorRGBA color) {
    return {text.c_str(), static_cast<unsigned int>(text.size()), color, {}, 0, fontSize, 0, 0, 0};
}

Floor::Color ToFloorColor(tagZoColorRGBA color) {
    return {static_cast<float>(color.r) / 255.0f, static_cast<float>(color.g) / 255.0f,
            static_cast<float>(color.b) / 255.0f, static_cast<float>(color.a) / 255.0f};
}

std::string FontPath() {
    return FirstReadable("ZOGLES_BENCH_FONT", "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
}

std::string LargeFontPath() {
    return FirstReadable("ZOGLES_BENCH_LARGE_FONT",
                         "/usr/share/fonts/opentype/unifont/unifont.otf");
}

BoundSurface::BoundSurface() {
    Require(ZoCreateGLWindowSurface(OpenWindow()), "binding the window");
}

Stage::Stage(const std::string& fontPath, unsigned int characters, int buffers)
    : target(0), source(0), last(0), floor(windowWidth, windowHeight, longestText),
      floorTarget(floor.CreateTarget(windowWidth, windowHeight)),
      floorSource(floor.CreateTarget(windowWidth, windowHeight)) {
    for (int i = 0; i < buffers; ++i) {
        Require(surface.ZoCreateGLFBO(&last, windowWidth, windowHeight, ZO_FORMAT_RGBA8888),
                "creating a buffer");
        target = i == 0 ? last : target;
        source = i <= 1 ? last : source;
    }
    LimitFont(characters);
    Require(surface.ZoLoadFont(fontPath.c_str(), fontSize), "loading a font");
    floor.LoadFont(fontPath.c_str(), fontSize);
    LimitFont(0);
    Reset();
}

void Stage::Reset() {
    constexpr tagZoRectInfo box = {100, 50, 400, 300};
    constexpr tagZoColorRGBA nothing = {0, 0, 0, 0};
    constexpr tagZoColorRGBA green = {10, 200, 90, 180};
    const unsigned int handles[] = {target, source};
    const Floor::Target targets[] = {floorTarget, floorSource};
    for (int i = 0; i < 2; ++i) {
        surface.ZoDrawRect(handles[i], &wholeWindow, &nothing);
        surface.ZoDrawRect(handles[i], &box, &green);
        floor.FillRect(targets[i], wholeWindow, ToFloorColor(nothing));
        floor.FillRect(targets[i], box, ToFloorColor(green));
    }
}

void Stage::Show(bool isLibrary) {
    if (isLibrary) {
        surface.ZoDisplayFBO(target, &wholeWindow, &wholeWindow);
    } else {
        floor.Present(floorTarget, wholeWindow, wholeWindow);
    }
}
