// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "OSDFixture.h"

#include <algorithm>

namespace {

class OSDBlitGLTest : public OSDFixture {};

const Image picture = Noise(61, 47);
const Image background = Noise(47, 61);

const struct Copy {
    const char* name;
    tagZoRectInfo from;
    tagZoRectInfo to;
} copies[] = {
    {"apart", {3, 4, 20, 10}, {21, 30, 20, 10}},
    {"up", {0, 8, 40, 30}, {0, 0, 40, 30}},
    {"right", {0, 0, 30, 40}, {7, 0, 30, 40}},
    {"the whole picture", {0, 0, 61, 47}, {1, 1, 61, 47}},
    {"one pixel", {13, 17, 1, 1}, {5, 6, 1, 1}},
    {"doubled", {10, 10, 12, 9}, {5, 20, 24, 18}},
    {"halved", {2, 2, 40, 32}, {20, 12, 20, 16}},
    {"enlarged over itself", {10, 10, 8, 8}, {0, 0, 47, 47}},
    {"past the right edge", {50, 10, 20, 10}, {4, 4, 20, 10}},
    {"past the bottom edge", {10, 40, 10, 20}, {4, 4, 10, 20}},
    {"past the corner, doubled", {53, 40, 16, 16}, {7, 9, 32, 32}},
    {"from outside", {70, 60, 10, 10}, {4, 4, 10, 10}},
    {"across the corner", {0, 0, 20, 20}, {40, 40, 20, 20}},
    {"to no pixels", {0, 0, 20, 20}, {10, 10, 0, 20}},
};

// Copies of equal size are exact. Drivers round scaled ones differently.
int Tolerance(const Copy& copy) {
    return copy.from.width == copy.to.width && copy.from.height == copy.to.height ? 0 : 1;
}

} // namespace

TEST_F(OSDBlitGLTest, CopiesWithinABufferAsBetweenTwo) {
    Bind();
    ASSERT_EQ(surface->Init(ZO_COMPONENT_BLIT), ZO_SUCCESS);
    const unsigned int source = CreateBuffer(picture);
    for (const Copy& copy : copies) {
        SCOPED_TRACE(copy.name);
        for (const Image* old : {&background, &picture}) {
            const unsigned int destination = CreateBuffer(*old);
            const std::string live = harness::DescribeLive();
            Blit(old == &picture ? destination : source, destination, copy.from, copy.to);
            EXPECT_TRUE(Matches(Read(destination), Drawn(picture, copy.from, copy.to, Of(*old)),
                                Tolerance(copy)));
            EXPECT_EQ(harness::DescribeLive(), live);
            surface->ZoDestoryGLFBO(destination);
        }
    }
    EXPECT_TRUE(Matches(Read(source), Of(picture)));
    EXPECT_EQ(harness::TakeLog(), Log());
}

TEST_F(OSDBlitGLTest, BlitsWithinABufferOfSizeZero) {
    Bind();
    for (const auto& [width, height] : {std::pair{0U, 5U}, std::pair{5U, 0U}}) {
        const unsigned int buffer = CreateBuffer(width, height);
        ExpectGlError(GL_INVALID_FRAMEBUFFER_OPERATION);
        const auto calls = harness::Record([&] {
            Blit(buffer, buffer, {1, 1, 3, 3}, {0, 0, 3, 3});
        });
        EXPECT_EQ(
            std::count(calls.begin(), calls.end(),
                       harness::Call("glCopyTexImage2D", GL_TEXTURE_2D, 0, GL_RGBA, 0, 0, 1, 1, 0)),
            1);
        ExpectStateAfterDraw(GL_TEXTURE0);
        ExpectGlError(GL_INVALID_FRAMEBUFFER_OPERATION);
    }
}
