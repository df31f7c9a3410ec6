#include "osd/OSDBitmap.h"

#include "gl/RenderTarget.h"
#include "gl/Texture.h"
#include "osd/TexturedQuad.h"
#include "surface/Components.h"

OSDBitmap::OSDBitmap()
    : texture(0), program(0), vertexBuffer(0), texLocation(0), coordLocation(0) {}

OSDBitmap::~OSDBitmap() {
    ReleaseObjects(shaderProgram, program, vertexBuffer);
}

int OSDBitmap::Init() {
    return InitTexturedQuad("OSDBitmap", shaderProgram, program, vertexBuffer, coordLocation,
                            texLocation);
}

void OSDBitmap::CreateTexture(const tagBitmapInfo* info) {
    texture = GenerateTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, texture);
    AllocateTexture(info->format, info->width, info->height, info->data);
    // The glyph atlases leave 1 behind. Rows of 4-byte pixels are read alike under both, so it is
    // enough that the default is back afterwards.
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    FilterLinear();
    ClampToEdge();
    glBindTexture(GL_TEXTURE_2D, 0);
}

void OSDBitmap::DeleteTexture() {
    if (texture != 0) {
        glDeleteTextures(1, &texture);
        texture = 0;
    }
}

void OSDBitmap::RenderBimap(const tagRectInfo* rect) const {
    // Client rows start at the top, as do the texture's here, so this quad is not a buffer's.
    const float left = rect->x;
    const float right = rect->x + rect->width;
    const float top = rect->y;
    const float bottom = rect->y - rect->height;
    const Vertex quad[4] = {
        {left, top, 0.0f, 0.0f},
        {right, top, 1.0f, 0.0f},
        {left, bottom, 0.0f, 1.0f},
        {right, bottom, 1.0f, 1.0f},
    };
    BindVertices(coordLocation, vertexBuffer);
    DrawQuad(quad);
    UnbindVertices(coordLocation);
}

void OSDBitmap::DrawBitmap(const tagBitmapInfo* info, int width, int height) {
    CreateTexture(info);
    ClearWindow(width, height);
    glUseProgram(program);
    EnableBlending();
    BindSource(texture, texLocation);
    RenderBimap(&info->rect);
    glDisable(GL_BLEND);
    glBindTexture(GL_TEXTURE_2D, 0);
    DeleteTexture();
}

int ZoGLDrawSurface::OSDBitmapInit(unsigned int flags) {
    if ((flags & ZO_COMPONENT_BITMAP) == 0) {
        return ZO_SUCCESS;
    }
    return InstallComponent(osdBitmap, "OSD bitmap fail %d\n");
}

int ZoGLDrawSurface::ZoDisplayBitmap(const tagZoBitmapInfo* info) {
    if (info == nullptr) {
        return RefuseNull();
    }
    int code = osdBitmap ? ZO_SUCCESS : OSDBitmapInit(ZO_COMPONENT_BITMAP);
    tagBitmapInfo bitmap;
    if (code == ZO_SUCCESS) {
        code = ZeroRecord(&bitmap);
    }
    if (code != ZO_SUCCESS) {
        return code;
    }
    SetBitmapInfo(&bitmap, info, windowWidth, windowHeight);
    osdBitmap->DrawBitmap(&bitmap, static_cast<int>(windowWidth), static_cast<int>(windowHeight));
    return ZO_SUCCESS;
}
