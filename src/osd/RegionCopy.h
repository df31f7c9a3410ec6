/// @file
/// A region of a buffer, set aside while the buffer is drawn into.
#ifndef ZOGLES_OSD_REGIONCOPY_H
#define ZOGLES_OSD_REGIONCOPY_H

#include "gl/FBOManager.h"
#include "surface/Records.h"

/// Makes a texture as large as the buffer and copies into it, in place, the pixels that sampling the
/// region `texRect` can touch: neighbours for the linear filter and, past the edges, edge pixels.
/// Sampled there, the region gives to the bit what it gives in the buffer. The texture is the
/// caller's to delete.
/// Leaves the buffer's framebuffer bound, texture unit 0 active and the new texture bound.
/// @return the texture, or 0 when there is none to be had; only unit 0 is active then
GLuint CopyRegion(const tagFrameBuffObject& buffer, const tagRectInfo& texRect);

#endif
