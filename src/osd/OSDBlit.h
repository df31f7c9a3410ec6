// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Copies between buffers.
#ifndef ZOGLES_OSD_OSDBLIT_H
#define ZOGLES_OSD_OSDBLIT_H

#include "gl/FBOManager.h"
#include "gl/ShaderProgram.h"
#include "surface/Records.h"

/// A copy request.
struct tagBlitInfo {
    tagFrameBuffObject src;
    tagFrameBuffObject dst;
    tagRectInfo srcRect; ///< region to read, in the source's texture space
    tagRectInfo dstRect; ///< region to write, in the destination's vertex space
};

/// Draws a region of one buffer into another, without blending.
class ZOGLES_API OSDBlit {
public:
    OSDBlit();
    ~OSDBlit();

    OSDBlit(const OSDBlit&) = delete;
    OSDBlit& operator=(const OSDBlit&) = delete;

    /// Builds the program and the vertex buffer.
    /// @return ZO_SUCCESS or ZO_PROGRAM_FAILED
    int Init();

    /// Copies the region.
    /// @pre source and destination are different textures, or texture 0: sampling the texture that
    ///     is drawn into is undefined
    void Blit(const tagBlitInfo* info) const;

    /// Draws the quad from the bound texture into the bound target.
    /// @param texRect texture space
    /// @param posRect vertex space
    void BlitByDrawing(const tagRectInfo* texRect, const tagRectInfo* posRect) const;

private:
    std::unique_ptr<ShaderProgram> shaderProgram;
    GLuint program;
    GLuint vertexBuffer;
    GLint texLocation;
    GLint coordLocation;
};

#endif
