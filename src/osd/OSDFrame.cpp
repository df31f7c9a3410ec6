#include "osd/OSDFrame.h"

#include "gl/RenderTarget.h"
#include "osd/TexturedQuad.h"
#include "surface/Components.h"
#include "surface/Conversions.h"

OSDFrame::OSDFrame() : program(0), vertexBuffer(0), texLocation(0), coordLocation(0) {}

OSDFrame::~OSDFrame() {
    ReleaseObjects(shaderProgram, program, vertexBuffer);
}

int OSDFrame::Init() {
    return InitTexturedQuad("OSDFrame", shaderProgram, program, vertexBuffer, coordLocation,
                            texLocation);
}

void OSDFrame::DisplayFBO(unsigned int texture, const tagRectInfo* texRect,
                          const tagRectInfo* posRect, int width, int height) const {
    ClearWindow(width, height);
    glUseProgram(program);
    EnableBlending();
    BindSource(texture, texLocation);

    Vertex quad[4];
    PlaceRegion(*texRect, *posRect, quad);
    BindVertices(coordLocation, vertexBuffer);
    DrawQuad(quad);

    glDisable(GL_BLEND);
    UnbindVertices(coordLocation);
    glBindTexture(GL_TEXTURE_2D, 0);
}

int ZoGLDrawSurface::OSDFrameInit(unsigned int flags) {
    if ((flags & ZO_COMPONENT_FRAME) == 0) {
        return ZO_SUCCESS;
    }
    return InstallComponent(osdFrame, "OSD frame init fail %d\n");
}

int ZoGLDrawSurface::ZoDisplayFBO(unsigned int fbo, const tagZoRectInfo* src,
                                  const tagZoRectInfo* dst) {
    if (src == nullptr || dst == nullptr) {
        return RefuseNull();
    }
    tagFrameBuffObject source;
    int code = FindTarget(fbo, &source);
    if (code == ZO_SUCCESS && !osdFrame) {
        code = OSDFrameInit(ZO_COMPONENT_FRAME);
    }
    tagRectInfo texRect;
    if (code == ZO_SUCCESS) {
        code = ZeroRecord(&texRect);
    }
    tagRectInfo posRect;
    if (code == ZO_SUCCESS) {
        code = ZeroRecord(&posRect);
    }
    if (code != ZO_SUCCESS) {
        return code;
    }
    ToTextureSpace(*src, static_cast<unsigned int>(source.width),
                   static_cast<unsigned int>(source.height), &texRect);
    ToVertexSpace(*dst, windowWidth, windowHeight, &posRect);
    osdFrame->DisplayFBO(source.texture, &texRect, &posRect, static_cast<int>(windowWidth),
                         static_cast<int>(windowHeight));
    return ZO_SUCCESS;
}
