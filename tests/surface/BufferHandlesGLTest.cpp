// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/LifecycleFixture.h"

namespace {

class BufferHandlesGLTest : public LifecycleFixture {
protected:
    void Rebind() {
        surface->ZoDestoryGLWindowSurface();
        Bind();
    }

    /// The table up to its last record: "10001:10x5 - 10003:4x4".
    std::string Table() const {
        std::ostringstream table;
        for (const TagFboInfo& entry : surface->fboInfo) {
            EXPECT_EQ(entry.format, 0x1908);
            if (entry.handle == 0xFFFFFFFF) {
                EXPECT_EQ(entry.width + entry.height, 0);
                table << "- ";
            } else {
                table << std::hex << entry.handle << ':' << std::dec << entry.width << 'x'
                      << entry.height << ' ';
            }
        }
        const std::string text = table.str();
        return text.substr(0, text.find_last_not_of(" -") + 1);
    }

    bool IsThere(unsigned int handle) const {
        tagFrameBuffObject record;
        return surface->fboManager->GetFBOInst(handle, &record);
    }
};

} // namespace

TEST_F(BufferHandlesGLTest, RestoresRecordedBuffersClearedUnderTheirHandles) {
    Bind();
    for (unsigned int i = 1; i <= 5; ++i) {
        Fill(CreateBuffer(10 * i, 5), filling);
    }
    surface->ZoDestoryGLFBO(0x10003);
    surface->ZoDestoryGLFBO(0x10001);
    EXPECT_EQ(Table(), "- 10002:20x5 - 10004:40x5 10005:50x5");
    EXPECT_EQ(CreateBuffer(7, 8), 0x10001U);
    EXPECT_EQ(Table(), "10001:7x8 10002:20x5 - 10004:40x5 10005:50x5");
    surface->ZoDestoryGLFBO(0x10001);
    Rebind();
    EXPECT_FALSE(IsThere(0x10001) || IsThere(0x10003));
    for (const unsigned int handle : {0x10002U, 0x10004U, 0x10005U}) {
        EXPECT_EQ(Target(handle).width, 10 * static_cast<int>(handle - 0x10000));
        EXPECT_TRUE(Matches(Read(handle), Empty));
    }
    // Restored buffers fill the slots from the lowest, so numbers and slots differ: the next slot's
    // number is used, and the lowest unused number is 1.
    EXPECT_EQ(surface->fboManager->slots[1].handle, 0x10002U);
    EXPECT_EQ(CreateBuffer(6, 6), 0x10001U);
    std::set<unsigned int> handles = {0x10001, 0x10002, 0x10004, 0x10005};
    for (int i = 0; i < 11; ++i) {
        handles.insert(CreateBuffer(4, 4));
    }
    EXPECT_EQ(handles.size(), 15U);
    EXPECT_EQ(*handles.rbegin(), 0x1000FU);
    Fill(0x10005, filling);
    for (const unsigned int handle : handles) {
        EXPECT_TRUE(Matches(Read(handle), handle == 0x10005 ? Filled : Empty)) << handle;
    }
    Rebind();
    EXPECT_TRUE(std::all_of(handles.begin(), handles.end(),
                            [&](unsigned int handle) { return IsThere(handle); }));
}

TEST_F(BufferHandlesGLTest, NeverReissuesARecordedHandle) {
    Bind();
    CreateBuffer(4, 3);
    CreateBuffer(5, 3);
    surface->ZoDestoryGLFBO(0x10001);
    const auto drawUnbound = [&] {
        surface->ZoDestoryGLWindowSurface();
        const tagZoRectInfo rect = {0, 0, 4, 4};
        const tagZoColorRGBA color = {10, 20, 30, 40};
        EXPECT_EQ(surface->ZoDrawRect(0x10000, &rect, &color), ZO_PROGRAM_FAILED);
        Bind(); // finds a pool and restores nothing
    };
    drawUnbound();
    EXPECT_FALSE(IsThere(0x10002));
    EXPECT_EQ(CreateBuffer(6, 5), 0x10001U);
    EXPECT_EQ(CreateBuffer(7, 5), 0x10003U) << "2 is recorded";
    EXPECT_EQ(Table(), "10001:6x5 10002:5x3 10003:7x5");
    Rebind();
    EXPECT_TRUE(IsThere(0x10001) && IsThere(0x10002) && IsThere(0x10003));

    for (unsigned int handle = 0x10004; handle <= 0x1000F; ++handle) {
        EXPECT_EQ(CreateBuffer(1, 1), handle);
    }
    surface->ZoDestoryGLFBO(0x1000F);
    drawUnbound();
    EXPECT_EQ(CreateBuffer(1, 1), 0x1000FU);
    const std::string full = Table();
    unsigned int handle = 7;
    EXPECT_EQ(surface->ZoCreateGLFBO(&handle, 8, 8, 9), ZO_NO_FREE_FBO) << "15 are recorded";
    EXPECT_EQ(handle, 7U);
    EXPECT_EQ(Table(), full);
}

TEST_F(BufferHandlesGLTest, ReplacesThePoolOnlyByItsFlag) {
    Bind();
    const unsigned int handle = CreateBuffer(4, 3);
    surface->FBOManagerInit(~0x20U);
    EXPECT_TRUE(IsThere(handle));
    surface->FBOManagerInit(0x20);
    EXPECT_FALSE(IsThere(handle));
    EXPECT_EQ(Table(), "10001:4x3");
}

TEST_F(BufferHandlesGLTest, NeverDrawsOnTheWindowForABufferWithoutAFramebuffer) {
    Bind();
    Fill(ZO_WINDOW_HANDLE, filling);
    harness::FailCall("glGenFramebuffers");
    unsigned int handle = 0;
    EXPECT_EQ(surface->ZoCreateGLFBO(&handle, 4, 3, 9), ZO_SUCCESS);
    EXPECT_TRUE(Target(handle).width == 0 && Target(handle).height == 0);
    const tagZoRectInfo rect = {0, 0, 4, 3};
    const tagZoColorRGBA color = {1, 1, 1, 1};
    EXPECT_EQ(surface->ZoDrawRect(handle, &rect, &color), ZO_SUCCESS);
    EXPECT_TRUE(Matches(Read(ZO_WINDOW_HANDLE), Filled));
    Rebind();
    Fill(handle, filling);
    EXPECT_TRUE(Matches(Read(handle), Filled));
}
