// The operations that draw or measure, when they lack something.

#include "FailureRows.h"

#include <algorithm>
#include <numeric>

namespace {

const struct Drawing {
    std::string name;
    Operation run;
    const char* tag;
    const char* initLine;
    const char* renderer; ///< as a change of the state
    std::string pointers;
    bool needsPool;
    std::string fills; ///< of records: whether the renderer exists by then, y or n
} drawings[] = {
    {"rect", &C::DrawRect, "OSDRect", "OSD Rect init fail ", "+rect ", "rect color", true, "nyy"},
    {"blit", &C::Blit, "OSDBlit", "OSD blit init fail ", "+blit ", "info", true, "nn"},
    {"present", &C::Present, "OSDFrame", "OSD frame init fail ", "+frame ", "source rect", true,
     "nyy"},
    {"bitmap", &C::DisplayBitmap, "OSDBitmap", "OSD bitmap fail ", "+bitmap ", "info", false, "y"},
    {"text", &C::DrawText, "OSDText", "OSD text init fail ", "+text ", "info rect units", true,
     "nyy"},
    {"measure", &C::Measure, "OSDText", "OSD text init fail ", "+text ", "info units width height",
     false, "y"},
};

const harness::LogLine noProgram = Line("ShaderProgram", "create program fail\n");

Log InitFails(const Drawing& drawing, int code, Log before) {
    if (code == ZO_PROGRAM_FAILED) {
        before.push_back(Line(drawing.tag, "create shader program fail"));
    }
    before.push_back(SurfaceLine(drawing.initLine + std::to_string(code) + "\n"));
    return before;
}

void WithoutPool(C& c) {
    c.WithFont();
    c.surface->fboManager.reset();
}

void ExpectSizeUntouched(C& c) {
    EXPECT_TRUE(c.size[0] == c.untouched && c.size[1] == c.untouched);
}

Rows NullRows() {
    Rows rows;
    for (const Drawing& drawing : drawings) {
        std::istringstream parts(drawing.pointers);
        for (std::string part; parts >> part;) { // unbound: nothing may be created
            rows.push_back(Row(
                drawing.name + "_null_" + part, {}, [part](C& c) { c.missing = part; }, drawing.run,
                ZO_INVALID_PARAM, {SurfaceLine("param is nullptr\n")}, "", ExpectSizeUntouched,
                &C::Bound));
        }
    }
    return rows;
}

Rows HandleRows() {
    const Log log = {SurfaceLine("There is not the fbo\n")};
    const Step expectOneFill = [](C& c) { EXPECT_EQ(c.calls.size(), 1U); };
    Rows rows;
    for (const unsigned int handle : {0U, 1U, 0x10009U, 0x20000U, ZO_NO_HANDLE}) {
        const std::string suffix = "_unknown_handle_" + std::to_string(handle);
        const Step spoil = [handle](C& c) { c.handle = c.blit.dstHandle = handle; };
        const Step spoilSource = [handle](C& c) { c.blit.srcHandle = handle; };
        for (const Drawing& drawing : drawings) {
            if (drawing.needsPool) {
                rows.push_back(
                    {drawing.name + suffix, &C::Bound, spoil, drawing.run, ZO_INVALID_PARAM, log});
                rows.push_back(Row(drawing.name + "_unbound" + suffix, {}, spoil, drawing.run,
                                   ZO_INVALID_PARAM, log, "+pool ", {}, &C::Bound));
            }
        }
        rows.push_back(Row("blit_source" + suffix, &C::Bound, spoilSource, &C::Blit,
                           ZO_INVALID_PARAM, log, "", expectOneFill));
    }
    return rows;
}

// Records that are not zeroed, refused memory, and a missing context.
Rows RefusalRows(const Drawing& drawing) {
    const harness::LogLine noMemory = SurfaceLine("out of memory\n");
    Rows rows;
    for (const char hasRenderer : drawing.fills) {
        const int fill = static_cast<int>(rows.size()) + 1;
        rows.push_back(Row(drawing.name + "_record_" + std::to_string(fill) + "_not_zeroed",
                           &C::WithFont, Fail("memset_s", fill), drawing.run, ZO_FAILURE,
                           {SurfaceLine("memset_s_func failed, rc = 34")},
                           hasRenderer == 'y' ? drawing.renderer : "", ExpectSizeUntouched));
    }
    rows.push_back(Row(drawing.name + "_no_memory_for_renderer", &C::WithFont, RefuseAllocation(1),
                       drawing.run, ZO_FAILURE, InitFails(drawing, ZO_FAILURE, {noMemory})));
    if (drawing.needsPool) {
        rows.push_back(Row(drawing.name + "_no_memory_for_pool", WithoutPool, RefuseAllocation(1),
                           drawing.run, ZO_FAILURE, {noMemory}));
    }
    if (drawing.tag != drawings[4].tag) { // text loads the default font first
        rows.push_back(
            {drawing.name + "_never_bound",
             {},
             {},
             drawing.run,
             ZO_PROGRAM_FAILED,
             InitFails(drawing, ZO_PROGRAM_FAILED, {Line("ShaderProgram", "Create shader fail\n")}),
             drawing.needsPool ? "+pool " : "",
             {},
             &C::Bound});
    }
    return rows;
}

// Init stops at the first component that fails and keeps those before it.
Rows InitRows() {
    std::set<std::string> made;
    Rows rows;
    for (const int i : {4, 1, 3, 2, 0}) {
        const Log log = InitFails(drawings[i], ZO_PROGRAM_FAILED, {noProgram});
        const int nth = static_cast<int>(made.size()) + 1;
        rows.push_back(Row("init_" + drawings[i].name + "_fails", &C::WithFont,
                           Fail("glCreateProgram", nth), &C::InitAll, ZO_PROGRAM_FAILED, log,
                           std::accumulate(made.begin(), made.end(), std::string())));
        made.insert(drawings[i].renderer);
    }
    return rows;
}

// On a target without an extent, a rectangle has none either, and text cannot be scaled.
Rows EmptyTargetRows() {
    const Step expectNoExtent = [](C&) {
        for (const harness::Vertex& vertex : harness::Current().vertices) {
            EXPECT_TRUE(vertex[0] == 0.0f && vertex[1] == 0.0f);
        }
    };
    Rows rows;
    for (const auto& [name, side] : {std::pair("width", &tagFrameBuffObject::width),
                                     std::pair("height", &tagFrameBuffObject::height)}) {
        const auto setSide = [side = side](C& c, int pixels) {
            c.surface->fboManager->slots[0].*side = pixels;
        };
        const Step prepare = [=](C& c) {
            c.WithAll();
            c.DrawText();
            setSide(c, 0);
        };
        const Step restore = [=](C& c) { setSide(c, 100); };
        rows.push_back(Row(std::string("rect_target_without_") + name, prepare, {}, &C::DrawRect,
                           ZO_SUCCESS, {}, "", expectNoExtent, restore));
        rows.push_back(Row(std::string("text_target_without_") + name, prepare, {}, &C::DrawText,
                           ZO_INVALID_PARAM,
                           {Line("OSDText", "Param is invalid\n"),
                            Line("OSDText", "get font alpha texture fail 101\n")},
                           "", {}, restore));
    }
    return rows;
}

Rows UnknownFormatRows() {
    const Step expectPicture = [](const C& c) {
        const int height = static_cast<int>(c.surface->ZoGetWindowHeight());
        EXPECT_EQ(ReadPixels(8, height).At(7, 7), (Pixel{255, 255, 255, 255}));
    };
    return {Row(
        "bitmap_unknown_format", &C::Bound, [](C& c) { c.bitmap.format = -1; }, &C::DisplayBitmap,
        ZO_SUCCESS, {SurfaceLine("Color format is invalid -1\n")}, "+bitmap ", expectPicture)};
}

} // namespace

Rows DrawingRows() {
    Rows rows = NullRows() + HandleRows() + InitRows() + EmptyTargetRows() + UnknownFormatRows();
    for (const Drawing& drawing : drawings) {
        rows = rows + RefusalRows(drawing);
    }
    return rows;
}
