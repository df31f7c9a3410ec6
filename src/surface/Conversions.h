// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Converts the client's pixels and bytes to GL's units. The float expressions are evaluated in
/// single precision as written, so that every machine places an edge on the same pixel.
#ifndef ZOGLES_SURFACE_CONVERSIONS_H
#define ZOGLES_SURFACE_CONVERSIONS_H

#include "surface/Records.h"

#include <array>

/// Width and height in pixels.
struct Size {
    unsigned int width;
    unsigned int height;

    bool IsEmpty() const { return width == 0 || height == 0; }
};

/// Converts pixels to vertex space. Returns zeros for an empty target.
inline tagRectInfo ToVertexSpace(const tagZoRectInfo& rect, Size target) {
    if (target.IsEmpty()) {
        return {};
    }
    const auto twice = [](unsigned int pixels) {
        return static_cast<float>(pixels) + static_cast<float>(pixels);
    };
    const float targetWidth = static_cast<float>(target.width);
    const float targetHeight = static_cast<float>(target.height);
    return {twice(rect.x) / targetWidth + -1.0f, 1.0f - twice(rect.y) / targetHeight,
            twice(rect.width) / targetWidth, twice(rect.height) / targetHeight};
}

/// Converts pixels to texture space. Returns zeros for an empty target.
inline tagRectInfo ToTextureSpace(const tagZoRectInfo& rect, Size target) {
    if (target.IsEmpty()) {
        return {};
    }
    const float targetWidth = static_cast<float>(target.width);
    const float targetHeight = static_cast<float>(target.height);
    return {static_cast<float>(rect.x) / targetWidth,
            1.0f - static_cast<float>(rect.y) / targetHeight,
            static_cast<float>(rect.width) / targetWidth,
            static_cast<float>(rect.height) / targetHeight};
}

constexpr std::array<float, 256> MakeChannelIntensity() {
    std::array<float, 256> table = {};
    for (size_t value = 0; value < table.size(); ++value) {
        const float byte = static_cast<float>(value);
        table[value] = value <= 1 ? byte : byte / 255.0f;
    }
    return table;
}

/// The intensity of each channel byte: 0 and 1 are the intensity itself, other values are
/// value/255.
inline constexpr std::array<float, 256> channelIntensity = MakeChannelIntensity();

inline tagColorRGBA ToGLColor(const tagZoColorRGBA& in) {
    return {channelIntensity[in.r], channelIntensity[in.g], channelIntensity[in.b],
            channelIntensity[in.a]};
}

#endif
