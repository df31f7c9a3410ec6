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
