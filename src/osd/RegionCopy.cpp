#include "osd/RegionCopy.h"

#include "gl/RenderTarget.h"
#include "gl/Texture.h"

#include <algorithm>
#include <cmath>

namespace {

// The pixels along one axis, from the bottom or the left.
struct Span {
    int start;
    int length;
};

// One pixel on either side belongs to the linear filter. A region that lies outside the buffer
// shows its edge pixels, so at least one is kept.
Span TouchedPixels(double low, double high, int size) {
    const double start = std::clamp(std::floor(low * size) - 1.0, 0.0, size - 1.0);
    const double end = std::clamp(std::ceil(high * size) + 1.0, start + 1.0, size + 0.0);
    return {static_cast<int>(start), static_cast<int>(end - start)};
}

float Rebase(float position, int size, Span span) {
    return (position * static_cast<float>(size) - static_cast<float>(span.start)) /
           static_cast<float>(span.length);
}

float Rescale(float extent, int size, Span span) {
    return extent * static_cast<float>(size) / static_cast<float>(span.length);
}

} // namespace

bool CopyRegion(const tagFrameBuffObject& buffer, const tagRectInfo& texRect, RegionCopy* copy) {
    const GLuint texture = GenerateTexture(GL_TEXTURE0);
    if (texture == 0) {
        return false;
    }
    const Span columns =
        TouchedPixels(texRect.x, texRect.x + texRect.width, std::max(buffer.width, 1));
    const Span rows =
        TouchedPixels(texRect.y - texRect.height, texRect.y, std::max(buffer.height, 1));
    glBindFramebuffer(GL_FRAMEBUFFER, buffer.framebuffer);
    glBindTexture(GL_TEXTURE_2D, texture);
    glCopyTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, columns.start, rows.start, columns.length,
                     rows.length, 0);
    FilterLinear();
    ClampToEdge();
    copy->texture = texture;
    copy->texRect = {Rebase(texRect.x, buffer.width, columns),
                     Rebase(texRect.y, buffer.height, rows),
                     Rescale(texRect.width, buffer.width, columns),
                     Rescale(texRect.height, buffer.height, rows)};
    return true;
}
