#include "LifecycleFixture.h"

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

constexpr unsigned int untouched = 0x12345678;
const harness::LogLine complete = {6, "FBOManager", "Framebuffer complete.\n"};
const harness::LogLine poolFull = {6, "FBOManager", "num of the FBO more than max num 16 \n"};

} // namespace

TEST_F(BufferHandlesGLTest, RefusesWhatCannotBeCreated) {
    unsigned int handle = untouched;
    const auto expectRefused = [&](int code, const Log& log) {
        const std::string table = Table();
        EXPECT_EQ(
            harness::Record([&] { EXPECT_EQ(surface->ZoCreateGLFBO(&handle, 4, 4, 9), code); }),
            Calls());
        EXPECT_EQ(harness::TakeLog(), log);
        EXPECT_EQ(handle, untouched);
        EXPECT_EQ(Table(), table);
    };
    const Log unbound = {SurfaceLine("no window is bound, FBO is not created\n")};
    expectRefused(ZO_FAILURE, unbound);
    EXPECT_EQ(surface->ZoCreateGLFBO(nullptr, 4, 4, 8), ZO_INVALID_PARAM);
    EXPECT_EQ(surface->ZoDestoryGLFBO(0x10001), ZO_NO_FBO_MANAGER);
    EXPECT_EQ(surface->ResetFboSource(), ZO_FAILURE);
    EXPECT_EQ(harness::TakeLog(),
              (Log{SurfaceLine("param is invalid\n"), SurfaceLine("FBO manager is nullptr\n"),
                   SurfaceLine("no window is bound, FBOs are not restored\n")}));
    EXPECT_EQ(Components(), "");
    Bind();
    for (unsigned int i = 1; i <= 15; ++i) {
        EXPECT_EQ(CreateBuffer(4, 4), 0x10000 + i);
    }
    expectRefused(ZO_NO_FREE_FBO, {poolFull, SurfaceLine("Create FBO fail 15\n")});
    surface->ZoDestoryGLWindowSurface();
    harness::TakeLog();
    expectRefused(ZO_FAILURE, unbound);
}

TEST_F(BufferHandlesGLTest, TakesEveryFormat) {
    Bind();
    surface->fboManager.reset();
    EXPECT_EQ(surface->ZoCreateGLFBO(nullptr, 4, 4, 8), ZO_INVALID_PARAM);
    EXPECT_EQ(Components(), "");
    harness::TakeLog();
    unsigned int handle = untouched;
    EXPECT_EQ(surface->ZoCreateGLFBO(&handle, 4, 3, 8), ZO_SUCCESS);
    EXPECT_EQ(harness::TakeLog(), (Log{SurfaceLine("Color format is invalid 8\n"), complete}));
    Fill(handle);
    EXPECT_TRUE(Matches(Read(handle), Filled));
    EXPECT_EQ(Table(), "10001:4x3");
}

TEST_F(BufferHandlesGLTest, LogsUnknownHandlesTwiceAndChangesNothing) {
    Bind();
    CreateBuffer(4, 3);
    for (const unsigned int unknown : {0U, 0x10000U, 0x10002U, 0xFFFFFFFFU}) {
        const std::string text =
            "FBO is not exist fboHandleIndex " + std::to_string(unknown) + "\n";
        EXPECT_EQ(surface->ZoDestoryGLFBO(unknown), ZO_SUCCESS);
        EXPECT_EQ(harness::TakeLog(), (Log{{6, "FBOManager", text}, SurfaceLine(text)}));
    }
    EXPECT_EQ(Table(), "10001:4x3");
}

TEST_F(BufferHandlesGLTest, RestoresRecordedBuffersClearedUnderTheirHandles) {
    Bind();
    for (unsigned int i = 1; i <= 5; ++i) {
        Fill(CreateBuffer(10 * i, 5));
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
    // Restored buffers fill the slots from the lowest, so numbers and slots part company: the next
    // slot's number is taken, and the lowest that is not is 1.
    EXPECT_EQ(surface->fboManager->slots[1].handle, 0x10002U);
    EXPECT_EQ(CreateBuffer(6, 6), 0x10001U);
    std::set<unsigned int> handles = {0x10001, 0x10002, 0x10004, 0x10005};
    for (int i = 0; i < 11; ++i) {
        handles.insert(CreateBuffer(4, 4));
    }
    EXPECT_EQ(handles.size(), 15U);
    EXPECT_EQ(*handles.rbegin(), 0x1000FU);
    Fill(0x10005);
    for (const unsigned int handle : handles) {
        EXPECT_TRUE(Matches(Read(handle), handle == 0x10005 ? Filled : Empty)) << handle;
    }
    Rebind();
    EXPECT_TRUE(std::all_of(handles.begin(), handles.end(),
                            [&](unsigned int handle) { return IsThere(handle); }));
}

TEST_F(BufferHandlesGLTest, RestoresUpToTheFirstFailure) {
    Bind();
    for (unsigned int i = 1; i <= 16; ++i) {
        surface->SaveFboInfo(0x20000 + i, 4, 3, GL_RGBA);
    }
    EXPECT_EQ(harness::TakeLog(), Log());
    const std::string table = Table();
    surface->SaveFboInfo(0x30000, 4, 3, GL_RGBA);
    EXPECT_EQ(harness::TakeLog(), Log{SurfaceLine(poolFull.text)});
    Log log(15, complete);
    log.push_back(poolFull);
    log.push_back(SurfaceLine("Reset FBO source fail 15, fbo 131088\n"));
    EXPECT_EQ(surface->ResetFboSource(), ZO_NO_FREE_FBO);
    EXPECT_EQ(harness::TakeLog(), log);
    EXPECT_TRUE(IsThere(0x2000F));
    EXPECT_EQ(Table(), table);
    surface->RemoveFBO(0x20001);
    EXPECT_EQ(surface->ResetFboSource(), ZO_SUCCESS);
    EXPECT_TRUE(IsThere(0x20010));
    EXPECT_EQ(harness::Current().live["framebuffer"].size(), 15U); // the old pool's are gone
}

TEST_F(BufferHandlesGLTest, NamesNoBufferTwiceAfterDrawingWithoutAWindow) {
    Bind();
    const unsigned int lost = CreateBuffer(4, 3);
    surface->ZoDestoryGLWindowSurface();
    const tagZoRectInfo rect = {0, 0, 4, 4};
    const tagZoColorRGBA color = {10, 20, 30, 40};
    EXPECT_EQ(surface->ZoDrawRect(0x10000, &rect, &color), ZO_PROGRAM_FAILED);
    Bind(); // which finds a pool and restores nothing
    EXPECT_FALSE(IsThere(lost));
    EXPECT_EQ(CreateBuffer(6, 5), lost);
    EXPECT_EQ(Table(), "10001:6x5");
}
