// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/SurfaceFixture.h"
#include "surface/Operations.h"

#include <climits>

TEST(ConversionsTest, CopiesEveryFieldOfATextRequest) {
    const tagZoTextInfo in = {u"text", 4, {255, 0, 0, 51}, {0, 51, 1, 255}, 11, 22, 33, 44, 55};
    tagTextInfo out = {};
    ZoGLDrawSurface().SetTextInfo(&in, &out);
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

TEST(ConversionsTest, MapsInternalCodesToPublicOnes) {
    const std::set<int> kept = {1, 2, 3, 4, 5, 10, 13, 14, 15, 20, 30, 31, 32, 100, 101};
    for (int code = -2; code <= 300; ++code) {
        EXPECT_EQ(ToError(code), kept.count(code) != 0 ? code : code == 12 ? 11 : 100) << code;
    }
    EXPECT_EQ(ToError(INT_MIN), 100);
    EXPECT_EQ(ToError(INT_MAX), 100);
}
