// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
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

Rows NullRows() {
    Rows rows;
    for (const Drawing& drawing : drawings) {
        std::istringstream parts(drawing.pointers);
        for (std::string part; parts >> part;) { // unbound: nothing may be created
            rows.push_back(Row(drawing.name + "_null_" + part, {}, Without(part), drawing.run,
                               ZO_INVALID_PARAM, {SurfaceLine("param is nullptr\n")}));
        }
    }
    return rows;
}

Rows HandleRows() {
    const Log log = {SurfaceLine("There is not the fbo\n")};
    Rows rows;
    for (const unsigned int handle : {0U, 1U, 0x10009U, 0x20000U, ZO_NO_HANDLE}) {
        const std::string suffix = "_unknown_handle_" + std::to_string(handle);
        const Step spoil = [handle](C& c) { c.handle = c.blit.dstHandle = handle; };
        const Step spoilSource = [handle](C& c) { c.blit.srcHandle = handle; };
        const auto add = [&](const std::string& name, const Step& fault, const Operation& run) {
            rows.push_back({name + suffix, &C::Bound, fault, run, ZO_INVALID_PARAM, log});
            rows.push_back(
                {name + suffix + "_unbound", {}, fault, run, ZO_INVALID_PARAM, log, "+pool "});
        };
        for (const Drawing& drawing : drawings) {
            if (drawing.needsPool) {
                add(drawing.name, spoil, drawing.run);
            }
        }
        add("blit_source", spoilSource, &C::Blit);
    }
    return rows;
}

// Records that are not zeroed, refused memory, and a missing context.
Rows RefusalRows(const Drawing& drawing) {
    const harness::LogLine noMemory = SurfaceLine("out of memory\n");
    Rows rows;
    const auto add = [&](const std::string& name, const Step& prepare, const Step& fault, int code,
                         const Log& log, const char* change) {
        rows.push_back({drawing.name + name, prepare, fault, drawing.run, code, log, change});
    };
    for (const char hasRenderer : drawing.fills) {
        const int fill = static_cast<int>(rows.size()) + 1;
        add("_record_" + std::to_string(fill) + "_not_zeroed", &C::WithFont, Fail("memset_s", fill),
            ZO_FAILURE, {SurfaceLine("memset_s_func failed, rc = 34")},
            hasRenderer == 'y' ? drawing.renderer : "");
    }
    add("_no_memory_for_renderer", &C::WithFont, RefuseAllocation(1), ZO_FAILURE,
        InitFails(drawing, ZO_FAILURE, {noMemory}), "");
    if (drawing.needsPool) {
        add("_no_memory_for_pool", &C::WithoutPool, RefuseAllocation(1), ZO_FAILURE, {noMemory},
            "");
    }
    if (drawing.tag != drawings[4].tag) { // text loads the default font first
        add("_never_bound", {}, {}, ZO_PROGRAM_FAILED,
            InitFails(drawing, ZO_PROGRAM_FAILED, {Line("ShaderProgram", "Create shader fail\n")}),
            drawing.needsPool ? "+pool " : "");
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
        const Step prepare = [side = side](C& c) {
            c.WithAll();
            c.DrawText();
            c.surface->fboManager->slots[1].*side = 0;
        };
        const Step useBuffer = Set(&Request::handle, 0x10001U);
        rows.push_back(Row(std::string("rect_target_without_") + name, prepare, useBuffer,
                           &C::DrawRect, ZO_SUCCESS, {}, "", expectNoExtent));
        rows.push_back(Row(std::string("text_target_without_") + name, prepare, useBuffer,
                           &C::DrawText, ZO_INVALID_PARAM,
                           {Line("OSDText", "Param is invalid\n"),
                            Line("OSDText", "get font alpha texture fail 101\n")}));
    }
    return rows;
}

// The copy that a blit within a buffer reads from, and a bitmap's format.
Rows InputRows() {
    const Step useOneBuffer = [](C& c) { c.blit.srcHandle = c.blit.dstHandle = 0x10001; };
    const Step expectPicture = [](const C& c) {
        const int height = static_cast<int>(c.surface->ZoGetWindowHeight());
        EXPECT_EQ(ReadPixels(8, height).At(7, 7), (Pixel{200, 100, 50, 255}));
    };
    return {Row("blit_within_buffer_without_texture", &C::WithAll,
                And(useOneBuffer, Fail("glGenTextures")), &C::Blit, ZO_FAILURE,
                {SurfaceLine("Create texture fail\n")}),
            Row(
                "bitmap_unknown_format", &C::Bound, [](C& c) { c.bitmap.format = -1; },
                &C::DisplayBitmap, ZO_SUCCESS, {SurfaceLine("Color format is invalid -1\n")},
                "+bitmap ", expectPicture)};
}

} // namespace

Rows DrawingRows() {
    Rows rows = NullRows() + HandleRows() + InitRows() + EmptyTargetRows() + InputRows();
    for (const Drawing& drawing : drawings) {
        rows = rows + RefusalRows(drawing);
    }
    return rows;
}
