#include "osd/OSDBlit.h"

#include "gl/RenderTarget.h"
#include "osd/RegionCopy.h"
#include "osd/TexturedQuad.h"
#include "surface/Components.h"
#include "surface/Conversions.h"

namespace {

constexpr char tag[] = "OSDBlit";

bool IsWithinOneBuffer(const tagBlitInfo& info) {
    return info.src.texture != 0 && info.src.texture == info.dst.texture;
}

} // namespace

OSDBlit::OSDBlit() : program(0), vertexBuffer(0), texLocation(0), coordLocation(0) {}

OSDBlit::~OSDBlit() {
    ReleaseObjects(shaderProgram, program, vertexBuffer);
}

int OSDBlit::Init() {
    return InitTexturedQuad(tag, shaderProgram, program, vertexBuffer, coordLocation, texLocation);
}

void OSDBlit::Blit(const tagBlitInfo* info) const {
    GLuint texture = info->src.texture;
    const tagRectInfo* texRect = &info->srcRect;
    RegionCopy copy;
    const bool isCopied = IsWithinOneBuffer(*info);
    if (isCopied) {
        if (!CopyRegion(info->src, info->srcRect, &copy)) {
            __android_log_print(LogError, tag, "Create texture fail\n");
            return;
        }
        texture = copy.texture;
        texRect = &copy.texRect;
    }
    BindTarget(info->dst.framebuffer, info->dst.width, info->dst.height);
    glUseProgram(program);
    BindSource(texture, texLocation);
    BlitByDrawing(texRect, &info->dstRect);
    glBindTexture(GL_TEXTURE_2D, 0);
    UnbindTarget();
    if (isCopied) {
        glDeleteTextures(1, &texture);
    }
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
    osdBlit->Blit(&blit);
    return ZO_SUCCESS;
}
