// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The surface's text operations.

#include "surface/Operations.h"
#include "text/FontFace.h"
#include "text/OSDText.h"

namespace {

constexpr char defaultFontPath[] = "/system/fonts/CC3.ttf";

bool IsTextMissing(const tagZoTextInfo& info) {
    return info.text == nullptr && info.length != 0;
}

} // namespace

int ZoGLDrawSurface::CreateAtlases() {
    try {
        if (!fontAtlas) {
            fontAtlas = std::make_shared<FontAtlas>();
        }
        if (!fontStyleAtlas) {
            fontStyleAtlas = std::make_shared<FontStyleAtlas>();
        }
        return ZO_SUCCESS;
    } catch (const std::bad_alloc&) {
        return RefuseMemory();
    }
}

int ZoGLDrawSurface::ZoLoadFont(const char* path, unsigned int size) {
    if (path == nullptr) {
        __android_log_print(LogError, surfaceTag, "font lib path is nullptr\n");
        return ZO_INVALID_PARAM;
    }
    if (const int code = CreateAtlases(); code != ZO_SUCCESS) {
        return code;
    }
    if (const int code = fontAtlas->LoadFontByPath(path, size); code != ZO_SUCCESS) {
        __android_log_print(LogError, surfaceTag, "Load standard font lib fail %d\n", code);
        return ToError(code);
    }
    if (const int code = fontStyleAtlas->LoadFontByPath(path); code != ZO_SUCCESS) {
        __android_log_print(LogError, surfaceTag, "Load dynamic font lib fail %d\n", code);
        return ToError(code);
    }
    fontLoaded = true;
    return ZO_SUCCESS;
}

int ZoGLDrawSurface::OSDTextInit(unsigned int flags) {
    if ((flags & ZO_COMPONENT_TEXT) == 0) {
        return ZO_SUCCESS;
    }
    if (const int code = CreateAtlases(); code != ZO_SUCCESS) {
        return code;
    }
    if (const int code = fontLoaded ? ZO_SUCCESS : ZoLoadFont(defaultFontPath, defaultFontSize);
        code != ZO_SUCCESS) {
        __android_log_print(LogError, surfaceTag, "Load font fail %d\n", code);
        return code;
    }
    return InstallComponent(osdText, "OSD text init fail %d\n", fontAtlas, fontStyleAtlas);
}

int ZoGLDrawSurface::ZoGetTextSize(const tagZoTextInfo* info, unsigned int* width,
                                   unsigned int* height) {
    if (info == nullptr || width == nullptr || height == nullptr || IsTextMissing(*info)) {
        return RefuseNull();
    }
    if (const int code = osdText ? ZO_SUCCESS : OSDTextInit(ZO_COMPONENT_TEXT);
        code != ZO_SUCCESS) {
        return code;
    }
    tagTextInfo text;
    if (!ZeroRecords(&text)) {
        return ZO_FAILURE;
    }
    SetTextInfo(info, &text);
    osdText->GetTextSize(&text, width, height);
    return ZO_SUCCESS;
}

int ZoGLDrawSurface::ZoDrawText(unsigned int handle, const tagZoTextInfo* info,
                                const tagZoRectInfo* rect) {
    if (info == nullptr || rect == nullptr || IsTextMissing(*info)) {
        return RefuseNull();
    }
    tagFrameBuffObject target;
    if (const int code = FindTarget(handle, &target); code != ZO_SUCCESS) {
        return code;
    }
    if (const int code = osdText ? ZO_SUCCESS : OSDTextInit(ZO_COMPONENT_TEXT);
        code != ZO_SUCCESS) {
        return code;
    }
    tagTextInfo text;
    tagRectInfo start;
    if (!ZeroRecords(&text, &start)) {
        return ZO_FAILURE;
    }
    SetTextInfo(info, &text);
    start = ToVertexSpace(*rect, SizeOf(target));
    const int code = osdText->DrawText(&target, &text, start.x, start.y);
    return code == ZO_SUCCESS ? ZO_SUCCESS : ToError(code);
}
