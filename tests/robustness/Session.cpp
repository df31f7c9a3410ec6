// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Session.h"

namespace {

using S = SessionFixture;

constexpr unsigned int width = 64;
constexpr unsigned int height = 48;
constexpr Codes noCodes = {ZO_SUCCESS};

// The characters of the sessions' font.
constexpr FT_ULong plain = 'A';
constexpr FT_ULong alwaysImage = 'B';
constexpr FT_ULong oneBit = 'M';

int Create(S& s, unsigned int& handle) {
    if (handle != ZO_NO_HANDLE) { // a buffer that the binding restored
        s.surface->ZoDestoryGLFBO(handle);
    }
    return s.surface->ZoCreateGLFBO(&handle, width, height, ZO_FORMAT_RGBA8888);
}

int FillLeft(S& s) {
    s.handle = s.left;
    return s.DrawRect();
}

int BlitTo(S& s, unsigned int target) {
    s.blit.srcHandle = s.left;
    s.blit.dstHandle = target;
    s.blit.dstRect = {0, 0, 40, 30};
    return s.Blit();
}

int BlitToRight(S& s) {
    return BlitTo(s, s.right);
}

int DrawTextOn(S& s, unsigned int target) {
    s.handle = target;
    s.rect = {2, 40, 0, 0};
    return s.DrawText();
}

// Longer than what is drawn without an allocation. The font lacks the space.
int DrawLongText(S& s) {
    static const std::u16string units = u"AB M" + std::u16string(76, u'A');
    s.text.text = units.data();
    s.text.length = static_cast<unsigned int>(units.size());
    return DrawTextOn(s, s.left);
}

int DrawStyledText(S& s, bool isBold) {
    s.text.text = u"ABMA";
    s.text.length = 4;
    s.text.fontSize = 20;
    s.text.bold = isBold ? 1 : 0;
    s.text.italic = isBold ? 0 : 1;
    return DrawTextOn(s, s.right);
}

int FillWindow(S& s) {
    s.rect = {0, 0, 4000, 4000};
    return s.DrawRect();
}

int Present(S& s) {
    s.handle = s.left;
    return s.Present();
}

int Lose(S& s) {
    s.surface->ZoDestoryGLWindowSurface();
    return ZO_SUCCESS;
}

} // namespace

const Session preparedSession = {
    {"bind", &S::BindWindow, bindCodes, Drawing::Left},
    {"load", [](S& s) { return s.surface->ZoLoadFont(ZOGLES_TEST_FONT, 24); }, fontCodes},
    {"init", &S::InitAll, initCodes},
    {"create left", [](S& s) { return Create(s, s.left); }, createCodes, Drawing::Left},
    {"create right", [](S& s) { return Create(s, s.right); }, createCodes, Drawing::Right},
    {"fill", FillLeft, drawCodes, Drawing::Left},
    {"blit", BlitToRight, drawCodes, Drawing::Right},
    {"blit within", [](S& s) { return BlitTo(s, s.left); }, drawCodes, Drawing::Left},
    {"text", DrawLongText, textCodes, Drawing::Left},
    {"text bold", [](S& s) { return DrawStyledText(s, true); }, textCodes, Drawing::Right},
    {"text italic", [](S& s) { return DrawStyledText(s, false); }, textCodes, Drawing::Right},
    {"measure", &S::Measure, measureCodes},
    {"bitmap", &S::DisplayBitmap, bitmapCodes, Drawing::Window},
    {"present", Present, drawCodes, Drawing::Window},
    {"refresh", &S::Refresh, refreshCodes},
    {"move", [](S& s) { return s.surface->ZoCreateGLWindowSurface(s.otherWindow.Native()); },
     bindCodes},
    {"fill window", FillWindow, drawCodes, Drawing::Window},
    {"lose", Lose, noCodes},
};

const Session firstUseSession = {
    {"bind", &S::BindWindow, bindCodes, Drawing::Left},
    {"first fill", FillLeft, drawCodes, Drawing::Left},
    {"first blit", BlitToRight, drawCodes, Drawing::Right},
    {"first measure", &S::Measure, measureCodes},
    {"first text", DrawLongText, textCodes, Drawing::Left},
    {"first bitmap", &S::DisplayBitmap, bitmapCodes, Drawing::Window},
    {"first present", Present, drawCodes, Drawing::Window},
    {"lose", Lose, noCodes},
};

void SessionFixture::SetUp() {
    RequestFixture::SetUp();
    UseCharacters({plain, alwaysImage, oneBit});
    harness::Current().loadChar = [](FT_Face face, FT_ULong code, FT_Int32 flags) {
        const FT_Int32 image = code == alwaysImage || code == oneBit ? FT_LOAD_RENDER : 0;
        const FT_Int32 mono = code == oneBit ? FT_LOAD_MONOCHROME : 0;
        return FT_Load_Char(face, code, flags | image | mono);
    };
    for (const Step& step : preparedSession) {
        ASSERT_EQ(Run(step), ZO_SUCCESS) << step.name;
    }
}

int SessionFixture::Run(const Step& step) {
    static_cast<Request&>(*this) = Request();
    return step.run(*this);
}

Image SessionFixture::Look(Drawing drawing) {
    if (drawing == Drawing::Window) {
        return ReadPixels(static_cast<int>(surface->ZoGetWindowWidth()),
                          static_cast<int>(surface->ZoGetWindowHeight()));
    }
    return drawing == Drawing::None ? Image() : Read(drawing == Drawing::Left ? left : right);
}
