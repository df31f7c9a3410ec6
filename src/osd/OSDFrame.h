// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Presentation of buffers on the window.
#ifndef ZOGLES_OSD_OSDFRAME_H
#define ZOGLES_OSD_OSDFRAME_H

#include "gl/ShaderProgram.h"
#include "surface/Records.h"

#include <GLES2/gl2.h>

/// Clears the window and blends a region of a texture onto it.
class ZOGLES_API OSDFrame {
public:
    OSDFrame();
    ~OSDFrame();

    OSDFrame(const OSDFrame&) = delete;
    OSDFrame& operator=(const OSDFrame&) = delete;

    /// Builds the program and the vertex buffer.
    /// @return ZO_SUCCESS or ZO_PROGRAM_FAILED
    int Init();

    /// @param texture the buffer's texture; 0 shows as opaque black
    /// @param texRect region to show, in texture space
    /// @param posRect destination in the window's vertex space
    /// @param width,height the window's size in pixels
    void DisplayFBO(unsigned int texture, const tagRectInfo* texRect, const tagRectInfo* posRect,
                    int width, int height) const;

private:
    std::unique_ptr<ShaderProgram> shaderProgram;
    GLuint program;
    GLuint vertexBuffer;
    GLint texLocation;
    GLint coordLocation;
};

#endif
