#include "LifecycleFixture.h"

#include <array>

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
constexpr char outOfMemory[] = "out of memory\n";

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

TEST_F(InitGLTest, SurvivesEveryRefusedAllocation) {
    const tagZoTextInfo text = {u"A", 1, {255, 255, 255, 255}, {}, 0, 20, 1, 0, 1};
    const tagZoRectInfo rect = {0, 0, 4, 4};
    unsigned int handle = 0;
    std::array<int, 4> codes;
    const auto useAll = [&] {
        codes = {surface->ZoCreateGLWindowSurface(window.Native()), surface->Init(allComponents),
                 surface->ZoCreateGLFBO(&handle, 4, 4, 9),
                 surface->ZoDrawText(ZO_WINDOW_HANDLE, &text, &rect)};
    };
    const std::array<int, 4> successes = {};
    const int allocations = harness::CountAllocations(useAll);
    EXPECT_EQ(codes, successes);
    EXPECT_GT(allocations, 10);
    for (int nth = 1; nth <= allocations; ++nth) {
        SCOPED_TRACE(nth);
        surface = std::make_unique<ZoGLDrawSurface>();
        harness::TakeLog();
        harness::RefuseAllocation(nth);
        useAll();
        harness::RefuseAllocation(0);
        for (const int code : codes) {
            EXPECT_TRUE(code == ZO_SUCCESS || code == ZO_FAILURE || code == ZO_PROGRAM_FAILED)
                << code;
        }
        const Log log = TakeLogAboveVerbose();
        EXPECT_TRUE(std::any_of(log.begin(), log.end(), [](const harness::LogLine& line) {
            return line.text == outOfMemory || line.text == "create shader program fail";
        }));
        surface->ZoDestoryGLWindowSurface();
        useAll();
        EXPECT_EQ(codes, successes);
    }
}
