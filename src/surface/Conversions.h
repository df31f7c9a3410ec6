/// @file
/// From the client's pixels and bytes to what GL takes. The float expressions are single precision
/// and evaluated as written, so that every machine puts an edge on the same pixel.
#ifndef ZOGLES_SURFACE_CONVERSIONS_H
#define ZOGLES_SURFACE_CONVERSIONS_H

#include "surface/Records.h"

#include <array>

/// Pixels to vertex space. A target of width or height 0 has none: `out` is untouched then.
inline void ToVertexSpace(const tagZoRectInfo& in, unsigned int targetWidth,
                          unsigned int targetHeight, tagRectInfo* out) {
    if (targetWidth == 0 || targetHeight == 0) {
        return;
    }
    const float x = static_cast<float>(in.x);
    const float y = static_cast<float>(in.y);
    const float width = static_cast<float>(in.width);
    const float height = static_cast<float>(in.height);
    out->x = (x + x) / static_cast<float>(targetWidth) + -1.0f;
    out->y = 1.0f - (y + y) / static_cast<float>(targetHeight);
    out->width = (width + width) / static_cast<float>(targetWidth);
    out->height = (height + height) / static_cast<float>(targetHeight);
}

/// Pixels to texture space, with the same guard.
inline void ToTextureSpace(const tagZoRectInfo& in, unsigned int targetWidth,
                           unsigned int targetHeight, tagRectInfo* out) {
    if (targetWidth == 0 || targetHeight == 0) {
        return;
    }
    out->x = static_cast<float>(in.x) / static_cast<float>(targetWidth);
    out->y = 1.0f - static_cast<float>(in.y) / static_cast<float>(targetHeight);
    out->width = static_cast<float>(in.width) / static_cast<float>(targetWidth);
    out->height = static_cast<float>(in.height) / static_cast<float>(targetHeight);
}

constexpr std::array<float, 256> MakeChannelIntensity() {
    std::array<float, 256> table = {};
    for (size_t value = 0; value < table.size(); ++value) {
        const float byte = static_cast<float>(value);
        table[value] = value <= 1 ? byte : byte / 255.0f;
    }
    return table;
}

/// The intensity of each channel byte: 0 and 1 are the intensity itself, others that of 255 parts.
inline constexpr std::array<float, 256> channelIntensity = MakeChannelIntensity();

inline tagColorRGBA ToGLColor(const tagZoColorRGBA& in) {
    return {channelIntensity[in.r], channelIntensity[in.g], channelIntensity[in.b],
            channelIntensity[in.a]};
}

#endif
