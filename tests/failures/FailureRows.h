/// @file
/// The conditions under which operations fail, as rows of a table.
#ifndef ZOGLES_TESTS_FAILURES_FAILUREROWS_H
#define ZOGLES_TESTS_FAILURES_FAILUREROWS_H

#include "support/LifecycleFixture.h"

class ConditionGLTest;
using Step = std::function<void(ConditionGLTest&)>;
using Operation = std::function<int(ConditionGLTest&)>;

/// A condition, and what the operation returns, logs and changes under it.
struct Row {
    std::string name; ///< the condition
    Step prepare;
    Step fault; ///< spoils the request or sets a fault
    Operation run;
    int code;
    Log log;            ///< with # for what the driver chooses
    std::string change; ///< of ConditionGLTest::State: "+pool -font "
    Step check;
    Step end;  ///< ends the condition if ConditionGLTest::Restore does not
    int again; ///< what the operation returns afterwards

    Row(std::string condition, Step before, Step wrong, Operation operation, int result, Log lines,
        std::string difference = "", Step checks = {}, Step after = {}, int then = ZO_SUCCESS)
        : name(std::move(condition)), prepare(std::move(before)), fault(std::move(wrong)),
          run(std::move(operation)), code(result), log(std::move(lines)),
          change(std::move(difference)), check(std::move(checks)), end(std::move(after)),
          again(then) {}
};
using Rows = std::vector<Row>;

Rows SurfaceRows();
Rows DrawingRows();
Rows TextRows();

/// The arguments of the operations. These are valid.
struct Request {
    static constexpr unsigned int untouched = 77;
    static constexpr tagZoRectInfo all = {0, 0, 8, 8};
    static constexpr tagZoColorRGBA color = {255, 255, 255, 255};

    std::string_view missing; ///< the pointer that is null
    int format = ZO_FORMAT_RGBA8888;
    unsigned int buffer = 0x10001; ///< to destroy
    unsigned int handle = ZO_WINDOW_HANDLE;
    tagZoBlitInfo blit = {ZO_WINDOW_HANDLE, ZO_WINDOW_HANDLE, all, all};
    tagZoBitmapInfo bitmap = {&color.r, ZO_FORMAT_RGBA8888, 0, 0, 1, 1, all};
    tagZoTextInfo text = {u"AB", 2, color, {}, 0, 40, 0, 0, 0};
    unsigned int size[2] = {untouched, untouched}; ///< output; a new handle in the first
};

class ConditionGLTest : public LifecycleFixture,
                        public Request,
                        public ::testing::WithParamInterface<Row> {
public:
    void SetUp() override;

    /// Resets the request and all faults, and makes every font show A and B only.
    void Restore();

    /// What exists, a word each.
    std::set<std::string> State() const;

    void Bound() { Bind(); }
    void WithFont();
    void WithAll(); ///< all components, and a buffer
    void WindowLost();

    // The operations, called with the request.
    int BindWindow() { return surface->ZoCreateGLWindowSurface(Given("window", window.Native())); }
    int InitAll() { return surface->Init(0x3F); }
    int CreateBuffer() { return surface->ZoCreateGLFBO(Given("handle", &size[0]), 4, 3, format); }
    int DestroyBuffer() { return surface->ZoDestoryGLFBO(buffer); }
    int DrawRect() {
        return surface->ZoDrawRect(handle, Given("rect", &all), Given("color", &color));
    }
    int Blit() { return surface->ZoBlit(Given("info", &blit)); }
    int Present() {
        return surface->ZoDisplayFBO(handle, Given("source", &all), Given("rect", &all));
    }
    int DisplayBitmap() { return surface->ZoDisplayBitmap(Given("info", &bitmap)); }
    int LoadFont() { return surface->ZoLoadFont(Given("path", ZOGLES_TEST_FONT), 40); }
    int Measure();
    int DrawText();

    std::vector<std::string> calls; ///< the operation's
    GLuint drawnTexture = 0;        ///< the text renderer's before the operation

private:
    template <typename Value>
    Value* Given(std::string_view part, Value* value) const {
        return part == missing ? nullptr : value;
    }
};
using C = ConditionGLTest;

inline harness::LogLine Line(const char* tag, const std::string& text, int priority = 6) {
    return {priority, tag, text};
}
template <typename Items>
Items operator+(Items first, const Items& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

inline Step Fail(const char* call, int nth = 1) {
    return [=](C&) { harness::FailCall(call, nth); };
}
inline Step RefuseAllocation(int nth) {
    return [=](C&) { harness::RefuseAllocation(nth); };
}
inline Step And(const Step& first, const Step& second) {
    return [=](C& c) { first(c), second(c); };
}
inline Step Without(std::string_view part) {
    return [=](C& c) { c.missing = part; };
}
template <typename Value>
Step Set(Value Request::*member, Value value) {
    return [=](C& c) { c.*member = value; };
}

#endif
