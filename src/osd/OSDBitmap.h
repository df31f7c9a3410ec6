// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Client bitmaps on the window.
#ifndef ZOGLES_OSD_OSDBITMAP_H
#define ZOGLES_OSD_OSDBITMAP_H

#include "gl/ShaderProgram.h"
#include "surface/Records.h"

#include <GLES2/gl2.h>

/// Clears the window and blends client pixels onto it, through a texture that exists for one draw.
class ZOGLES_API OSDBitmap {
public:
    OSDBitmap();
    ~OSDBitmap();

    OSDBitmap(const OSDBitmap&) = delete;
    OSDBitmap& operator=(const OSDBitmap&) = delete;

    /// Builds the program and the vertex buffer.
    /// @return ZO_SUCCESS or ZO_PROGRAM_FAILED
    int Init();

    /// Uploads the pixels into a new texture; the first row is at t = 0.
    void CreateTexture(const tagBitmapInfo* info);

    /// Deletes the texture, if there is one.
    void DeleteTexture();

    /// Draws the whole bound texture into the bound target, its first row at the top.
    /// @param rect vertex space
    void RenderBimap(const tagRectInfo* rect) const;

    /// Shows the bitmap on the window.
    /// @param width,height the window's size in pixels
    void DrawBitmap(const tagBitmapInfo* info, int width, int height);

private:
    std::unique_ptr<ShaderProgram> shaderProgram;
    GLuint texture;
    GLuint program;
    GLuint vertexBuffer;
    GLint texLocation;
    GLint coordLocation;
};

#endif
