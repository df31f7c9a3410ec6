#include "support/LifecycleFixture.h"

namespace {

class InitGLTest : public LifecycleFixture {
protected:
    /// Binds again and removes the pool, which is one of the components here.
    void Restart() {
        surface->ZoDestoryGLWindowSurface();
        Bind();
        surface->fboManager.reset();
    }
};

constexpr char everything[] = "text blit bitmap frame rect pool ";

} // namespace

TEST_F(InitGLTest, ReplacesARenderersProgramAndBuffer) {
    Bind();
    ASSERT_EQ(surface->Init(allComponents), ZO_SUCCESS);
    const std::string live = harness::DescribeLive();
    EXPECT_EQ(surface->osdText->Init() + surface->osdBlit->Init() + surface->osdBitmap->Init() +
                  surface->osdFrame->Init() + surface->osdRect->Init(),
              ZO_SUCCESS);
    EXPECT_EQ(harness::DescribeLive(), live);
    harness::FailCall("glCreateProgram");
    EXPECT_EQ(surface->osdRect->Init(), ZO_PROGRAM_FAILED);
    EXPECT_TRUE(surface->osdRect->program == 0 && surface->osdRect->vertexBuffer == 0);
}

TEST_F(InitGLTest, CreatesWhatTheFlagsName) {
    const std::pair<unsigned int, const char*> cases[] = {
        {0, ""},         {0xFFFFFFC0, ""}, {0x01, "text "},    {0x02, "blit "}, {0x04, "bitmap "},
        {0x08, "rect "}, {0x10, "frame "}, {0x3F, everything}, {0x20, "pool "},
    };
    for (const auto& [flags, components] : cases) {
        SCOPED_TRACE(flags);
        Restart();
        EXPECT_EQ(surface->Init(flags), ZO_SUCCESS);
        EXPECT_EQ(Components(), components);
        const auto again = [&, wanted = flags] { surface->Init(wanted); };
        EXPECT_EQ(harness::Record(again), Calls()) << "a second Init changes nothing";
    }
    EXPECT_EQ(Target(0x10000).width, windowWidth);
}
