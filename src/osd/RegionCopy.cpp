// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "osd/RegionCopy.h"

#include "gl/Texture.h"

#include <algorithm>
#include <cmath>

namespace {

// The pixels along one axis, from the bottom or the left.
struct Span {
    int start;
    int length;
};

// The linear filter needs one more pixel on either side. A region outside the buffer shows edge
// pixels, so at least one pixel is kept.
Span TouchedPixels(double low, double high, int size) {
    const double start = std::clamp(std::floor(low * size) - 1.0, 0.0, size - 1.0);
    const double end = std::clamp(std::ceil(high * size) + 1.0, start + 1.0, size + 0.0);
    return {static_cast<int>(start), static_cast<int>(end - start)};
}

float Rebase(float position, int size, Span span) {
    return (position * static_cast<float>(size) - static_cast<float>(span.start)) /
           static_cast<float>(span.length);
}

} // namespace

bool CopySource(tagBlitInfo* blit) {
    const GLuint texture = GenerateTexture(GL_TEXTURE0);
    if (texture == 0) {
        return false;
    }
    const int width = blit->src.width;
    const int height = blit->src.height;
    const tagRectInfo rect = blit->srcRect;
    const Span columns = TouchedPixels(rect.x, rect.x + rect.width, std::max(width, 1));
    const Span rows = TouchedPixels(rect.y - rect.height, rect.y, std::max(height, 1));
    glBindFramebuffer(GL_FRAMEBUFFER, blit->src.framebuffer);
    glBindTexture(GL_TEXTURE_2D, texture);
    glCopyTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, columns.start, rows.start, columns.length,
                     rows.length, 0);
    FilterLinear();
    ClampToEdge();
    blit->src.texture = texture;
    blit->srcRect = {Rebase(rect.x, width, columns), Rebase(rect.y, height, rows),
                     Rebase(rect.width, width, {0, columns.length}),
                     Rebase(rect.height, height, {0, rows.length})};
    return true;
}
