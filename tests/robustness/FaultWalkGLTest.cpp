// Every call that can fail, made to fail once: the walk runs a session of every operation again for
// each such call of it, and each time again without the fault.

#include "Session.h"
#include "platform/Log.h"
#include "support/SurfaceFixture.h"

#include <algorithm>
#include <cstring>
#include <iostream>

namespace {

constexpr char allocation[] = "allocation";
constexpr char noLine[] = "";

// What a fault leads to: a code, and a text in the step's log; no line means the log of a run
// without the fault.
struct Outcome {
    int code;
    const char* line;
};

// What a call's failure may lead to, in steps whose name starts as given.
struct Fault {
    const char* call;
    const char* steps;
    std::vector<Outcome> outcomes;
};

constexpr char noProgram[] = "create shader program fail";
constexpr char noTexture[] = "Create texture fail\n";
constexpr char incomplete[] = "Unable to set up render Target: ";
constexpr char absent[] = "Char 6";
constexpr char noSize[] = "set pixel size fail";
constexpr char leftOut[] = "characters are left out of the texture\n";
constexpr char unknownStatus[] = "Framebuffer incomplete: Unknown error.\n";
constexpr char noMemory[] = "out of memory\n";
constexpr char emptyAtlas[] = "Calculate texture width 0d, height 0d\n";

// Of several entries that fit, the first holds.
const std::vector<Fault> faults = {
    {"eglGetDisplay", "bind", {{ZO_NO_DISPLAY, "eglGetDisplay failed: 0x"}}},
    {"eglInitialize", "bind", {{ZO_DISPLAY_INIT_FAILED, "eglInitialize failed: 0x"}}},
    {"eglChooseConfig", "bind", {{ZO_NO_CONFIG, "eglChooseConfig error: 0x"}}},
    {"eglCreateContext", "bind", {{ZO_NO_CONTEXT, "eglCreateContext error: 0x"}}},
    {"eglCreateWindowSurface", "", {{ZO_NO_WINDOW_SURFACE, "eglCreateWindowSurface error: 0x"}}},
    {"eglMakeCurrent", "bind", {{ZO_FAILURE, "egl make current failed: 0x"}}},
    {"eglMakeCurrent", "move", {{ZO_FAILURE, "egl make current failed: 0x"}}},
    {"eglMakeCurrent", "lose", {{ZO_SUCCESS, noLine}}},
    {"eglQuerySurface", "", {{ZO_SUCCESS, noLine}}},
    {"eglSwapBuffers", "", {{ZO_SUCCESS, noLine}}},
    {"eglDestroyContext", "", {{ZO_SUCCESS, noLine}}},
    {"eglDestroySurface", "", {{ZO_SUCCESS, noLine}}},
    {"eglTerminate", "", {{ZO_SUCCESS, noLine}}},
    {"eglReleaseThread", "", {{ZO_SUCCESS, noLine}}},

    {"glCreateShader", "", {{ZO_PROGRAM_FAILED, noProgram}}},
    {"glCompileShader", "", {{ZO_PROGRAM_FAILED, noProgram}}},
    {"glGetShaderiv", "", {{ZO_PROGRAM_FAILED, noProgram}}},
    {"glCreateProgram", "", {{ZO_PROGRAM_FAILED, noProgram}}},
    {"glLinkProgram", "", {{ZO_PROGRAM_FAILED, noProgram}}},
    {"glGetProgramiv", "", {{ZO_PROGRAM_FAILED, noProgram}}},
    {"glGetAttribLocation", "", {{ZO_SUCCESS, "Could not bind attribute "}}},
    {"glGetUniformLocation", "", {{ZO_SUCCESS, "Could not bind uniform "}}},
    {"glGenBuffers", "", {{ZO_SUCCESS, noLine}}},
    {"glGenFramebuffers", "", {{ZO_SUCCESS, unknownStatus}}},
    {"glCheckFramebufferStatus", "", {{ZO_SUCCESS, unknownStatus}}},
    {"glGenTextures", "create", {{ZO_SUCCESS, incomplete}}},
    {"glGenTextures", "bind again", {{ZO_SUCCESS, incomplete}}},
    {"glGenTextures", "bitmap", {{ZO_SUCCESS, noLine}}},
    {"glGenTextures", "first bitmap", {{ZO_SUCCESS, noLine}}},
    {"glGenTextures", "", {{ZO_FAILURE, noTexture}}},
    {"glTexImage2D", "create", {{ZO_SUCCESS, incomplete}}},
    {"glTexImage2D", "bind again", {{ZO_SUCCESS, incomplete}}},
    {"glTexImage2D", "", {{ZO_SUCCESS, noLine}}},
    {"glBufferData", "", {{ZO_SUCCESS, noLine}}},
    {"glCopyTexImage2D", "", {{ZO_SUCCESS, noLine}}},
    {"glGetIntegerv", "", {{ZO_SUCCESS, noLine}}}, // a limit that is not told is none
    {"glGetString", "", {{ZO_SUCCESS, "GL "}}},

    {"FT_Init_FreeType", "", {{ZO_FREETYPE_FAILED, "Failed to initialize freetype library"}}},
    {"FT_New_Face", "", {{ZO_FONT_FACE_FAILED, "Error loading font face"}}},
    {"FT_Set_Pixel_Sizes", "", {{ZO_SUCCESS, noSize}, {ZO_FONT_ATLAS_EMPTY, noSize}}},
    // What fails as the texture is sized only finds no room in it afterwards.
    {"FT_Get_First_Char", "load", {{ZO_SUCCESS, noLine}, {ZO_FONT_ATLAS_EMPTY, emptyAtlas}}},
    {"FT_Get_First_Char", "", {{ZO_SUCCESS, absent}, {ZO_FONT_ATLAS_EMPTY, emptyAtlas}}},
    {"FT_Get_Next_Char", "load", {{ZO_SUCCESS, noLine}, {ZO_SUCCESS, leftOut}}},
    {"FT_Get_Next_Char", "", {{ZO_SUCCESS, absent}, {ZO_SUCCESS, leftOut}, {ZO_SUCCESS, noLine}}},
    {"FT_Load_Char", "text ", {{ZO_SUCCESS, noLine}, {ZO_SUCCESS, leftOut}}},
    {"FT_Load_Char", "", {{ZO_SUCCESS, "Loading character "}}},
    {"FT_Render_Glyph", "", {{ZO_SUCCESS, noLine}, {ZO_SUCCESS, leftOut}}},
    {"FT_Outline_Embolden", "", {{ZO_SUCCESS, noLine}, {ZO_SUCCESS, leftOut}}},
    {"FT_GlyphSlot_Own_Bitmap", "", {{ZO_SUCCESS, noLine}, {ZO_SUCCESS, leftOut}}},
    {"FT_Bitmap_Embolden", "", {{ZO_SUCCESS, noLine}, {ZO_SUCCESS, leftOut}}},
    {"FT_Bitmap_Convert", "", {{ZO_SUCCESS, leftOut}}},
    {"FT_Done_Face", "", {{ZO_SUCCESS, noLine}}},
    {"FT_Done_FreeType", "", {{ZO_SUCCESS, noLine}}},

    {"memset_s", "", {{ZO_FAILURE, "memset_s_func failed, rc = 34"}}},
    // A binding does not look at what became of the buffers.
    {allocation, "bind", {{ZO_FAILURE, noMemory}, {ZO_SUCCESS, noMemory}}},
    // The helper that compiles a program is one of the things that need memory.
    {allocation, "", {{ZO_FAILURE, noMemory}, {ZO_PROGRAM_FAILED, noProgram}}},
};

bool StartsWith(const char* text, const char* start) {
    return strncmp(text, start, strlen(start)) == 0;
}

// What a step did in a run without faults.
struct Trace {
    std::map<std::string, int> calls; ///< how often each was made
    Log log;
    Image image; ///< of what the step drew on
};

class FaultFixture : public SurfaceFixture {
protected:
    void SetUp() override {
        SurfaceFixture::SetUp();
        UseSessionFont();
    }

    Client NewClient() {
        surface = std::make_unique<ZoGLDrawSurface>();
        EXPECT_EQ(harness::DescribeLive(), "");
        return {surface.get(), window.Native(), otherWindow.Native()};
    }

    Image Look(const Step& step, const Client& client) {
        switch (step.drawing) {
        case Drawing::Left:
            return Read(client.left);
        case Drawing::Right:
            return Read(client.right);
        case Drawing::Window:
            return Read(ZO_WINDOW_HANDLE);
        default:
            return {};
        }
    }

    Trace RunCleanly(const Step& step, Client& client) {
        Trace trace;
        harness::Current().callCounts.clear();
        harness::TakeLog();
        int code = ZO_SUCCESS;
        trace.calls[allocation] = harness::CountAllocations([&] { code = step.run(client); });
        EXPECT_EQ(code, ZO_SUCCESS) << step.name;
        trace.calls.insert(harness::Current().callCounts.begin(),
                           harness::Current().callCounts.end());
        trace.log = harness::TakeLog();
        trace.image = Look(step, client);
        if (eglGetCurrentContext() != EGL_NO_CONTEXT) {
            EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR)) << step.name;
        }
        return trace;
    }

    std::vector<Trace> RunCleanSession(Client& client) {
        std::vector<Trace> traces;
        traces.reserve(session.size());
        for (const Step& step : session) {
            traces.push_back(RunCleanly(step, client));
        }
        return traces;
    }

    // Makes the `nth` call within a step fail, then goes on with the session as a client does who
    // does not care, and then runs it all over again.
    void Walk(const std::vector<Trace>& reference, size_t faulty, const Fault& fault, int nth) {
        SCOPED_TRACE(std::string(session[faulty].name) + ", " + fault.call + " " +
                     std::to_string(nth));
        Client client = NewClient();
        for (size_t i = 0; i < faulty; ++i) {
            EXPECT_EQ(session[i].run(client), ZO_SUCCESS) << session[i].name;
            Look(session[i], client); // as for the reference: softpipe rounds what is read
        }
        harness::TakeLog();
        if (fault.call == allocation) {
            harness::RefuseAllocation(nth);
        } else {
            harness::FailCall(fault.call, nth);
        }
        const int code = session[faulty].run(client);
        harness::RefuseAllocation(0);
        harness::Current().faults.clear();
        ExpectOutcome(fault, code, reference[faulty].log);
        ExpectStateAtRest();
        // A binding that got as far as a surface has to be let go of first.
        const bool isHalfBound = surface->eglManager && !surface->surfaceCreated;
        EXPECT_EQ(session[faulty].run(client), isHalfBound ? ZO_FAILURE : ZO_SUCCESS) << "at once";
        EXPECT_TRUE(code == ZO_SUCCESS || isHalfBound ||
                    Look(session[faulty], client).pixels == reference[faulty].image.pixels);
        for (size_t i = faulty; i < session.size(); ++i) {
            const int next = i == faulty ? code : session[i].run(client);
            const std::vector<int>& codes = session[i].codes;
            EXPECT_TRUE(next == ZO_SUCCESS ||
                        std::find(codes.begin(), codes.end(), next) != codes.end())
                << session[i].name << " returned " << next;
        }
        const std::vector<Trace> again = RunCleanSession(client);
        for (size_t i = 0; i < session.size(); ++i) {
            EXPECT_TRUE(again[i].image.pixels == reference[i].image.pixels) << session[i].name;
        }
    }

    // What every operation leaves, whatever became of it.
    static void ExpectStateAtRest() {
        if (eglGetCurrentContext() == EGL_NO_CONTEXT) {
            return;
        }
        constexpr GLenum state[] = {GL_FRAMEBUFFER_BINDING, GL_ARRAY_BUFFER_BINDING,
                                    GL_TEXTURE_BINDING_2D, GL_BLEND};
        for (const GLenum binding : state) {
            GLint value = -1;
            glGetIntegerv(binding, &value);
            EXPECT_EQ(value, 0) << binding;
        }
    }

    static void ExpectOutcome(const Fault& fault, int code, const Log& usualLog) {
        const Log log = harness::TakeLog();
        const bool isListed =
            std::any_of(fault.outcomes.begin(), fault.outcomes.end(), [&](const Outcome& outcome) {
                const auto isTheLine = [&](const harness::LogLine& line) {
                    return line.priority == LogError &&
                           line.text.find(outcome.line) != std::string::npos;
                };
                return code == outcome.code &&
                       (outcome.line == noLine ? log == usualLog
                                               : std::any_of(log.begin(), log.end(), isTheLine));
            });
        EXPECT_TRUE(isListed) << "returned " << code << " and logged "
                              << ::testing::PrintToString(log);
    }

    TestWindow otherWindow{windowWidth / 2, windowHeight / 2};
};

const Fault* FindFault(const std::string& call, const char* step) {
    const auto found = std::find_if(faults.begin(), faults.end(), [&](const Fault& fault) {
        return call == fault.call && StartsWith(step, fault.steps);
    });
    return found == faults.end() ? nullptr : &*found;
}

// Calls that can fail: they say so, yield nothing, or need storage.
bool CanFail(const std::string& call) {
    constexpr const char* families[] = {"egl",       "FT_",    "memset_s",   "glGen",
                                        "glCreate",  "glGet",  "glCheck",    "glCopyTex",
                                        "glCompile", "glLink", "glTexImage", "glBufferData"};
    return call != "FT_Set_Transform" &&
           std::any_of(std::begin(families), std::end(families),
                       [&](const char* family) { return StartsWith(call.c_str(), family); });
}

class FaultTableGLTest : public FaultFixture {};
class FaultWalkGLTest : public FaultFixture, public ::testing::WithParamInterface<size_t> {};

} // namespace

TEST_F(FaultTableGLTest, ListsEachCallThatCanFail) {
    Client client = NewClient();
    const std::vector<Trace> reference = RunCleanSession(client);
    std::set<std::string> made;
    for (size_t i = 0; i < session.size(); ++i) {
        for (const auto& [call, count] : reference[i].calls) {
            EXPECT_TRUE(FindFault(call, session[i].name) != nullptr || !CanFail(call))
                << call << " in " << session[i].name;
            made.insert(count == 0 ? "" : call);
        }
    }
    for (const Fault& fault : faults) {
        EXPECT_EQ(made.count(fault.call), 1U) << fault.call << " is never made";
    }
}

TEST_P(FaultWalkGLTest, SurvivesEachSingleFault) {
    Client client = NewClient();
    const std::vector<Trace> reference = RunCleanSession(client);
    ASSERT_FALSE(HasFailure());
    int walked = 0;
    for (const auto& [call, count] : reference[GetParam()].calls) {
        const Fault* fault = FindFault(call, session[GetParam()].name);
        for (int nth = 1; fault != nullptr && nth <= count; ++nth, ++walked) {
            Walk(reference, GetParam(), *fault, nth);
        }
    }
    RecordProperty("faults", walked);
    std::cout << "single faults survived: " << walked << '\n';
}

INSTANTIATE_TEST_SUITE_P(Steps, FaultWalkGLTest, ::testing::Range<size_t>(0, session.size()),
                         [](const auto& instance) {
                             std::string name = session[instance.param].name;
                             std::replace(name.begin(), name.end(), ' ', '_');
                             return name;
                         });
