// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Under each condition the operation fails as the row says, and without the condition it works.

#include "FailureRows.h"
#include "platform/Log.h"

#include <algorithm>
#include <iterator>

namespace {

std::string Change(const std::set<std::string>& before, const std::set<std::string>& after) {
    std::string change;
    for (const std::string& word : after) {
        change += before.count(word) == 0 ? '+' + word + ' ' : "";
    }
    for (const std::string& word : before) {
        change += after.count(word) == 0 ? '-' + word + ' ' : "";
    }
    return change;
}

Log TakeLogAboveVerbose() {
    Log log = harness::TakeLog();
    const auto isVerbose = [](const harness::LogLine& line) { return line.priority <= LogVerbose; };
    log.erase(std::remove_if(log.begin(), log.end(), isVerbose), log.end());
    return log;
}

// The clearing of a new buffer does not count.
int CountDraws() {
    return harness::CountOf("glDrawArrays") + harness::CountOf("glDrawElements") +
           harness::CountOf("glClear") - harness::CountOf("glGenFramebuffers");
}

bool IsComplaint(const harness::LogLine& line) {
    return line.priority == 6 && line.text.rfind("GL ", 0) != 0 &&
           line.text != "Framebuffer complete.\n";
}

} // namespace

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name;
}

void ConditionGLTest::SetUp() {
    LifecycleFixture::SetUp();
    Restore();
}

void ConditionGLTest::Restore() {
    static_cast<Request&>(*this) = Request();
    harness::Reset();
    harness::Current().fontFile = ZOGLES_TEST_FONT;
    UseFakeFont({{65, 4, 3, 0, 3, 4}, {66, 4, 3, 0, 3, 4}});
}

void ConditionGLTest::EndCondition() {
    Restore();
    if (!surface->surfaceCreated) {
        Bind();
    }
    for (const unsigned int number : {7U, 8U, 9U}) { // known only where rows use up the handles
        surface->ZoDestoryGLFBO(0x10000 + number);
        surface->ZoDestoryGLFBO(0x20000 + number);
    }
    harness::TakeLog();
}

std::set<std::string> ConditionGLTest::State() const {
    const ZoGLDrawSurface& s = *surface;
    std::istringstream parts(
        Components() + (s.surfaceCreated ? "bound " : "") +
        (s.eglManager && !s.surfaceCreated ? "half " : "") + (s.fontLoaded ? "font " : "") +
        (s.fontStyleAtlas && s.fontStyleAtlas->face != nullptr ? "face " : ""));
    std::set<std::string> words(std::istream_iterator<std::string>(parts), {});
    const auto addAtlas = [&](const char* name, const auto& atlas) {
        if (atlas) {
            const bool isEmpty = atlas->texture == 0 && atlas->GetGlyphs().empty();
            words.insert(name + (isEmpty ? "empty" : std::to_string(atlas->GetGlyphs().size())));
        }
    };
    addAtlas("standard:", s.fontAtlas);
    addAtlas("styled:", s.fontStyleAtlas);
    const auto addBuffer = [&](const char* kind, const auto& entry) {
        std::ostringstream word;
        word << kind << std::hex << entry.handle << std::dec;
        word << ':' << entry.width << 'x' << entry.height;
        if (entry.handle != ZO_NO_HANDLE) {
            words.insert(word.str());
        }
    };
    for (const TagFboInfo& record : s.fboInfo) {
        addBuffer("record", record);
    }
    for (int i = 1; s.fboManager && i < FBOManager::slotCount; ++i) {
        addBuffer("buffer", s.fboManager->slots[i]);
    }
    return words;
}

void ConditionGLTest::WithFont() {
    Bind();
    ASSERT_EQ(LoadFont(), ZO_SUCCESS);
}

void ConditionGLTest::WithAll() {
    Bind();
    ASSERT_EQ(InitAll(), ZO_SUCCESS);
    SurfaceFixture::CreateBuffer(8, 6);
}

void ConditionGLTest::WindowLost() {
    WithAll();
    surface->ZoDestoryGLWindowSurface();
}

void ConditionGLTest::WithoutPool() {
    Bind();
    surface->fboManager.reset();
}

TEST_P(ConditionGLTest, Holds) {
    const Row& row = GetParam();
    const auto take = [this](const Step& step) { step ? step(*this) : void(); };
    take(row.prepare);
    harness::TakeLog();
    const std::set<std::string> before = State();
    const std::string live = harness::DescribeLive();
    const int draws = CountDraws();
    const GLuint texture = DrawnTexture();
    int code = -1;
    calls = harness::Record([&] {
        take(row.fault);
        code = row.run(*this);
    });
    harness::RefuseAllocation(0);
    EXPECT_EQ(code, row.code);
    EXPECT_EQ(TakeLogAboveVerbose(), row.log);
    EXPECT_EQ(Change(before, State()), row.change);
    EXPECT_TRUE(harness::DescribeLive() == live || !row.change.empty()) << harness::DescribeLive();
    EXPECT_TRUE(surface->eglManager || harness::DescribeLive().empty());
    if (row.code != ZO_SUCCESS) {
        EXPECT_EQ(CountDraws(), draws);
        EXPECT_EQ(DrawnTexture(), texture);
        EXPECT_TRUE(size[0] == untouched && size[1] == untouched);
    }
    for (const std::string& call : calls) {
        EXPECT_TRUE(call.find("memset_s") == 0 || row.code != ZO_INVALID_PARAM) << call;
    }
    take(row.check);

    EndCondition();
    EXPECT_EQ(row.run(*this), ZO_SUCCESS);
    const Log log = harness::TakeLog();
    EXPECT_TRUE(std::none_of(log.begin(), log.end(), IsComplaint));
    ExpectUsable();
}

INSTANTIATE_TEST_SUITE_P(FailureRows, ConditionGLTest,
                         ::testing::ValuesIn(SurfaceRows() + DrawingRows() + TextRows()),
                         [](const auto& row) { return row.param.name; });
