// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Calls public operations in any order, with any arguments, and refuses what they need. Checks the
// codes, and that failures leave output arguments unchanged; not the pixels.

#include "Support.h"

#include "platform/LogFilter.h"
#include "support/DocumentedCodes.h"
#include "support/Harness.h"

#include <GLES2/gl2.h>
#include <algorithm>
#include <fuzzer/FuzzedDataProvider.h>
#include <set>
#include <vector>

namespace {

constexpr const char* fonts[] = {
    ZOGLES_FUZZ_FONTS "/truetype.ttf", ZOGLES_FUZZ_FONTS "/postscript.otf",
    ZOGLES_FUZZ_FONTS "/bitmap.bdf", "/no/such/font", ZOGLES_FUZZ_FONTS};

// Calls that free something are left out: the harness would count their objects as alive.
constexpr const char* refusable[] = {
    "eglGetDisplay",       "eglInitialize",        "eglChooseConfig",   "eglCreateContext",
    "eglMakeCurrent",      "eglQuerySurface",      "eglSwapBuffers",    "eglCreateWindowSurface",
    "glCreateShader",      "glCreateProgram",      "glGetShaderiv",     "glGetProgramiv",
    "glGenTextures",       "glGenBuffers",         "glGenFramebuffers", "glGetIntegerv",
    "glGetAttribLocation", "glGetUniformLocation", "FT_Init_FreeType",  "FT_New_Face",
    "FT_Load_Char",        "FT_Set_Pixel_Sizes"};

class Session {
public:
    Session(const uint8_t* data, size_t size)
        : input(data, size), surface(std::make_unique<ZoGLDrawSurface>()) {}

    void Run() {
        // Text has the most states.
        constexpr void (Session::*steps[])() = {
            &Session::Bind,          &Session::Lose,         &Session::Init,
            &Session::Refresh,       &Session::CreateBuffer, &Session::DestroyBuffer,
            &Session::DrawRect,      &Session::Blit,         &Session::DisplayBuffer,
            &Session::DisplayBitmap, &Session::LoadFont,     &Session::MeasureText,
            &Session::DrawText,      &Session::DrawText,     &Session::DrawText,
            &Session::FilterLog};
        while (input.remaining_bytes() > 0) {
            harness::Reset(); // forgets the refusals of the step before
            fuzz::LimitFreeType();
            hasNull = false;
            (this->*input.PickValueInArray(steps))();
            const unsigned int side =
                std::min(surface->ZoGetWindowWidth(), surface->ZoGetWindowHeight());
            fuzz::Require(side > 0 || !isCertain, "window size", side);
        }
        harness::Reset();
        fuzz::RequireNothingLeft(std::move(surface));
    }

private:
    bool IsRare() { return input.ConsumeIntegral<uint8_t>() >= 240; }

    unsigned int Number(unsigned int limit) {
        constexpr unsigned int edges[] = {0,          1,          0x4001,     0x10000,   0x1000000,
                                          0x10000000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
        return IsRare() ? input.PickValueInArray(edges) : input.ConsumeIntegralInRange(0U, limit);
    }

    int Format() { return IsRare() ? input.ConsumeIntegral<int>() : ZO_FORMAT_RGBA8888; }

    unsigned int Handle() {
        constexpr unsigned int others[] = {0, ZO_WINDOW_HANDLE, ZO_WINDOW_HANDLE | 16,
                                           ZO_NO_HANDLE};
        const uint8_t choice = input.ConsumeIntegral<uint8_t>();
        if (choice >= 250) {
            return input.ConsumeIntegral<unsigned int>();
        }
        const bool isOther = choice >= 220 || buffers.empty();
        return isOther ? others[choice % 4]
                       : *std::next(buffers.begin(), static_cast<long>(choice % buffers.size()));
    }

    tagZoRectInfo Rect() { return {Number(200), Number(200), Number(200), Number(200)}; }

    tagZoColorRGBA Color() {
        const auto value = input.ConsumeIntegral<uint32_t>();
        return {static_cast<uint8_t>(value), static_cast<uint8_t>(value >> 8),
                static_cast<uint8_t>(value >> 16), static_cast<uint8_t>(value >> 24)};
    }

    // Exactly as many units as the length says: the sanitizer reports a read past them.
    tagZoTextInfo Text() {
        const unsigned int length = input.ConsumeIntegralInRange(0U, IsRare() ? 300U : 12U);
        units.reset(new char16_t[length]);
        for (unsigned int i = 0; i < length; ++i) {
            const uint8_t unit = input.ConsumeIntegral<uint8_t>();
            units[i] = unit < 240 ? unit : input.ConsumeIntegral<char16_t>();
        }
        tagZoTextInfo text = {};
        text.text = length == 0 ? nullptr : OrNull(units.get());
        text.length = length;
        text.color = Color();
        text.fontSize = input.ConsumeBool() ? 40 : Number(80);
        text.bold = input.ConsumeBool();
        text.italic = input.ConsumeBool();
        return text;
    }

    template <typename Value>
    Value* OrNull(Value* value) {
        const bool isNull = IsRare();
        hasNull = hasNull || isNull;
        return isNull ? nullptr : value;
    }

    // To be called right before an operation. Rarely, refuses something that the operation needs.
    void BeginCall() {
        if (!IsRare()) {
            return;
        }
        isCertain = false;
        const int nth = input.ConsumeIntegralInRange(1, 12);
        const int kind = input.ConsumeIntegralInRange(0, 4);
        if (kind == 0) { // a small driver
            harness::Current().maxTextureSize = 100 * nth;
        } else if (kind <= 2) {
            harness::RefuseAllocation(nth);
        } else {
            harness::FailCall(input.PickValueInArray(refusable), nth);
        }
    }

    void Require(const char* operation, int code, Codes documented) {
        harness::RefuseAllocation(0);
        fuzz::RequireCode(operation, code, hasNull ? Codes{ZO_INVALID_PARAM} : documented);
    }

    // The code depends on whether the handles are known, unless something was refused before.
    void RequireDrawn(const char* operation, int code,
                      std::initializer_list<unsigned int> handles) {
        const bool isKnown = std::all_of(handles.begin(), handles.end(), [this](auto handle) {
            return handle == ZO_WINDOW_HANDLE || buffers.count(handle) != 0;
        });
        const bool isDecided = isBound && isCertain;
        Require(operation, code,
                !isDecided ? drawCodes
                : isKnown  ? Codes{ZO_SUCCESS}
                           : Codes{ZO_INVALID_PARAM});
        isCertain = isDecided; // a pool made while unbound lacks the buffers
    }

    void Bind() {
        const auto number = input.ConsumeIntegral<uint8_t>();
        ANativeWindow* window = OrNull(fuzz::WindowOf(number));
        BeginCall();
        const int code = surface->ZoCreateGLWindowSurface(window);
        Require("ZoCreateGLWindowSurface", code, isCertain ? Codes{ZO_SUCCESS} : bindCodes);
        isBound = hasNull ? isBound : code == ZO_SUCCESS;
    }

    void Lose() {
        BeginCall();
        surface->ZoDestoryGLWindowSurface();
        harness::RefuseAllocation(0);
        isBound = false;
    }

    void Init() {
        const auto flags = input.ConsumeIntegral<unsigned int>();
        BeginCall();
        Require("Init", surface->Init(flags), initCodes);
        isCertain = isCertain && isBound;
    }

    void Refresh() {
        BeginCall();
        const int code = surface->ZoRefreshOnSrceen();
        Require("ZoRefreshOnSrceen", code, refreshCodes);
        fuzz::Require(!isCertain || (code == ZO_SUCCESS) == isBound, "refresh", code);
    }

    void CreateBuffer() {
        constexpr unsigned int limit = 15;
        constexpr unsigned int untouched = 0xDEADBEEF;
        const unsigned int width = Number(128);
        const unsigned int height = Number(128);
        const int format = Format();
        unsigned int handle = untouched;
        BeginCall();
        const int code = surface->ZoCreateGLFBO(OrNull(&handle), width, height, format);
        const bool isFull = buffers.size() == limit;
        Require("ZoCreateGLFBO", code,
                !isCertain ? createCodes
                : !isBound ? Codes{ZO_FAILURE}
                : isFull   ? Codes{ZO_NO_FREE_FBO}
                           : Codes{ZO_SUCCESS});
        fuzz::Require((code == ZO_SUCCESS) == (handle != untouched), "handle of a failed call",
                      handle);
        const bool isNew = code != ZO_SUCCESS || buffers.insert(handle).second;
        fuzz::Require(isNew || !isCertain, "handle given twice", handle);
    }

    void DestroyBuffer() {
        const unsigned int handle = Handle();
        BeginCall();
        const int code = surface->ZoDestoryGLFBO(handle);
        Require("ZoDestoryGLFBO", code, destroyCodes);
        if (code == ZO_SUCCESS) {
            buffers.erase(handle);
        }
    }

    void DrawRect() {
        const unsigned int handle = Handle();
        const tagZoRectInfo rect = Rect();
        const tagZoColorRGBA color = Color();
        BeginCall();
        const int code = surface->ZoDrawRect(handle, OrNull(&rect), OrNull(&color));
        RequireDrawn("ZoDrawRect", code, {handle});
    }

    void Blit() {
        const tagZoBlitInfo info = {Handle(), Handle(), Rect(), Rect()};
        BeginCall();
        const int code = surface->ZoBlit(OrNull(&info));
        RequireDrawn("ZoBlit", code, {info.srcHandle, info.dstHandle});
    }

    void DisplayBuffer() {
        const unsigned int handle = Handle();
        const tagZoRectInfo src = Rect();
        const tagZoRectInfo dst = Rect();
        BeginCall();
        const int code = surface->ZoDisplayFBO(handle, OrNull(&src), OrNull(&dst));
        RequireDrawn("ZoDisplayFBO", code, {handle});
    }

    // Exactly the bytes that the size needs; none for sizes beyond memory.
    void DisplayBitmap() {
        constexpr unsigned int side = 64;
        tagZoBitmapInfo info = {nullptr, Format(), 0, 0, Number(side), Number(side), Rect()};
        const bool hasData = info.width <= side && info.height <= side && !IsRare();
        const std::vector<uint8_t> data(hasData ? info.width * info.height * 4 : 0, 127);
        info.data = hasData ? data.data() : nullptr;
        BeginCall();
        const int code = surface->ZoDisplayBitmap(OrNull(&info));
        RequireDrawn("ZoDisplayBitmap", code, {});
    }

    void LoadFont() {
        const char* path = OrNull(input.PickValueInArray(fonts));
        const unsigned int size = Number(80);
        BeginCall();
        Require("ZoLoadFont", surface->ZoLoadFont(path, size), fontCodes);
    }

    void MeasureText() {
        const tagZoTextInfo text = Text();
        unsigned int width = 1;
        unsigned int height = 1;
        BeginCall();
        const int code = surface->ZoGetTextSize(OrNull(&text), OrNull(&width), OrNull(&height));
        Require("ZoGetTextSize", code, measureCodes);
        fuzz::Require(height == (code == ZO_SUCCESS ? 50 : 1), "height of a text", height);
        fuzz::Require(code == ZO_SUCCESS || width == 1, "width of a failed call", width);
    }

    void DrawText() {
        const unsigned int handle = Handle();
        const tagZoTextInfo text = Text();
        const tagZoRectInfo pen = Rect();
        BeginCall();
        const int code = surface->ZoDrawText(handle, OrNull(&text), OrNull(&pen));
        Require("ZoDrawText", code, textCodes);
        isCertain = isCertain && isBound;
    }

    // The library reads the filter from the environment once in a process.
    void FilterLog() {
        const int priority = input.ConsumeIntegral<int8_t>();
        const std::string tag = input.ConsumeRandomLengthString(8);
        LogFilter(input.ConsumeRandomLengthString(64).c_str()).Shows(priority, tag.c_str());
    }

    FuzzedDataProvider input;
    std::unique_ptr<ZoGLDrawSurface> surface;
    std::unique_ptr<char16_t[]> units;
    std::set<unsigned int> buffers; // handles that the client holds
    bool isBound = false;
    bool hasNull = false;  // whether this step passes a null pointer
    bool isCertain = true; // whether nothing was refused so far, so that all `buffers` exist
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Session(data, size).Run();
    return 0;
}
