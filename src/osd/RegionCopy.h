/// @file
/// A region of a buffer, set aside while the buffer is drawn into.
#ifndef ZOGLES_OSD_REGIONCOPY_H
#define ZOGLES_OSD_REGIONCOPY_H

#include "gl/FBOManager.h"
#include "surface/Records.h"

/// Where to read a region from.
struct RegionCopy {
    GLuint texture;
    tagRectInfo texRect; ///< the region, in that texture's texture space
};

/// Copies the pixels that sampling the region `texRect` of a buffer can touch, neighbours for the
/// linear filter included, into a new texture. Sampled there, the region gives what it gives in the
/// buffer, past its edges too: exactly at its own size, to within rounding when scaled. The texture
/// is the caller's to delete.
/// Leaves the buffer's framebuffer bound, texture unit 0 active and the new texture bound.
/// @return false when there is no texture to be had; only unit 0 is active then
bool CopyRegion(const tagFrameBuffObject& buffer, const tagRectInfo& texRect, RegionCopy* copy);

#endif
