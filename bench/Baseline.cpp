// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "Baseline.h"

namespace {

using Box = Baseline::Box;
using Target = Baseline::Target;
using Vertex = Baseline::Vertex;

constexpr char rectVertex[] = "attribute vec4 vPosition;\n"
                              "void main() { gl_Position = vPosition; }\n";
constexpr char rectFragment[] = "precision mediump float;\n"
                                "uniform vec4 color;\n"
                                "void main() { gl_FragColor = color; }\n";
constexpr char quadVertex[] = "attribute vec4 coord;\n"
                              "varying vec2 texpos;\n"
                              "void main() {\n"
                              "    gl_Position = vec4(coord.xy, 0, 1);\n"
                              "    texpos = coord.zw;\n"
                              "}\n";
constexpr char quadFragment[] = "precision mediump float;\n"
                                "varying vec2 texpos;\n"
                                "uniform sampler2D tex;\n"
                                "void main() { gl_FragColor = texture2D(tex, texpos); }\n";
constexpr char textFragment[] =
    "precision mediump float;\n"
    "varying vec2 texpos;\n"
    "uniform sampler2D tex;\n"
    "uniform vec4 color;\n"
    "void main() { gl_FragColor = vec4(1, 1, 1, texture2D(tex, texpos).a) * color; }\n";
constexpr GLushort quadIndices[] = {0, 1, 2, 3, 2, 1};

GLuint Compile(GLenum type, const char* source) {
    const GLuint shader = glCreateShader(type);
    const char* strings[] = {"#version 100\n", source};
    glShaderSource(shader, 2, strings, nullptr);
    glCompileShader(shader);
    return shader;
}

GLuint NewBuffer() {
    GLuint buffer = 0;
    glGenBuffers(1, &buffer);
    return buffer;
}

GLuint Program(const char* vertexSource, const char* fragmentSource) {
    const GLuint program = glCreateProgram();
    glAttachShader(program, Compile(GL_VERTEX_SHADER, vertexSource));
    glAttachShader(program, Compile(GL_FRAGMENT_SHADER, fragmentSource));
    glLinkProgram(program);
    return program;
}

Baseline::Quad MakeQuad() {
    const GLuint program = Program(quadVertex, quadFragment);
    return {program, glGetUniformLocation(program, "tex"), NewBuffer()};
}

Box VertexBox(const tagZoRectInfo& rect, int targetWidth, int targetHeight) {
    const float width = static_cast<float>(targetWidth);
    const float height = static_cast<float>(targetHeight);
    const float left = 2.0f * static_cast<float>(rect.x) / width - 1.0f;
    const float top = 1.0f - 2.0f * static_cast<float>(rect.y) / height;
    return {left, left + 2.0f * static_cast<float>(rect.width) / width, top,
            top - 2.0f * static_cast<float>(rect.height) / height};
}

Box TextureBox(const tagZoRectInfo& rect, int targetWidth, int targetHeight) {
    const float width = static_cast<float>(targetWidth);
    const float height = static_cast<float>(targetHeight);
    const float left = static_cast<float>(rect.x) / width;
    const float top = 1.0f - static_cast<float>(rect.y) / height;
    return {left, left + static_cast<float>(rect.width) / width, top,
            top - static_cast<float>(rect.height) / height};
}

void SetTextureParameters() {
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

void DrawQuad(const Baseline::Quad& quad, GLuint texture, const Vertex (&corners)[4]) {
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, texture);
    glUniform1i(quad.texture, 0);
    glEnableVertexAttribArray(0);
    glBindBuffer(GL_ARRAY_BUFFER, quad.buffer);
    glVertexAttribPointer(0, 4, GL_FLOAT, GL_FALSE, 0, nullptr);
    glBufferData(GL_ARRAY_BUFFER, sizeof(corners), corners, GL_DYNAMIC_DRAW);
    glDrawElements(GL_TRIANGLES, 6, GL_UNSIGNED_SHORT, quadIndices);
}

void ClearWindow(const Target& window) {
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    glViewport(0, 0, window.width, window.height);
    glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

} // namespace

// Each program has one attribute, which the driver puts at location 0.
Baseline::Baseline(size_t longestText)
    : window{0, 0, windowWidth, windowHeight}, rectProgram(Program(rectVertex, rectFragment)),
      textProgram(Program(quadVertex, textFragment)),
      rectColor(glGetUniformLocation(rectProgram, "color")),
      textColor(glGetUniformLocation(textProgram, "color")),
      textTexture(glGetUniformLocation(textProgram, "tex")), rectBuffer(NewBuffer()),
      textBuffer(NewBuffer()), blitQuad(MakeQuad()), frameQuad(MakeQuad()), bitmapQuad(MakeQuad()),
      vertices(6 * longestText) {
    FT_Init_FreeType(&freetype);
}

Baseline::~Baseline() {
    FT_Done_FreeType(freetype); // also closes its faces
}

Target Baseline::CreateTarget(int width, int height) {
    Target target = {0, 0, width, height};
    glActiveTexture(GL_TEXTURE0);
    glGenTextures(1, &target.texture);
    glBindTexture(GL_TEXTURE_2D, target.texture);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, width, height, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    SetTextureParameters();
    glGenFramebuffers(1, &target.framebuffer);
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, target.texture, 0);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
    glBindTexture(GL_TEXTURE_2D, 0);
    return target;
}

void Baseline::FillRect(const Target& target, const tagZoRectInfo& rect, const Color& color) const {
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glViewport(0, 0, target.width, target.height);
    glUseProgram(rectProgram);
    glUniform4fv(rectColor, 1, color.data());
    glEnableVertexAttribArray(0);
    glBindBuffer(GL_ARRAY_BUFFER, rectBuffer);
    glVertexAttribPointer(0, 4, GL_FLOAT, GL_FALSE, 0, nullptr);
    const Box box = VertexBox(rect, target.width, target.height);
    const Vertex corners[] = {
        {box.left, box.top, 0.0f, 1.0f},    {box.right, box.top, 0.0f, 1.0f},
        {box.left, box.bottom, 0.0f, 1.0f}, {box.right, box.bottom, 0.0f, 1.0f},
        {box.left, box.bottom, 0.0f, 1.0f}, {box.right, box.top, 0.0f, 1.0f},
    };
    glBufferData(GL_ARRAY_BUFFER, sizeof(corners), corners, GL_DYNAMIC_DRAW);
    glDrawArrays(GL_TRIANGLES, 0, 6);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glDisableVertexAttribArray(0);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

void Baseline::Blit(const Target& from, const Target& to, const tagZoRectInfo& src,
                    const tagZoRectInfo& dst) const {
    const Box pos = VertexBox(dst, to.width, to.height);
    const Box tex = TextureBox(src, from.width, from.height);
    glBindFramebuffer(GL_FRAMEBUFFER, to.framebuffer);
    glViewport(0, 0, to.width, to.height);
    glUseProgram(blitQuad.program);
    DrawQuad(blitQuad, from.texture,
             {{pos.left, pos.bottom, tex.left, tex.bottom},
              {pos.right, pos.bottom, tex.right, tex.bottom},
              {pos.left, pos.top, tex.left, tex.top},
              {pos.right, pos.top, tex.right, tex.top}});
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glDisableVertexAttribArray(0);
    glBindTexture(GL_TEXTURE_2D, 0);
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}

void Baseline::Present(const Target& from, const tagZoRectInfo& src,
                       const tagZoRectInfo& dst) const {
    const Box pos = VertexBox(dst, window.width, window.height);
    const Box tex = TextureBox(src, from.width, from.height);
    ClearWindow(window);
    glUseProgram(frameQuad.program);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    DrawQuad(frameQuad, from.texture,
             {{pos.left, pos.bottom, tex.left, tex.bottom},
              {pos.right, pos.bottom, tex.right, tex.bottom},
              {pos.left, pos.top, tex.left, tex.top},
              {pos.right, pos.top, tex.right, tex.top}});
    glDisable(GL_BLEND);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glDisableVertexAttribArray(0);
    glBindTexture(GL_TEXTURE_2D, 0);
}

void Baseline::ShowBitmap(const tagZoBitmapInfo& bitmap) const {
    GLuint texture = 0;
    glActiveTexture(GL_TEXTURE0);
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, static_cast<GLsizei>(bitmap.width),
                 static_cast<GLsizei>(bitmap.height), 0, GL_RGBA, GL_UNSIGNED_BYTE, bitmap.data);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    SetTextureParameters();
    glBindTexture(GL_TEXTURE_2D, 0);
    ClearWindow(window);
    glUseProgram(bitmapQuad.program);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    const Box pos = VertexBox(bitmap.rect, window.width, window.height);
    DrawQuad(bitmapQuad, texture,
             {{pos.left, pos.top, 0.0f, 0.0f},
              {pos.right, pos.top, 1.0f, 0.0f},
              {pos.left, pos.bottom, 0.0f, 1.0f},
              {pos.right, pos.bottom, 1.0f, 1.0f}});
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glDisableVertexAttribArray(0);
    glDisable(GL_BLEND);
    glBindTexture(GL_TEXTURE_2D, 0);
    glDeleteTextures(1, &texture);
}
