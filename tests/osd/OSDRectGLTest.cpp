// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "OSDFixture.h"

namespace {

class OSDRectGLTest : public OSDFixture {};

} // namespace

TEST_F(OSDRectGLTest, ReadsNoVerticesWithoutABuffer) {
    Bind();
    harness::FailCall("glGenBuffers");
    Draw(ZO_WINDOW_HANDLE, {0, 0, 9, 9}, {1, 1, 1, 1});
    EXPECT_EQ(harness::CountOf("glDrawArrays"), 1);
    EXPECT_EQ(harness::CountOf("glEnableVertexAttribArray"), 0);
    ExpectGlError(GL_INVALID_OPERATION);
}

TEST_F(OSDRectGLTest, StopsAtTheFirstRecordThatIsNotZeroed) {
    Bind();
    ASSERT_EQ(surface->Init(ZO_COMPONENT_RECT), ZO_SUCCESS);
    harness::FailCall("memset_s", 2);
    harness::FailCall("memset_s", 3);
    const tagZoRectInfo rect = {0, 0, 9, 9};
    const tagZoColorRGBA color = {1, 1, 1, 1};
    EXPECT_EQ(surface->ZoDrawRect(ZO_WINDOW_HANDLE, &rect, &color), ZO_FAILURE);
    EXPECT_EQ(harness::TakeLog().size(), 1U);
}
