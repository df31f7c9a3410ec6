// Shader programs, and the operations that draw or measure, when they lack something.

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
    std::string fills; ///< of each whether the renderer exists by then: y or n
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
        for (std::string part; parts >> part;) { // unbound, where nothing may be made either
            rows.emplace_back(
                drawing.name + "_null_" + part, Step(), [part](C& c) { c.missing = part; },
                drawing.run, ZO_INVALID_PARAM, Log{SurfaceLine("param is nullptr\n")}, "",
                ExpectSizeUntouched, &C::Bound);
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
                rows.emplace_back(drawing.name + suffix, &C::Bound, spoil, drawing.run,
                                  ZO_INVALID_PARAM, log);
                rows.emplace_back(drawing.name + "_unbound" + suffix, Step(), spoil, drawing.run,
                                  ZO_INVALID_PARAM, log, "+pool ", Step(), &C::Bound);
            }
        }
        rows.emplace_back("blit_source" + suffix, &C::Bound, spoilSource, &C::Blit,
                          ZO_INVALID_PARAM, log, "", expectOneFill);
    }
    return rows;
}

// Memory, records and the renderer, each of which can be refused.
Rows RefusalRows(const Drawing& drawing) {
    const harness::LogLine noMemory = SurfaceLine("out of memory\n");
    Rows rows;
    for (const char hasRenderer : drawing.fills) {
        const int fill = static_cast<int>(rows.size()) + 1;
        rows.emplace_back(drawing.name + "_record_" + std::to_string(fill) + "_not_zeroed",
                          &C::WithFont, Fail("memset_s", fill), drawing.run, ZO_FAILURE,
                          Log{SurfaceLine("memset_s_func failed, rc = 34")},
                          hasRenderer == 'y' ? drawing.renderer : "", ExpectSizeUntouched);
    }
    const char* noShader = "Create shader fail\n";
    const char* notCompiled = "Could not compile shader #:\n\n";
    const char* notLinked = "Could not link program:\n\n";
    const std::tuple<const char*, const char*, int, const char*> programFaults[] = {
        {"_no_vertex_shader", "glCreateShader", 1, noShader},
        {"_no_fragment_shader", "glCreateShader", 2, noShader},
        {"_vertex_shader_not_compiled", "glCompileShader", 1, notCompiled},
        {"_fragment_shader_not_compiled", "glCompileShader", 2, notCompiled},
        {"_vertex_shader_untold", "glGetShaderiv", 1, notCompiled},
        {"_fragment_shader_untold", "glGetShaderiv", 2, notCompiled},
        {"_no_program", "glCreateProgram", 1, "create program fail\n"},
        {"_program_not_linked", "glLinkProgram", 1, notLinked},
        {"_program_untold", "glGetProgramiv", 1, notLinked},
    };
    const auto addInit = [&](const char* condition, const Step& fault, int code, const Log& log) {
        rows.emplace_back(drawing.name + condition, &C::WithFont, fault, drawing.run, code,
                          InitFails(drawing, code, log));
    };
    for (const auto& [condition, call, nth, line] : programFaults) {
        addInit(condition, Fail(call, nth), ZO_PROGRAM_FAILED, {Line("ShaderProgram", line)});
    }
    addInit("_no_memory_for_renderer", RefuseAllocation(1), ZO_FAILURE, {noMemory});
    addInit("_no_memory_for_program", RefuseAllocation(2), ZO_PROGRAM_FAILED, {});
    if (drawing.needsPool) {
        rows.emplace_back(drawing.name + "_no_memory_for_pool", WithoutPool, RefuseAllocation(1),
                          drawing.run, ZO_FAILURE, Log{noMemory});
    }
    const char* change = drawing.needsPool ? "+pool " : "";
    const Log log = InitFails(drawing, ZO_PROGRAM_FAILED, {Line("ShaderProgram", noShader)});
    if (drawing.tag != drawings[4].tag) { // text loads the default font first
        rows.emplace_back(drawing.name + "_never_bound", Step(), Step(), drawing.run,
                          ZO_PROGRAM_FAILED, log, change, Step(), &C::Bound);
        rows.emplace_back(drawing.name + "_window_lost", &C::WindowLost, Step(), drawing.run,
                          ZO_PROGRAM_FAILED, log, change, Step(), &C::Bound);
    }
    return rows;
}

// Init stops at the first component that fails, and keeps those before it.
Rows InitRows() {
    std::set<std::string> made;
    Rows rows;
    for (const int i : {4, 1, 3, 2, 0}) {
        const Log log = InitFails(drawings[i], ZO_PROGRAM_FAILED,
                                  {Line("ShaderProgram", "create program fail\n")});
        const int nth = static_cast<int>(made.size()) + 1;
        rows.emplace_back("init_" + drawings[i].name + "_fails", &C::WithFont,
                          Fail("glCreateProgram", nth), &C::InitAll, ZO_PROGRAM_FAILED, log,
                          std::accumulate(made.begin(), made.end(), std::string()));
        made.insert(drawings[i].renderer);
    }
    return rows;
}

template <unsigned int Component>
int InitOne(C& c) {
    return c.surface->Init(Component);
}

Rows ProgramRows() {
    const auto shaderLine = [](const char* text) { return Line("ShaderProgram", text); };
    const Operation loadNothing = [](C&) {
        return ShaderProgram().LoadShader(GL_VERTEX_SHADER, nullptr) == 0 ? ZO_PROGRAM_FAILED
                                                                          : ZO_SUCCESS;
    };
    const Operation buildNothing = [](C&) {
        const ShaderProgram programs;
        return programs.CreateProgram(nullptr, "") + programs.CreateProgram("", nullptr) == 0
                   ? ZO_PROGRAM_FAILED
                   : ZO_SUCCESS;
    };
    const Step expectNoCall = [](C& c) { EXPECT_TRUE(c.calls.empty()); };
    const Step neitherKind = And(Fail("glCompileShader"), Fail("glIsShader"));
    const Step noMemoryForLog = And(Fail("glCompileShader"), RefuseAllocation(3));
    const Step noLocation = [](C&) { harness::Current().locate = [](const auto&) { return -1; }; };
    const Step expectNoLocation = [](C& c) {
        const OSDText& text = *c.surface->osdText;
        EXPECT_TRUE(text.coordLocation == -1 && text.texLocation == -1 && text.colorLocation == -1);
    };
    const Step expectPicture = [](C&) {
        EXPECT_EQ(ReadPixels(8, 120).At(7, 7), (Pixel{255, 255, 255, 255}));
    };
    const harness::LogLine noColor = shaderLine("Could not bind uniform color\n");
    const Drawing& rect = drawings[0];
    return {
        Row("shader_null_source", &C::Bound, {}, loadNothing, ZO_PROGRAM_FAILED,
            {shaderLine("Error source is NULL\n")}, "", expectNoCall, {}, ZO_PROGRAM_FAILED),
        Row("program_null_source", &C::Bound, {}, buildNothing, ZO_PROGRAM_FAILED, {}, "",
            expectNoCall, {}, ZO_PROGRAM_FAILED),
        Row("driver_log_of_no_shader_and_no_program", &C::Bound, neitherKind, rect.run,
            ZO_PROGRAM_FAILED,
            InitFails(rect, ZO_PROGRAM_FAILED, {shaderLine("Not a shader or a program\n")})),
        Row("driver_log_without_memory", &C::Bound, noMemoryForLog, rect.run, ZO_PROGRAM_FAILED,
            InitFails(rect, ZO_PROGRAM_FAILED, {shaderLine("allocate memory fail\n")})),
        Row("rect_locations_missing", &C::Bound, noLocation, InitOne<ZO_COMPONENT_RECT>, ZO_SUCCESS,
            {shaderLine("Could not bind attribute vPosition\n"), noColor}, "+rect ", {},
            [](const C& c) { c.surface->osdRect.reset(); }),
        Row("text_locations_missing", &C::WithFont, noLocation, InitOne<ZO_COMPONENT_TEXT>,
            ZO_SUCCESS,
            {shaderLine("Could not bind attribute coord\n"),
             shaderLine("Could not bind uniform tex\n"), noColor},
            "+text ", expectNoLocation),
        Row(
            "bitmap_unknown_format", &C::Bound, [](C& c) { c.bitmap.format = -1; },
            &C::DisplayBitmap, ZO_SUCCESS, {SurfaceLine("Color format is invalid -1\n")},
            "+bitmap ", expectPicture),
    };
}

// On a target without an extent, a rectangle has none either, and text cannot be scaled.
template <int tagFrameBuffObject::*Side>
Rows EmptyTargetRows(const std::string& name) {
    const Step prepare = [](C& c) {
        c.WithAll();
        EXPECT_EQ(c.DrawText(), ZO_SUCCESS);
        c.surface->fboManager->slots[0].*Side = 0;
    };
    const Step mend = [](const C& c) { c.surface->fboManager->slots[0].*Side = 160; };
    const Step expectNoExtent = [](C&) {
        const std::vector<unsigned char>& bytes = harness::Current().bufferData;
        for (size_t i = 0; i < size_t{6} * 16; i += 16) { // x and y of six vertices
            EXPECT_TRUE(std::all_of(&bytes.at(i), &bytes.at(i + 8), [](int b) { return b == 0; }));
        }
    };
    return {Row("rect_target_without_" + name, prepare, {}, &C::DrawRect, ZO_SUCCESS, {}, "",
                expectNoExtent, mend),
            Row("text_target_without_" + name, prepare, {}, &C::DrawText, ZO_INVALID_PARAM,
                {Line("OSDText", "Param is invalid\n"),
                 Line("OSDText", "get font alpha texture fail 101\n")},
                "", {}, mend)};
}

} // namespace

Rows DrawingRows() {
    Rows rows = NullRows() + HandleRows() + InitRows() + ProgramRows() +
                EmptyTargetRows<&tagFrameBuffObject::width>("width") +
                EmptyTargetRows<&tagFrameBuffObject::height>("height");
    for (const Drawing& drawing : drawings) {
        rows = rows + RefusalRows(drawing);
    }
    return rows;
}
