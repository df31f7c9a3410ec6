#include "osd/TexturedQuad.h"

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
