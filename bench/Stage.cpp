// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Stage.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr size_t longestText = 100000;

void Require(int code, const char* what) {
    if (code != ZO_SUCCESS) {
        fprintf(stderr, "%s failed with %d\n", what, code);
        exit(1);
    }
}

} // namespace

std::u16string Words(size_t length) {
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

Baseline::Color ToFloats(tagZoColorRGBA color) {
    return {static_cast<float>(color.r) / 255.0f, static_cast<float>(color.g) / 255.0f,
            static_cast<float>(color.b) / 255.0f, static_cast<float>(color.a) / 255.0f};
}

BoundSurface::BoundSurface() {
    Require(ZoCreateGLWindowSurface(OpenWindow()), "binding the window");
}

Stage::Stage(const char* font, unsigned int characters, int buffers)
    : byHand(longestText), handTarget(Baseline::CreateTarget(windowWidth, windowHeight)),
      handSource(Baseline::CreateTarget(windowWidth, windowHeight)) {
    for (int i = 0; i < buffers; ++i) {
        Require(surface.ZoCreateGLFBO(&last, windowWidth, windowHeight, ZO_FORMAT_RGBA8888),
                "creating a buffer");
        target = i == 0 ? last : target;
        source = i <= 1 ? last : source;
    }
    LimitFont(characters);
    Require(surface.ZoLoadFont(font, fontSize), font);
    byHand.LoadFont(font, fontSize);
    LimitFont(0);
    Reset();
}

void Stage::Reset() {
    constexpr tagZoRectInfo box = {100, 50, 400, 300};
    constexpr tagZoColorRGBA nothing = {0, 0, 0, 0};
    constexpr tagZoColorRGBA green = {10, 200, 90, 180};
    for (const unsigned int handle : {target, source}) {
        surface.ZoDrawRect(handle, &wholeWindow, &nothing);
        surface.ZoDrawRect(handle, &box, &green);
    }
    for (const Baseline::Target& handle : {handTarget, handSource}) {
        byHand.FillRect(handle, wholeWindow, ToFloats(nothing));
        byHand.FillRect(handle, box, ToFloats(green));
    }
}

void Stage::Show(bool isLibrary) {
    if (isLibrary) {
        surface.ZoDisplayFBO(target, &wholeWindow, &wholeWindow);
    } else {
        byHand.Present(handTarget, wholeWindow, wholeWindow);
    }
}
