// The surface's text operations.

#include "surface/Components.h"
#include "surface/Conversions.h"
#include "text/GlyphRules.h"
#include "text/OSDText.h"

#include <new>

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
    int code = CreateAtlases();
    if (code != ZO_SUCCESS) {
        return code;
    }
    code = fontAtlas->LoadFontByPath(path, size);
    if (code != ZO_SUCCESS) {
        __android_log_print(LogError, surfaceTag, "Load standard font lib fail %d\n", code);
        return ToError(code);
    }
    code = fontStyleAtlas->LoadFontByPath(path);
    if (code != ZO_SUCCESS) {
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
    int code = CreateAtlases();
    if (code != ZO_SUCCESS) {
        return code;
    }
    if (!fontLoaded) {
        code = ZoLoadFont(defaultFontPath, standardFontSize);
        if (code != ZO_SUCCESS) {
            __android_log_print(LogError, surfaceTag, "Load font fail %d\n", code);
            return code;
        }
    }
    return InstallComponent(osdText, "OSD text init fail %d\n", fontAtlas, fontStyleAtlas);
}

int ZoGLDrawSurface::ZoGetTextSize(const tagZoTextInfo* info, unsigned int* width,
                                   unsigned int* height) {
    if (info == nullptr || width == nullptr || height == nullptr || IsTextMissing(*info)) {
        return RefuseNull();
    }
    int code = osdText ? ZO_SUCCESS : OSDTextInit(ZO_COMPONENT_TEXT);
    tagTextInfo text;
    if (code == ZO_SUCCESS) {
        code = ZeroRecord(&text);
    }
    if (code != ZO_SUCCESS) {
        return code;
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
    int code = FindTarget(handle, &target);
    if (code == ZO_SUCCESS && !osdText) {
        code = OSDTextInit(ZO_COMPONENT_TEXT);
    }
    tagTextInfo text;
    if (code == ZO_SUCCESS) {
        code = ZeroRecord(&text);
    }
    tagRectInfo start;
    if (code == ZO_SUCCESS) {
        code = ZeroRecord(&start);
    }
    if (code != ZO_SUCCESS) {
        return code;
    }
    SetTextInfo(info, &text);
    ToVertexSpace(*rect, static_cast<unsigned int>(target.width),
                  static_cast<unsigned int>(target.height), &start);
    code = osdText->DrawText(&target, &text, start.x, start.y);
    return code == ZO_SUCCESS ? ZO_SUCCESS : ToError(code);
}
