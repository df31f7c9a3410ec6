/// @file
/// A bound surface and a buffer to draw texts into.
#ifndef ZOGLES_TESTS_TEXT_TEXTFIXTURE_H
#define ZOGLES_TESTS_TEXT_TEXTFIXTURE_H

#include "FakeFont.h"
#include "ReferenceFont.h"
#include "support/SurfaceFixture.h"

constexpr char sansPath[] = ZOGLES_TEST_FONT_FOLDER "/DejaVuSans.ttf";
constexpr char monoPath[] = ZOGLES_TEST_FONT_FOLDER "/DejaVuSansMono.ttf";

class TextFixture : public SurfaceFixture {
protected:
    /// Powers of two: vertices on whole pixels are exact.
    static constexpr int width = 256;
    static constexpr int height = 128;

    void SetUp() override;

    /// Loads a font and forgets what that logged.
    void Load(const char* path = sansPath, unsigned int size = 40);

    void Fill(const Pixel& color);

    tagZoTextInfo Request(std::u16string_view text, const Style& style = {}) const;
    int Draw(std::u16string_view text, const Style& style = {}, unsigned int x = 10,
             unsigned int y = 60);

    /// The buffer's pixels after it is cleared and a text drawn.
    Image Drawn(std::u16string_view text, const Style& style = {});

    /// Whether the buffer shows a text over a background, as FreeType and the formula have it.
    ::testing::AssertionResult Shows(std::u16string_view text, const Style& style,
                                     const char* path = sansPath, int x = 10, int y = 60,
                                     const Pixel& background = {});

    /// Lines of error priority, from tags and texts.
    Log Errors(const std::vector<std::pair<const char*, std::string>>& lines) const;

    unsigned int buffer = 0; ///< what texts are drawn into
};

#endif
