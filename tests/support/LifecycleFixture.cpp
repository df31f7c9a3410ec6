// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/LifecycleFixture.h"

void LifecycleFixture::SetUp() {
    SurfaceFixture::SetUp();
    harness::Current().fontFile = ZOGLES_TEST_FONT;
    UseCharacters({'A'});
}

std::string LifecycleFixture::Components() const {
    std::string names = surface->osdText ? "text " : "";
    names += surface->osdBlit ? "blit " : "";
    names += surface->osdBitmap ? "bitmap " : "";
    names += surface->osdFrame ? "frame " : "";
    names += surface->osdRect ? "rect " : "";
    return names + (surface->fboManager ? "pool " : "");
}

void LifecycleFixture::ExpectUnbound() const {
    EXPECT_EQ(Components(), "");
    EXPECT_EQ(surface->eglManager, nullptr);
    EXPECT_EQ(surface->fontAtlas, nullptr);
    EXPECT_EQ(surface->fontStyleAtlas, nullptr);
    EXPECT_FALSE(surface->fontLoaded);
    EXPECT_FALSE(surface->surfaceCreated);
    EXPECT_EQ(harness::DescribeLive(), "");
}

void LifecycleFixture::ExpectUsable() {
    if (!surface->surfaceCreated) {
        Bind();
    }
    const unsigned int buffer = CreateBuffer(8, 8);
    Fill(buffer, filling);
    EXPECT_TRUE(Matches(Read(buffer), Filled));
    EXPECT_EQ(surface->ZoDestoryGLFBO(buffer), ZO_SUCCESS);
    EXPECT_EQ(surface->ZoRefreshOnSrceen(), ZO_SUCCESS);
    EXPECT_EQ(harness::TakeLog(), Log());
}

harness::LogLine SurfaceLine(const std::string& text, int priority) {
    return {priority, "ZoGLDrawSurface", text};
}
