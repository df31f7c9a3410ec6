// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Loads a font file of any bytes, measures and draws with it. The choices are taken from the file's
// end, which hardly any format reads, so every font file is a valid input.
//
// Each seed in seeds/fonts ends with 24 zero bytes for the choices. truetype.ttf and postscript.otf
// hold seven characters of DejaVu Sans 2.37 as TrueType and as CFF outlines. endless.ttf maps A and
// every number from 0x10FFF0 to 0xFFFFFFFE to a square. bitmap.bdf has characters of 8 by 8 pixels,
// one of which states a size and stores no pixels.

#include "Support.h"

#include "support/Harness.h"

#include <fuzzer/FuzzedDataProvider.h>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr unsigned int largestSize = 128;

// The file of the last input is closed: its surface is destroyed.
std::string WriteFile(const std::string& content) {
    static const int file = memfd_create("font", MFD_CLOEXEC);
    const bool isEmpty = ftruncate(file, 0) == 0;
    const ssize_t written = pwrite(file, content.data(), content.size(), 0);
    fuzz::Require(isEmpty && written == static_cast<ssize_t>(content.size()), "memfd", written);
    return "/proc/self/fd/" + std::to_string(file);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzedDataProvider input(data, size);
    const unsigned int loadedSize = input.ConsumeIntegralInRange(0U, largestSize);
    const unsigned int drawnSize = input.ConsumeIntegralInRange(0U, largestSize);
    const int largestTexture = input.ConsumeIntegralInRange(64, 4096);
    const bool isItalic = input.ConsumeBool();
    std::u16string units = u"Ag&1 \u00C9A";
    for (int i = 0; i < 4; ++i) {
        units += input.ConsumeIntegral<char16_t>();
    }
    const std::string path = WriteFile(input.ConsumeRemainingBytesAsString());

    harness::Reset();
    fuzz::LimitFreeType();
    harness::Current().maxTextureSize = largestTexture;
    auto surface = std::make_unique<ZoGLDrawSurface>();
    fuzz::RequireCode("bind", surface->ZoCreateGLWindowSurface(fuzz::WindowOf(0)), {ZO_SUCCESS});
    const int loaded = surface->ZoLoadFont(path.c_str(), loadedSize);
    fuzz::RequireCode("load", loaded, {ZO_SUCCESS, ZO_FONT_FACE_FAILED, ZO_FONT_ATLAS_EMPTY});

    // Without a font, text loads the default one, which does not exist here.
    const int expected = loaded == ZO_SUCCESS ? ZO_SUCCESS : ZO_FONT_FACE_FAILED;
    const int mayBeEmpty = loaded == ZO_SUCCESS ? ZO_FONT_ATLAS_EMPTY : expected;
    const unsigned int length = static_cast<unsigned int>(units.size());
    const tagZoColorRGBA white = {255, 255, 255, 255};
    const tagZoRectInfo pen = {2, 40, 0, 0};
    for (const bool isBold : {false, true}) {
        for (const unsigned int drawn : {40U, drawnSize}) {
            const tagZoTextInfo text = {units.data(), length, white, {},      0,
                                        drawn,        isBold, 0,     isItalic};
            const int code = surface->ZoDrawText(ZO_WINDOW_HANDLE, &text, &pen);
            fuzz::RequireCode("draw", code, {expected, mayBeEmpty});
            unsigned int measured[] = {0, 0};
            fuzz::RequireCode("measure", surface->ZoGetTextSize(&text, &measured[0], &measured[1]),
                              {expected});
        }
    }
    fuzz::RequireNothingLeft(std::move(surface));
    return 0;
}
