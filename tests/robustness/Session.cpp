#include "Session.h"

#include "support/Harness.h"

#include <cstring>
#include <iterator>

namespace {

constexpr unsigned int width = 64;
constexpr unsigned int height = 48;
constexpr tagZoRectInfo whole = {0, 0, width, height};
constexpr tagZoRectInfo part = {8, 4, 32, 24};
constexpr tagZoRectInfo everything = {0, 0, 1000, 1000}; // of any target
constexpr tagZoRectInfo pen = {2, 40, 0, 0};

// The characters of the session's font.
constexpr FT_ULong plain = 'A';
constexpr FT_ULong alwaysImage = 'B';
constexpr FT_ULong oneBit = 'M';
constexpr FT_ULong characters[] = {plain, alwaysImage, oneBit};

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

// Longer than what is drawn without an allocation; the space is not in the font.
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

const std::vector<int> bindingCodes = {
    ZO_NO_DISPLAY, ZO_DISPLAY_INIT_FAILED, ZO_NO_CONFIG,
    ZO_NO_CONTEXT, ZO_NO_WINDOW_SURFACE,   ZO_FAILURE,
};
const std::vector<int> fontCodes = {ZO_FREETYPE_FAILED, ZO_FONT_FACE_FAILED, ZO_FONT_ATLAS_EMPTY,
                                    ZO_FAILURE};
const std::vector<int> initCodes = {ZO_PROGRAM_FAILED, ZO_FREETYPE_FAILED, ZO_FONT_FACE_FAILED,
                                    ZO_FONT_ATLAS_EMPTY, ZO_FAILURE};
const std::vector<int> bufferCodes = {ZO_NO_FREE_FBO, ZO_FAILURE};
const std::vector<int> drawCodes = {ZO_INVALID_PARAM, ZO_PROGRAM_FAILED, ZO_FAILURE};
const std::vector<int> bitmapCodes = {ZO_PROGRAM_FAILED, ZO_FAILURE};
const std::vector<int> textCodes = {ZO_INVALID_PARAM,    ZO_PROGRAM_FAILED,   ZO_FREETYPE_FAILED,
                                    ZO_FONT_FACE_FAILED, ZO_FONT_ATLAS_EMPTY, ZO_FAILURE};
const std::vector<int> destroyCodes = {ZO_NO_FBO_MANAGER};

} // namespace

const std::vector<Step> session = {
    {"bind", [](Client& c) { return c.surface->ZoCreateGLWindowSurface(c.window); }, bindingCodes},
    {"load", [](Client& c) { return c.surface->ZoLoadFont(fontPath, 24); }, fontCodes},
    {"init", [](Client& c) { return c.surface->Init(0x3F); }, initCodes},
    {"create left",
     [](Client& c) { return c.surface->ZoCreateGLFBO(&c.left, width, height, ZO_FORMAT_RGBA8888); },
     bufferCodes},
    {"create right",
     [](Client& c) {
         return c.surface->ZoCreateGLFBO(&c.right, width, height, ZO_FORMAT_RGBA8888);
     },
     bufferCodes},
    {"fill", [](Client& c) { return Fill(c, c.left); }, drawCodes, Drawing::Left},
    {"blit", [](Client& c) { return Blit(c, c.right); }, drawCodes, Drawing::Right},
    {"blit within", [](Client& c) { return Blit(c, c.left); }, drawCodes, Drawing::Left},
    {"text", DrawLongText, textCodes, Drawing::Left},
    {"text bold", [](Client& c) { return DrawStyledText(c, 1, 0); }, textCodes, Drawing::Right},
    {"text italic", [](Client& c) { return DrawStyledText(c, 0, 1); }, textCodes, Drawing::Right},
    {"measure", Measure, textCodes},
    {"bitmap", DisplayBitmap, bitmapCodes, Drawing::Window},
    {"present", [](Client& c) { return c.surface->ZoDisplayFBO(c.left, &whole, &whole); },
     drawCodes, Drawing::Window},
    {"refresh", [](Client& c) { return c.surface->ZoRefreshOnSrceen(); }, {ZO_NO_EGL_MANAGER}},
    {"move", [](Client& c) { return c.surface->ZoCreateGLWindowSurface(c.otherWindow); },
     bindingCodes},
    {"fill window", [](Client& c) { return Fill(c, ZO_WINDOW_HANDLE, everything); }, drawCodes,
     Drawing::Window},
    {"lose", Lose, {}},
    {"bind again", [](Client& c) { return c.surface->ZoCreateGLWindowSurface(c.window); },
     bindingCodes, Drawing::Left},
    // Now every drawing operation has its renderer, and the text its default font, to make first.
    {"first fill", [](Client& c) { return Fill(c, c.left); }, drawCodes, Drawing::Left},
    {"first blit", [](Client& c) { return Blit(c, c.right); }, drawCodes, Drawing::Right},
    {"first measure", Measure, textCodes},
    {"first text", DrawLongText, textCodes, Drawing::Left},
    {"first bitmap", DisplayBitmap, bitmapCodes, Drawing::Window},
    {"first present", [](Client& c) { return c.surface->ZoDisplayFBO(c.right, &whole, &part); },
     drawCodes, Drawing::Window},
    {"destroy left", [](Client& c) { return c.surface->ZoDestoryGLFBO(c.left); }, destroyCodes},
    {"destroy right", [](Client& c) { return c.surface->ZoDestoryGLFBO(c.right); }, destroyCodes},
    {"lose at last", Lose, {}},
};

void UseSessionFont() {
    harness::State& state = harness::Current();
    state.fontFile = fontPath;
    state.firstChar = [](FT_Face face, FT_UInt* index) {
        *index = FT_Get_Char_Index(face, characters[0]);
        return characters[0];
    };
    state.nextChar = [](FT_Face face, FT_ULong code, FT_UInt* index) -> FT_ULong {
        for (const FT_ULong character : characters) {
            if (character > code) {
                *index = FT_Get_Char_Index(face, character);
                return character;
            }
        }
        return *index = 0;
    };
    state.loadChar = [](FT_Face face, FT_ULong code, FT_Int32 flags) {
        const FT_Int32 image = code == alwaysImage || code == oneBit ? FT_LOAD_RENDER : 0;
        const FT_Int32 mono = code == oneBit ? FT_LOAD_MONOCHROME : 0;
        return FT_Load_Char(face, code, flags | image | mono);
    };
}
