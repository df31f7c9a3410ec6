#include "osd/TexturedQuad.h"

#include "gl/RenderTarget.h"

namespace {

constexpr char vertexSource[] = "attribute vec4 coord;\n"
                                "varying vec2 texpos;\n"
                                "void main() {\n"
                                "    gl_Position = vec4(coord.xy, 0, 1);\n"
                                "    texpos = coord.zw;\n"
                                "}\n";
constexpr char fragmentSource[] = "precision mediump float;\n"
                                  "varying vec2 texpos;\n"
                                  "uniform sampler2D tex;\n"
                                  "void main() {\n"
                                  "    gl_FragColor = texture2D(tex, texpos);\n"
                                  "}\n";

} // namespace

int InitTexturedQuad(const char* tag, std::unique_ptr<ShaderProgram>& helper, GLuint& program,
                     GLuint& vertexBuffer, GLint& coordLocation, GLint& texLocation) {
    ReleaseObjects(helper, program, vertexBuffer);
    const int code = BuildProgram(tag, vertexSource, fragmentSource, helper, program);
    if (code != ZO_SUCCESS) {
        return code;
    }
    coordLocation = helper->GetAttribLocation(program, "coord");
    texLocation = helper->GetUniformLocation(program, "tex");
    glGenBuffers(1, &vertexBuffer);
    return ZO_SUCCESS;
}

void BindSource(GLuint texture, GLint texLocation) {
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, texture);
    glUniform1i(texLocation, 0);
}

void PlaceRegion(const tagRectInfo& texRect, const tagRectInfo& posRect, Vertex (&quad)[4]) {
    const float left = posRect.x;
    const float right = posRect.x + posRect.width;
    const float top = posRect.y;
    const float bottom = posRect.y - posRect.height;
    const float s0 = texRect.x;
    const float s1 = texRect.x + texRect.width;
    const float t0 = texRect.y;
    const float t1 = texRect.y - texRect.height;
    quad[0] = {left, bottom, s0, t1};
    quad[1] = {right, bottom, s1, t1};
    quad[2] = {left, top, s0, t0};
    quad[3] = {right, top, s1, t0};
}

void DrawQuad(const Vertex (&quad)[4]) {
    static constexpr GLushort indices[] = {0, 1, 2, 3, 2, 1};
    LoadVertices(quad, 4);
    glDrawElements(GL_TRIANGLES, 6, GL_UNSIGNED_SHORT, indices);
}

void ClearWindow(int width, int height) {
    BindTarget(0, width, height);
    ClearTarget(transparentBlack, GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}
