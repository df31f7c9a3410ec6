// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The temporary copy that a blit within one buffer reads from.
#ifndef ZOGLES_OSD_REGIONCOPY_H
#define ZOGLES_OSD_REGIONCOPY_H

#include "osd/OSDBlit.h"

/// Copies the source's pixels that the blit can sample, including the neighbours that the linear
/// filter needs, into a new texture, and makes the blit read from it: `src.texture` and `srcRect`
/// change. Sampling the copy gives the same result as sampling the buffer, also past its edges:
/// exactly if the blit does not scale, otherwise within rounding. The caller deletes the texture.
/// Leaves the source's framebuffer and the new texture bound, and unit 0 active.
/// @return false when no texture name is available; the blit is unchanged, and unit 0 is active
bool CopySource(tagBlitInfo* blit);

#endif
