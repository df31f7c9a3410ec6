// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Support.h"

#include "support/Harness.h"

#include <X11/Xlib.h>
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <unistd.h>

#include FT_OUTLINE_H

namespace {

constexpr int charactersOfFont = 300;
constexpr FT_Pos largestGlyph = 2048; // pixels a side
constexpr FT_ULong lastCharacter = 0x10FFFF;

int messages = STDERR_FILENO;

ANativeWindow* OpenWindow(unsigned int width, unsigned int height) {
    static Display* const display = XOpenDisplay(nullptr);
    fuzz::Require(display != nullptr, "the fuzz targets need an X server", 0);
    const Window window =
        XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0, width, height, 0, 0, 0);
    XMapWindow(display, window);
    XSync(display, False);
    return reinterpret_cast<ANativeWindow*>(static_cast<uintptr_t>(window));
}

bool IsHuge(FT_GlyphSlot glyph) {
    if (glyph->format != FT_GLYPH_FORMAT_OUTLINE) {
        return false;
    }
    FT_BBox box;
    FT_Outline_Get_CBox(&glyph->outline, &box);
    return (box.xMax - box.xMin) >> 6 > largestGlyph || (box.yMax - box.yMin) >> 6 > largestGlyph;
}

// A broken font can request a gigabyte per glyph, and FreeType would fill it.
FT_Error LoadUnlessHuge(FT_Face face, FT_ULong code, FT_Int32 flags) {
    FT_Error error = FT_Load_Char(face, code, flags & ~FT_LOAD_RENDER);
    if (error == 0 && IsHuge(face->glyph)) {
        error = FT_Err_Raster_Overflow;
    }
    const bool isRendered = error == 0 && (flags & FT_LOAD_RENDER) != 0;
    return isRendered ? FT_Render_Glyph(face->glyph, FT_RENDER_MODE_NORMAL) : error;
}

} // namespace

namespace fuzz {

ANativeWindow* WindowOf(unsigned int number) {
    static ANativeWindow* const windows[] = {OpenWindow(160, 120), OpenWindow(30, 300)};
    return windows[number % std::size(windows)];
}

void Require(bool isTrue, const char* what, long long value) {
    if (!isTrue) {
        dprintf(messages, "FAILED: %s: %lld\n", what, value);
        abort();
    }
}

void RequireCode(const char* operation, int code, std::initializer_list<int> documented) {
    const bool isKnown = std::find(documented.begin(), documented.end(), code) != documented.end();
    Require(isKnown, operation, code);
}

void RequireNothingLeft(std::unique_ptr<ZoGLDrawSurface> surface) {
    surface.reset();
    const std::string live = harness::DescribeLive();
    Require(live.empty(), live.c_str(), 0);
}

void LimitFreeType() {
    static int visited = 0; // of the current font
    harness::State& state = harness::Current();
    state.loadChar = LoadUnlessHuge;
    state.firstChar = [](FT_Face face, FT_UInt* index) {
        visited = 1;
        return FT_Get_First_Char(face, index);
    };
    state.nextChar = [](FT_Face face, FT_ULong code, FT_UInt* index) {
        Require(code <= lastCharacter, "characters above Unicode", static_cast<long long>(code));
        *index = 0;
        return ++visited > charactersOfFont ? 0 : FT_Get_Next_Char(face, code, index);
    };
}

} // namespace fuzz

// The fuzzer closes stderr to silence the log. The checks keep their own copy of it.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
    messages = dup(STDERR_FILENO);
    return 0;
}
