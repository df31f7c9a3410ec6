#include "LifecycleFixture.h"

namespace {

class InitGLTest : public LifecycleFixture {
protected:
    /// Binds anew, without the pool that binding makes: here it is a component like the others.
    void Restart() {
        surface->ZoDestoryGLWindowSurface();
        Bind();
        surface->fboManager.reset();
    }
};

constexpr char everything[] = "text blit bitmap frame rect pool ";

} // namespace

TEST_F(InitGLTest, RenderersAskForEachLocationAndReplaceTheirObjects) {
    Bind();
    harness::Current().locate = [](const std::string& name) {
        return name == "vPosition" ? 11 : name == "color" ? 12 : name == "coord" ? 13 : 14;
    };
    ASSERT_EQ(surface->Init(allComponents), ZO_SUCCESS);
    const OSDText& text = *surface->osdText;
    EXPECT_EQ(surface->osdRect->positionLocation, 11);
    EXPECT_EQ(surface->osdRect->colorLocation, 12);
    EXPECT_TRUE(text.colorLocation == 12 && text.coordLocation == 13 && text.texLocation == 14);
    const auto expectTextured = [](const auto& renderer) {
        EXPECT_EQ(renderer->coordLocation, 13);
        EXPECT_EQ(renderer->texLocation, 14);
    };
    expectTextured(surface->osdBlit);
    expectTextured(surface->osdBitmap);
    expectTextured(surface->osdFrame);

    const std::string live = harness::DescribeLive();
    EXPECT_EQ(surface->osdText->Init() + surface->osdBlit->Init() + surface->osdBitmap->Init() +
                  surface->osdFrame->Init() + surface->osdRect->Init(),
              ZO_SUCCESS);
    EXPECT_EQ(harness::DescribeLive(), live) << "a second Init replaces program and buffer";
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
        EXPECT_EQ(harness::Record(again), Calls()); // what is there stays
    }
    EXPECT_EQ(Target(0x10000).width, windowWidth);
}
