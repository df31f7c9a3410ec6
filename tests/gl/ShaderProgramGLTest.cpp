// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/Calls.h"
#include "support/SurfaceFixture.h"

#include <gmock/gmock.h>

namespace {

constexpr char vert[] = "attribute vec4 position;\n"
                        "attribute vec4 idle;\n"
                        "void main() { gl_Position = position; }\n";
constexpr char frag[] = "uniform vec4 color;\n"
                        "uniform vec4 idle;\n"
                        "void main() { gl_FragColor = color; }\n";
constexpr char broken[] = "void main() { no such thing; }\n";
constexpr char stray[] = "varying vec4 never;\n"
                         "void main() { gl_FragColor = never; }\n";

class ShaderProgramGLTest : public SurfaceFixture {
protected:
    void SetUp() override {
        SurfaceFixture::SetUp();
        Bind();
        live = harness::DescribeLive();
    }

    const ShaderProgram program{};
    std::string live;
};

Log Lines(const std::string& text) {
    return {{6, "ShaderProgram", text}};
}

// The precision block. Its lines after the first have one width.
std::string PrecisionBlock() {
    return "#ifdef GL_FRAGMENT_PRECISION_HIGH\n"
           "precision highp float;" +
           std::string(11, ' ') + "\n#else" + std::string(28, ' ') + "\nprecision mediump float;" +
           std::string(9, ' ') + "\n#endif" + std::string(27, ' ') + "\n";
}

std::string SourceOf(GLuint shader) {
    char source[1024] = "";
    glGetShaderSource(shader, sizeof(source), nullptr, source);
    return source;
}

} // namespace

TEST_F(ShaderProgramGLTest, BuildsAProgramBehindTheCommonHeader) {
    unsigned int name = 0;
    const Calls calls = harness::Record([&] { name = program.CreateProgram(vert, frag); });
    GLuint shaders[2] = {};
    GLsizei count = 0;
    glGetAttachedShaders(name, 2, &count, shaders);
    ASSERT_EQ(count, 2);
    const GLuint vertex = std::min(shaders[0], shaders[1]);
    const GLuint fragment = std::max(shaders[0], shaders[1]);
    EXPECT_EQ(SourceOf(vertex), std::string("#version 100\n") + vert);
    EXPECT_EQ(SourceOf(fragment), "#version 100\n" + PrecisionBlock() + frag);
    EXPECT_EQ(
        calls,
        (Calls{Call("glCreateShader", 0x8B31), Call("glShaderSource", vertex, 3, data, "null"),
               Call("glCompileShader", vertex), Call("glGetShaderiv", vertex, 0x8B81, data),
               Call("glCreateShader", 0x8B30), Call("glShaderSource", fragment, 3, data, "null"),
               Call("glCompileShader", fragment), Call("glGetShaderiv", fragment, 0x8B81, data),
               Call("glCreateProgram"), Call("glAttachShader", name, vertex),
               Call("glAttachShader", name, fragment), Call("glLinkProgram", name),
               Call("glGetProgramiv", name, 0x8B82, data), Call("glDeleteShader", vertex),
               Call("glDeleteShader", fragment)}));
    EXPECT_EQ(harness::TakeLog(), Log());
    EXPECT_EQ(harness::Record([&] { program.ReleaseProgram(name); }),
              Calls{Call("glDeleteProgram", name)});
    EXPECT_EQ(harness::Record([&] { program.ReleaseProgram(0); }), Calls());
}

TEST_F(ShaderProgramGLTest, DeletesWhatDoesNotBuild) {
    const std::string compileLog = "Could not compile shader [0-9]+:\n(.|\n)+\n";
    const std::tuple<const char*, const char*, std::string> cases[] = {
        {broken, frag, compileLog},
        {vert, broken, compileLog},
        {vert, stray, "Could not link program:\n(.|\n)+\n"},
    };
    for (const auto& [vertex, fragment, text] : cases) {
        EXPECT_EQ(program.CreateProgram(vertex, fragment), 0U);
        const Log log = harness::TakeLog();
        ASSERT_EQ(log.size(), 1U);
        EXPECT_THAT(log[0].text, testing::MatchesRegex(text));
        EXPECT_EQ(harness::DescribeLive(), live);
    }
    for (const char* query : {"glGetShaderiv", "glGetProgramiv"}) { // the status
        harness::FailCall(query);
        EXPECT_EQ(program.CreateProgram(vert, frag), 0U) << query;
    }
    EXPECT_EQ(harness::DescribeLive(), live);
}

TEST_F(ShaderProgramGLTest, RefusesNullSources) {
    EXPECT_EQ(harness::Record([&] {
                  EXPECT_EQ(program.LoadShader(GL_VERTEX_SHADER, nullptr), 0U);
                  EXPECT_EQ(program.CreateProgram(nullptr, frag), 0U);
                  EXPECT_EQ(program.CreateProgram(vert, nullptr), 0U);
              }),
              Calls());
    EXPECT_EQ(harness::TakeLog(), Lines("Error source is NULL\n"));
}

TEST_F(ShaderProgramGLTest, PrintsTheDriversLog) {
    const GLuint shader = glCreateShader(GL_VERTEX_SHADER);
    const char* source = broken;
    glShaderSource(shader, 1, &source, nullptr);
    glCompileShader(shader);
    char text[1024] = "";
    GLsizei length = 0;
    glGetShaderInfoLog(shader, sizeof(text), &length, text);
    const std::string heading = "Could not compile shader " + std::to_string(shader) + ":\n";
    EXPECT_EQ(harness::Record([&] { program.PrintLog(shader); }),
              (Calls{Call("glIsShader", shader), Call("glIsProgram", shader),
                     Call("glGetShaderiv", shader, 0x8B84, data),
                     Call("glGetShaderInfoLog", shader, length + 1, "null", data)}));
    EXPECT_EQ(harness::TakeLog(), Lines(heading + text + "\n"));

    harness::FailCall("glGetShaderiv"); // the length of the log
    program.PrintLog(shader);
    EXPECT_EQ(harness::TakeLog(), Lines(heading + "\n"));
    harness::RefuseAllocation(1);
    program.PrintLog(shader);
    EXPECT_EQ(harness::TakeLog(), Lines("allocate memory fail\n"));

    glDeleteShader(shader);
    for (const GLuint other : {0U, 9999U}) {
        EXPECT_EQ(harness::Record([&] { program.PrintLog(other); }),
                  (Calls{Call("glIsShader", other), Call("glIsProgram", other)}));
        EXPECT_EQ(harness::TakeLog(), Lines("Not a shader or a program\n"));
    }
}

TEST_F(ShaderProgramGLTest, FindsUsedVariables) {
    const unsigned int name = program.CreateProgram(vert, frag);
    EXPECT_EQ(program.GetAttribLocation(name, "position"), glGetAttribLocation(name, "position"));
    EXPECT_EQ(program.GetUniformLocation(name, "color"), glGetUniformLocation(name, "color"));
    EXPECT_EQ(harness::TakeLog(), Log());
    for (const char* missing : {"idle", "unheardOf"}) { // removed as unused; never declared
        EXPECT_EQ(program.GetAttribLocation(name, missing), -1);
        EXPECT_EQ(harness::TakeLog(),
                  Lines(std::string("Could not bind attribute ") + missing + "\n"));
        EXPECT_EQ(program.GetUniformLocation(name, missing), -1);
        EXPECT_EQ(harness::TakeLog(),
                  Lines(std::string("Could not bind uniform ") + missing + "\n"));
    }
    program.ReleaseProgram(name);
}
