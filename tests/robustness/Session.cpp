#include "Session.h"

#include "support/DocumentedCodes.h"
#include "support/FakeFont.h"

#include <cstring>
#include <iterator>

namespace {

constexpr unsigned int width = 64;
constexpr unsigned int height = 48;
constexpr tagZoRectInfo whole = {0, 0, width, height};
constexpr tagZoRectInfo part = {8, 4, 32, 24};
constexpr tagZoRectInfo everything = {0, 0, 4000, 4000}; // of any target
constexpr tagZoRectInfo pen = {2, 40, 0, 0};

// The characters of the sessions' font.
constexpr FT_ULong plain = 'A';
constexpr FT_ULong alwaysImage = 'B';
constexpr FT_ULong oneBit = 'M';

constexpr char fontPath[] = ZOGLES_TEST_FONT;

int Fill(Client& client, unsigned int handle, const tagZoRectInfo& rect = part) {
    const tagZoColorRGBA color = {200, 100, 50, 255};
    return client.surface->ZoDrawRect(handle, &rect, &color);
}

int Blit(Client& client, unsigned int destination) {
    const tagZoBlitInfo info = {client.left, destination, part, {0, 0, 40, 30}};
    return client.surface->ZoBlit(&info);
}

tagZoTextInfo Text(const char16_t* text, unsigned int length) {
    tagZoTextInfo info = {};
    info.text = text;
    info.length = length;
    info.color = {0, 255, 128, 255};
    info.fontSize = 40;
    return info;
}

// Longer than what is drawn without an allocation. The font lacks the space.
int DrawLongText(Client& client) {
    char16_t text[80] = u"AB M";
    for (size_t i = 4; i < std::size(text); ++i) {
        text[i] = u'A';
    }
    const tagZoTextInfo info = Text(text, static_cast<unsigned int>(std::size(text)));
    return client.surface->ZoDrawText(client.left, &info, &pen);
}

int DrawStyledText(Client& client, unsigned char isBold, unsigned char isItalic) {
    tagZoTextInfo info = Text(u"ABMA", 4);
    info.fontSize = 20;
    info.bold = isBold;
    info.italic = isItalic;
    return client.surface->ZoDrawText(client.right, &info, &pen);
}

int Measure(Client& client) {
    const tagZoTextInfo info = Text(u"AB", 2);
    unsigned int size[2];
    return client.surface->ZoGetTextSize(&info, &size[0], &size[1]);
}

int DisplayBitmap(Client& client) {
    static constexpr unsigned char pixels[2 * 2 * 4] = {255, 0, 0, 255, 0, 255, 0, 255,
                                                        0,   0, 9, 255, 9, 9,   9, 255};
    const tagZoBitmapInfo info = {pixels, ZO_FORMAT_RGBA8888, 0, 0, 2, 2, part};
    return client.surface->ZoDisplayBitmap(&info);
}

int Lose(Client& client) {
    client.surface->ZoDestoryGLWindowSurface();
    return ZO_SUCCESS;
}

int Create(Client& client, unsigned int& handle) {
    if (handle != ZO_NO_HANDLE) { // a buffer that the binding restored
        client.surface->ZoDestoryGLFBO(handle);
        handle = ZO_NO_HANDLE;
    }
    return client.surface->ZoCreateGLFBO(&handle, width, height, ZO_FORMAT_RGBA8888);
}

int Bind(Client& client) {
    return client.surface->ZoCreateGLWindowSurface(client.window);
}

int FillLeft(Client& client) {
    return Fill(client, client.left);
}

int BlitToRight(Client& client) {
    return Blit(client, client.right);
}

int Present(Client& client) {
    return client.surface->ZoDisplayFBO(client.left, &whole, &whole);
}

void UseSessionFont() {
    harness::Current().fontFile = fontPath;
    UseCharacters({plain, alwaysImage, oneBit});
    harness::Current().loadChar = [](FT_Face face, FT_ULong code, FT_Int32 flags) {
        const FT_Int32 image = code == alwaysImage || code == oneBit ? FT_LOAD_RENDER : 0;
        const FT_Int32 mono = code == oneBit ? FT_LOAD_MONOCHROME : 0;
        return FT_Load_Char(face, code, flags | image | mono);
    };
}

constexpr Codes noCodes = {ZO_SUCCESS};

} // namespace

const Session preparedSession = {
    {"bind", Bind, bindCodes, Drawing::Left},
    {"load", [](Client& c) { return c.surface->ZoLoadFont(fontPath, 24); }, fontCodes},
    {"init", [](Client& c) { return c.surface->Init(0x3F); }, initCodes},
    {"create left", [](Client& c) { return Create(c, c.left); }, createCodes, Drawing::Left},
    {"create right", [](Client& c) { return Create(c, c.right); }, createCodes, Drawing::Right},
    {"fill", FillLeft, drawCodes, Drawing::Left},
    {"blit", BlitToRight, drawCodes, Drawing::Right},
    {"blit within", [](Client& c) { return Blit(c, c.left); }, drawCodes, Drawing::Left},
    {"text", DrawLongText, textCodes, Drawing::Left},
    {"text bold", [](Client& c) { return DrawStyledText(c, 1, 0); }, textCodes, Drawing::Right},
    {"text italic", [](Client& c) { return DrawStyledText(c, 0, 1); }, textCodes, Drawing::Right},
    {"measure", Measure, measureCodes},
    {"bitmap", DisplayBitmap, bitmapCodes, Drawing::Window},
    {"present", Present, drawCodes, Drawing::Window},
    {"refresh", [](Client& c) { return c.surface->ZoRefreshOnSrceen(); }, refreshCodes},
    {"move", [](Client& c) { return c.surface->ZoCreateGLWindowSurface(c.otherWindow); },
     bindCodes},
    {"fill window", [](Client& c) { return Fill(c, ZO_WINDOW_HANDLE, everything); }, drawCodes,
     Drawing::Window},
    {"lose", Lose, noCodes},
};

const Session firstUseSession = {
    {"bind", Bind, bindCodes, Drawing::Left},
    {"first fill", FillLeft, drawCodes, Drawing::Left},
    {"first blit", BlitToRight, drawCodes, Drawing::Right},
    {"first measure", Measure, measureCodes},
    {"first text", DrawLongText, textCodes, Drawing::Left},
    {"first bitmap", DisplayBitmap, bitmapCodes, Drawing::Window},
    {"first present", Present, drawCodes, Drawing::Window},
    {"lose", Lose, noCodes},
};

void SessionFixture::SetUp() {
    SurfaceFixture::SetUp();
    UseSessionFont();
    client = {surface.get(), window.Native(), otherWindow.Native()};
    for (const Step& step : preparedSession) {
        ASSERT_EQ(step.run(client), ZO_SUCCESS) << step.name;
    }
}

Image SessionFixture::Look(Drawing drawing) {
    switch (drawing) {
    case Drawing::Left:
        return Read(client.left);
    case Drawing::Right:
        return Read(client.right);
    case Drawing::Window:
        return ReadPixels(static_cast<int>(surface->ZoGetWindowWidth()),
                          static_cast<int>(surface->ZoGetWindowHeight()));
    default:
        return {};
    }
}
