// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The surface's drawing operations, and the creation of their renderers.

#include "osd/OSDBitmap.h"
#include "osd/OSDBlit.h"
#include "osd/OSDFrame.h"
#include "osd/OSDRect.h"
#include "osd/RegionCopy.h"
#include "surface/Operations.h"

int ZoGLDrawSurface::OSDRectInit(unsigned int flags) {
    const bool isWanted = (flags & ZO_COMPONENT_RECT) != 0 && !osdRect;
    return isWanted ? InstallComponent(osdRect, "OSD Rect init fail %d\n") : ZO_SUCCESS;
}

int ZoGLDrawSurface::OSDBlitInit(unsigned int flags) {
    const bool isWanted = (flags & ZO_COMPONENT_BLIT) != 0;
    return isWanted ? InstallComponent(osdBlit, "OSD blit init fail %d\n") : ZO_SUCCESS;
}

int ZoGLDrawSurface::OSDFrameInit(unsigned int flags) {
    const bool isWanted = (flags & ZO_COMPONENT_FRAME) != 0;
    return isWanted ? InstallComponent(osdFrame, "OSD frame init fail %d\n") : ZO_SUCCESS;
}

int ZoGLDrawSurface::OSDBitmapInit(unsigned int flags) {
    const bool isWanted = (flags & ZO_COMPONENT_BITMAP) != 0;
    return isWanted ? InstallComponent(osdBitmap, "OSD bitmap fail %d\n") : ZO_SUCCESS;
}

int ZoGLDrawSurface::ZoDrawRect(unsigned int fbo, const tagZoRectInfo* rect,
                                const tagZoColorRGBA* color) {
    if (rect == nullptr || color == nullptr) {
        return RefuseNull();
    }
    tagFrameBuffObject target;
    if (const int code = FindTarget(fbo, &target); code != ZO_SUCCESS) {
        return code;
    }
    if (const int code = osdRect ? ZO_SUCCESS : OSDRectInit(ZO_COMPONENT_RECT);
        code != ZO_SUCCESS) {
        return code;
    }
    tagRectInfo glRect;
    tagColorRGBA glColor;
    if (!ZeroRecords(&glRect, &glColor)) {
        return ZO_FAILURE;
    }
    glRect = ToVertexSpace(*rect, SizeOf(target));
    glColor = ToGLColor(*color);
    osdRect->DrawRect(&target, &glRect, &glColor);
    return ZO_SUCCESS;
}

int ZoGLDrawSurface::ZoBlit(const tagZoBlitInfo* info) {
    if (info == nullptr) {
        return RefuseNull();
    }
    tagBlitInfo blit;
    if (const int code = FindTarget(info->srcHandle, &blit.src); code != ZO_SUCCESS) {
        return code;
    }
    if (const int code = FindTarget(info->dstHandle, &blit.dst); code != ZO_SUCCESS) {
        return code;
    }
    if (const int code = osdBlit ? ZO_SUCCESS : OSDBlitInit(ZO_COMPONENT_BLIT);
        code != ZO_SUCCESS) {
        return code;
    }
    blit.srcRect = ToTextureSpace(info->srcRect, SizeOf(blit.src));
    blit.dstRect = ToVertexSpace(info->dstRect, SizeOf(blit.dst));
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

int ZoGLDrawSurface::ZoDisplayFBO(unsigned int fbo, const tagZoRectInfo* src,
                                  const tagZoRectInfo* dst) {
    if (src == nullptr || dst == nullptr) {
        return RefuseNull();
    }
    tagFrameBuffObject source;
    if (const int code = FindTarget(fbo, &source); code != ZO_SUCCESS) {
        return code;
    }
    if (const int code = osdFrame ? ZO_SUCCESS : OSDFrameInit(ZO_COMPONENT_FRAME);
        code != ZO_SUCCESS) {
        return code;
    }
    tagRectInfo texRect;
    tagRectInfo posRect;
    if (!ZeroRecords(&texRect, &posRect)) {
        return ZO_FAILURE;
    }
    texRect = ToTextureSpace(*src, SizeOf(source));
    posRect = ToVertexSpace(*dst, {windowWidth, windowHeight});
    osdFrame->DisplayFBO(source.texture, &texRect, &posRect, static_cast<int>(windowWidth),
                         static_cast<int>(windowHeight));
    return ZO_SUCCESS;
}

int ZoGLDrawSurface::ZoDisplayBitmap(const tagZoBitmapInfo* info) {
    if (info == nullptr) {
        return RefuseNull();
    }
    if (const int code = osdBitmap ? ZO_SUCCESS : OSDBitmapInit(ZO_COMPONENT_BITMAP);
        code != ZO_SUCCESS) {
        return code;
    }
    tagBitmapInfo bitmap;
    if (!ZeroRecords(&bitmap)) {
        return ZO_FAILURE;
    }
    SetBitmapInfo(&bitmap, info, windowWidth, windowHeight);
    osdBitmap->DrawBitmap(&bitmap, static_cast<int>(windowWidth), static_cast<int>(windowHeight));
    return ZO_SUCCESS;
}
