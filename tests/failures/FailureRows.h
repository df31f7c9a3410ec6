/// @file
/// The conditions under which operations fail, as rows of a table.
#ifndef ZOGLES_TESTS_FAILURES_FAILUREROWS_H
#define ZOGLES_TESTS_FAILURES_FAILUREROWS_H

#include "../surface/LifecycleFixture.h"
#include "../text/FakeFont.h"

class ConditionGLTest;
using Step = std::function<void(ConditionGLTest&)>;
using Operation = std::function<int(ConditionGLTest&)>;

/// A condition, and what the operation returns, logs and leaves behind under it.
struct Row {
    std::string name; ///< the condition
    Step prepare;
    Step fault; ///< spoils the request, or what the harness answers
    Operation run;
    int code;
    Log log;            ///< with # for what the driver chooses
    std::string change; ///< of ConditionGLTest::State: "+pool -font "
    Step check;
    Step mend; ///< ends the condition, where a good request and a good harness do not
    int again; ///< what the operation returns then

    Row(std::string condition, Step before, Step wrong, Operation operation, int result, Log lines,
        std::string difference = "", Step checks = {}, Step after = {}, int then = ZO_SUCCESS)
        : name(std::move(condition)), prepare(std::move(before)), fault(std::move(wrong)),
          run(std::move(operation)), code(result), log(std::move(lines)),
          change(std::move(difference)), check(std::move(checks)), mend(std::move(after)),
          again(then) {}
};
using Rows = std::vector<Row>;

Rows SurfaceRows();
Rows DrawingRows();
Rows TextRows();

class ConditionGLTest : public LifecycleFixture, public ::testing::WithParamInterface<Row> {
public:
    static constexpr unsigned int untouched = 77;

    void SetUp() override;

    /// A good request, and a harness without faults, where every font shows A and B.
    void Restore();

    /// What there is, a word each.
    std::set<std::string> State() const;

    void Bound() { Bind(); }
    void WithFont();
    void WithAll(); ///< all components, and a buffer
    void WindowLost();

    // The operations, called with the request.
    int BindWindow() { return surface->ZoCreateGLWindowSurface(native); }
    int InitAll() { return surface->Init(0x3F); }
    int CreateBuffer() { return surface->ZoCreateGLFBO(made, 4, 3, format); }
    int DestroyBuffer() { return surface->ZoDestoryGLFBO(buffer); }
    int DrawRect() { return surface->ZoDrawRect(handle, rect, color); }
    int Blit() { return surface->ZoBlit(hasInfo ? &blit : nullptr); }
    int Present() { return surface->ZoDisplayFBO(handle, source, rect); }
    int DisplayBitmap() { return surface->ZoDisplayBitmap(hasInfo ? &bitmap : nullptr); }
    int LoadFont() { return surface->ZoLoadFont(path, 40); }
    int Measure() { return surface->ZoGetTextSize(hasInfo ? &text : nullptr, width, height); }
    int DrawText() { return surface->ZoDrawText(handle, hasInfo ? &text : nullptr, rect); }

    // The request.
    ANativeWindow* native;
    unsigned int* made; ///< points to size[0], as the width does
    int format;
    unsigned int buffer; ///< to destroy
    unsigned int handle; ///< of the target
    const tagZoRectInfo* source;
    const tagZoRectInfo* rect;
    const tagZoColorRGBA* color;
    bool hasInfo;
    tagZoBlitInfo blit;
    tagZoBitmapInfo bitmap;
    const char* path;
    tagZoTextInfo text;
    unsigned int* width;
    unsigned int* height;

    unsigned int size[2];
    std::vector<std::string> calls; ///< the operation's
    GLuint drawnTexture = 0;        ///< the text renderer's before the operation
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
template <typename Value>
Step Set(Value C::*member, Value value) {
    return [=](C& c) { c.*member = value; };
}

#endif
