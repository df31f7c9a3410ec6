#include "TextFixture.h"

#include <algorithm>

void TextFixture::SetUp() {
    SurfaceFixture::SetUp();
    Bind();
    buffer = CreateBuffer(width, height);
}

void TextFixture::Load(const char* path, unsigned int size) {
    ASSERT_EQ(surface->ZoLoadFont(path, size), ZO_SUCCESS);
    harness::TakeLog();
}

tagZoTextInfo TextFixture::Request(std::u16string_view text, const Style& style) const {
    tagZoTextInfo info = {};
    info.text = text.data();
    info.length = static_cast<unsigned int>(text.size());
    info.color = style.color;
    info.fontSize = style.size;
    info.bold = style.isBold ? 1 : 0;
    info.italic = style.isItalic ? 1 : 0;
    return info;
}

int TextFixture::Draw(std::u16string_view text, const Style& style, unsigned int x,
                      unsigned int y) {
    const tagZoTextInfo info = Request(text, style);
    const tagZoRectInfo rect = {x, y, 1, 1};
    return surface->ZoDrawText(buffer, &info, &rect);
}

Image TextFixture::Drawn(std::u16string_view text, const Style& style) {
    Fill(buffer, {});
    EXPECT_EQ(Draw(text, style), ZO_SUCCESS);
    return Read(buffer);
}

::testing::AssertionResult TextFixture::Shows(std::u16string_view text, const Style& style,
                                              const char* path, int x, int y,
                                              const Pixel& background) {
    const Image shown = Read(buffer);
    Image expected = shown;
    std::fill(expected.pixels.begin(), expected.pixels.end(), background);
    ReferenceFont(path).Blend(expected, text, style, x, y);
    // Drivers round when they sample and again when they blend.
    constexpr int tolerance = 2;
    return Matches(
        shown, [&](int column, int row) { return expected.At(column, row); }, tolerance);
}
