#include "osd/OSDBlit.h"

#include "gl/RenderTarget.h"
#include "osd/RegionCopy.h"
#include "osd/TexturedQuad.h"
#include "surface/Components.h"
#include "surface/Conversions.h"

OSDBlit::OSDBlit() : program(0), vertexBuffer(0), texLocation(0), coordLocation(0) {}

OSDBlit::~OSDBlit() {
    ReleaseObjects(shaderProgram, program, vertexBuffer);
}

int OSDBlit::Init() {
    return InitTexturedQuad("OSDBlit", shaderProgram, program, vertexBuffer, coordLocation,
                            texLocation);
}

void OSDBlit::Blit(const tagBlitInfo* info) const {
    BindTarget(info->dst.framebuffer, info->dst.width, info->dst.height);
    glUseProgram(program);
    BindSource(info->src.texture, texLocation);
    BlitByDrawing(&info->srcRect, &info->dstRect);
    glBindTexture(GL_TEXTURE_2D, 0);
    UnbindTarget();
}

void OSDBlit::BlitByDrawing(const tagRectInfo* texRect, const tagRectInfo* posRect) const {
    Vertex quad[4];
    PlaceRegion(*texRect, *posRect, quad);
    BindVertices(coordLocation, vertexBuffer);
    DrawQuad(quad);
    UnbindVertices(coordLocation);
}

int ZoGLDrawSurface::OSDBlitInit(unsigned int flags) {
    if ((flags & ZO_COMPONENT_BLIT) == 0) {
        return ZO_SUCCESS;
    }
    return InstallComponent(osdBlit, "OSD blit init fail %d\n");
}

int ZoGLDrawSurface::ZoBlit(const tagZoBlitInfo* info) {
    if (info == nullptr) {
        return RefuseNull();
    }
    tagBlitInfo blit;
    int code = FindTarget(info->srcHandle, &blit.src);
    if (code == ZO_SUCCESS) {
        code = FindTarget(info->dstHandle, &blit.dst);
    }
    if (code == ZO_SUCCESS && !osdBlit) {
        code = OSDBlitInit(ZO_COMPONENT_BLIT);
    }
    if (code != ZO_SUCCESS) {
        return code;
    }
    blit.srcRect = {};
    blit.dstRect = {};
    ToTextureSpace(info->srcRect, static_cast<unsigned int>(blit.src.width),
                   static_cast<unsigned int>(blit.src.height), &blit.srcRect);
    ToVertexSpace(info->dstRect, static_cast<unsigned int>(blit.dst.width),
                  static_cast<unsigned int>(blit.dst.height), &blit.dstRect);
    const bool isWithinOneBuffer = blit.src.texture != 0 && blit.src.texture == blit.dst.texture;
    if (isWithinOneBuffer && !CopySource(&blit)) {
        __android_log_print(LogError, surfaceTag, "Create texture fail\n");
        return ZO_FAILURE;
    }
    osdBlit->Blit(&blit);
    if (isWithinOneBuffer) {
        glDeleteTextures(1, &blit.src.texture);
    }
    return ZO_SUCCESS;
}
