#include "osd/OSDRect.h"

#include "gl/RenderTarget.h"
#include "gl/RendererObjects.h"
#include "gl/Vertices.h"
#include "surface/Components.h"
#include "surface/Conversions.h"

namespace {

constexpr char vertexSource[] = "attribute vec4 vPosition;\n"
                                "void main() {\n"
                                "    gl_Position = vPosition;\n"
                                "}\n";
constexpr char fragmentSource[] = "precision mediump float;\n"
                                  "uniform vec4 color;\n"
                                  "void main() {\n"
                                  "    gl_FragColor = color;\n"
                                  "}\n";

} // namespace

OSDRect::OSDRect() : program(0), vertexBuffer(0), positionLocation(0), colorLocation(0) {}

OSDRect::~OSDRect() {
    ReleaseObjects(shaderProgram, program, vertexBuffer);
}

int OSDRect::Init() {
    ReleaseObjects(shaderProgram, program, vertexBuffer);
    const int code = BuildProgram("OSDRect", vertexSource, fragmentSource, shaderProgram, program);
    if (code != ZO_SUCCESS) {
        return code;
    }
    positionLocation = shaderProgram->GetAttribLocation(program, "vPosition");
    colorLocation = shaderProgram->GetUniformLocation(program, "color");
    glGenBuffers(1, &vertexBuffer);
    return ZO_SUCCESS;
}

void OSDRect::DrawRect(const tagFrameBuffObject* target, const tagRectInfo* rect,
                       const tagColorRGBA* color) const {
    BindTarget(target->framebuffer, target->width, target->height);
    glUseProgram(program);
    glUniform4fv(colorLocation, 1, &color->r);
    BindVertices(positionLocation, vertexBuffer);

    const float left = rect->x;
    const float right = rect->x + rect->width;
    const float top = rect->y;
    const float bottom = rect->y - rect->height;
    const Vertex vertices[] = {
        {left, top, 0.0f, 1.0f},     {right, top, 0.0f, 1.0f},   {left, bottom, 0.0f, 1.0f},
        {right, bottom, 0.0f, 1.0f}, {left, bottom, 0.0f, 1.0f}, {right, top, 0.0f, 1.0f},
    };
    LoadVertices(vertices, 6);
    glDrawArrays(GL_TRIANGLES, 0, 6);

    UnbindVertices(positionLocation);
    UnbindTarget();
}

int ZoGLDrawSurface::OSDRectInit(unsigned int flags) {
    if ((flags & ZO_COMPONENT_RECT) == 0 || osdRect) {
        return ZO_SUCCESS;
    }
    return InstallComponent(osdRect, "OSD Rect init fail %d\n");
}

int ZoGLDrawSurface::ZoDrawRect(unsigned int fbo, const tagZoRectInfo* rect,
                                const tagZoColorRGBA* color) {
    if (rect == nullptr || color == nullptr) {
        return RefuseNull();
    }
    tagFrameBuffObject target;
    int code = FindTarget(fbo, &target);
    if (code == ZO_SUCCESS && !osdRect) {
        code = OSDRectInit(ZO_COMPONENT_RECT);
    }
    tagRectInfo glRect;
    if (code == ZO_SUCCESS) {
        code = ZeroRecord(&glRect);
    }
    tagColorRGBA glColor;
    if (code == ZO_SUCCESS) {
        code = ZeroRecord(&glColor);
    }
    if (code != ZO_SUCCESS) {
        return code;
    }
    ToVertexSpace(*rect, static_cast<unsigned int>(target.width),
                  static_cast<unsigned int>(target.height), &glRect);
    glColor = ToGLColor(*color);
    osdRect->DrawRect(&target, &glRect, &glColor);
    return ZO_SUCCESS;
}
