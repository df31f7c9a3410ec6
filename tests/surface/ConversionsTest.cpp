#include "support/SurfaceFixture.h"
#include "surface/Operations.h"

#include <climits>

namespace {

struct ConversionsTest : ::testing::Test {
    ConversionsTest() { harness::Reset(); }

    const ZoGLDrawSurface surface;
};

constexpr tagRectInfo untouched = {-3.0f, -4.0f, -5.0f, -6.0f};

void ExpectRect(const tagRectInfo& rect, const tagRectInfo& expected) {
    EXPECT_EQ((std::vector<float>{rect.x, rect.y, rect.width, rect.height}),
              (std::vector<float>{expected.x, expected.y, expected.width, expected.height}));
}

} // namespace

TEST_F(ConversionsTest, MapsPixelsToVertexAndTextureSpace) {
    const struct {
        tagZoRectInfo rect;
        unsigned int width;
        unsigned int height;
        tagRectInfo vertex;
        tagRectInfo texture;
    } cases[] = {
        {{0, 0, 1280, 720}, 1280, 720, {-1, 1, 2, 2}, {0, 1, 1, 1}},
        {{2, 4, 8, 16}, 16, 32, {-0.75f, 0.75f, 1, 1}, {0.125f, 0.875f, 0.5f, 0.5f}},
        {{1, 1, 1, 1},
         3,
         5,
         {2.0f / 3.0f - 1.0f, 1.0f - 2.0f / 5.0f, 2.0f / 3.0f, 2.0f / 5.0f},
         {1.0f / 3.0f, 1.0f - 1.0f / 5.0f, 1.0f / 3.0f, 1.0f / 5.0f}},
        {{4, 6, 8, 9}, 2, 3, {3, -3, 8, 6}, {2, -1, 4, 3}},
        // Doubled as floats, where 32 bits would overflow.
        {{0x80000000U, 0x80000000U, 0x80000000U, 0xC0000000U},
         2,
         2,
         {2147483647.0f, -2147483647.0f, 2147483648.0f, 3221225472.0f},
         {1073741824.0f, -1073741823.0f, 1073741824.0f, 1610612736.0f}},
        {{5, 6, 7, 8}, 0, 5, untouched, untouched},
        {{5, 6, 7, 8}, 5, 0, untouched, untouched},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(testing::Message() << c.rect.x << " on " << c.width << " x " << c.height);
        tagRectInfo out = untouched;
        surface.ScreenCoordToVCoord(&c.rect, &out, c.width, c.height);
        ExpectRect(out, c.vertex);
        out = untouched;
        surface.ScreenCoordToFboCoord(&c.rect, &out, c.width, c.height);
        ExpectRect(out, c.texture);
    }
}

TEST_F(ConversionsTest, MapsColourBytes) {
    for (int value = 0; value <= 255; ++value) {
        const unsigned char byte = static_cast<unsigned char>(value);
        const float expected = static_cast<float>(value) / (value <= 1 ? 1.0f : 255.0f);
        const tagZoColorRGBA in = {byte, 0, 1, byte};
        tagColorRGBA out = {};
        surface.ConvertGLColor(&in, &out);
        EXPECT_TRUE(out.r == expected && out.g == 0 && out.b == 1 && out.a == expected) << value;
    }
}

TEST_F(ConversionsTest, CarriesEveryFieldOfATextRequest) {
    const tagZoTextInfo in = {u"text", 4, {255, 0, 0, 51}, {0, 51, 1, 255}, 11, 22, 33, 44, 55};
    tagTextInfo out = {};
    surface.SetTextInfo(&in, &out);
    const auto channels = [](const tagColorRGBA& c) {
        return std::vector<float>{c.r, c.g, c.b, c.a};
    };
    EXPECT_EQ(channels(out.color), (std::vector<float>{1, 0, 0, 0.2f}));
    EXPECT_EQ(channels(out.reservedColor), (std::vector<float>{0, 0.2f, 1, 1}));
    EXPECT_EQ((std::vector<unsigned int>{out.length, out.reservedByte, out.fontSize, out.bold,
                                         out.reservedStyle, out.italic}),
              (std::vector<unsigned int>{4, 11, 22, 33, 44, 55}));
    EXPECT_EQ(out.text, in.text);
}

TEST_F(ConversionsTest, FoldsCodesIntoThePublicOnes) {
    const std::set<int> kept = {1, 2, 3, 4, 5, 10, 13, 14, 15, 20, 30, 31, 32, 100, 101};
    for (int code = -2; code <= 300; ++code) {
        EXPECT_EQ(ToError(code), kept.count(code) != 0 ? code : code == 12 ? 11 : 100) << code;
    }
    EXPECT_EQ(ToError(INT_MIN), 100);
    EXPECT_EQ(ToError(INT_MAX), 100);
}
