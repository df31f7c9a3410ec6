// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Every operation with arguments that a test can change.
#ifndef ZOGLES_TESTS_SUPPORT_REQUESTFIXTURE_H
#define ZOGLES_TESTS_SUPPORT_REQUESTFIXTURE_H

#include "support/LifecycleFixture.h"

/// The arguments of the operations. These are valid.
struct Request {
    static constexpr unsigned int untouched = 77;
    static constexpr tagZoRectInfo all = {0, 0, 8, 8};
    static constexpr tagZoColorRGBA color = {200, 100, 50, 255};

    std::string missing; ///< the pointer that is null
    int format = ZO_FORMAT_RGBA8888;
    unsigned int buffer = 0x10001; ///< to destroy
    unsigned int handle = ZO_WINDOW_HANDLE;
    tagZoRectInfo rect = all;
    tagZoBlitInfo blit = {ZO_WINDOW_HANDLE, ZO_WINDOW_HANDLE, all, all};
    tagZoBitmapInfo bitmap = {&color.r, ZO_FORMAT_RGBA8888, 0, 0, 1, 1, all};
    tagZoTextInfo text = {u"AB", 2, color, {}, 0, 40, 0, 0, 0};
    unsigned int size[2] = {untouched, untouched}; ///< output; a new handle in the first
};

/// Calls each operation with the request.
class RequestFixture : public LifecycleFixture, public Request {
public:
    int BindWindow() { return surface->ZoCreateGLWindowSurface(Given("window", window.Native())); }
    int InitAll() { return surface->Init(allComponents); }
    int Refresh() { return surface->ZoRefreshOnSrceen(); }
    int CreateBuffer() { return surface->ZoCreateGLFBO(Given("handle", &size[0]), 4, 3, format); }
    int DestroyBuffer() { return surface->ZoDestoryGLFBO(buffer); }
    int DrawRect() {
        return surface->ZoDrawRect(handle, Given("rect", &rect), Given("color", &color));
    }
    int Blit() { return surface->ZoBlit(Given("info", &blit)); }
    int Present() {
        return surface->ZoDisplayFBO(handle, Given("source", &all), Given("rect", &rect));
    }
    int DisplayBitmap() { return surface->ZoDisplayBitmap(Given("info", &bitmap)); }
    int LoadFont() { return surface->ZoLoadFont(Given("path", ZOGLES_TEST_FONT), 40); }
    int Measure() {
        text.text = Given("units", text.text);
        return surface->ZoGetTextSize(Given("info", &text), Given("width", &size[0]),
                                      Given("height", &size[1]));
    }
    int DrawText() {
        text.text = Given("units", text.text);
        return surface->ZoDrawText(handle, Given("info", &text), Given("rect", &rect));
    }

private:
    template <typename Value>
    Value* Given(const char* part, Value* value) const {
        return part == missing ? nullptr : value;
    }
};

#endif
