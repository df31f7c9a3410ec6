// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Filled rectangles.
#ifndef ZOGLES_OSD_OSDRECT_H
#define ZOGLES_OSD_OSDRECT_H

#include "gl/FBOManager.h"
#include "gl/ShaderProgram.h"
#include "surface/Records.h"

/// Fills rectangles with one colour, without blending.
class ZOGLES_API OSDRect {
public:
    OSDRect();
    ~OSDRect();

    OSDRect(const OSDRect&) = delete;
    OSDRect& operator=(const OSDRect&) = delete;

    /// Builds the program and the vertex buffer.
    /// @return ZO_SUCCESS or ZO_PROGRAM_FAILED
    int Init();

    /// @param rect vertex space of the target
    void DrawRect(const tagFrameBuffObject* target, const tagRectInfo* rect,
                  const tagColorRGBA* color) const;

private:
    std::unique_ptr<ShaderProgram> shaderProgram;
    GLuint program;
    GLuint vertexBuffer;
    GLint positionLocation;
    GLint colorLocation;
};

#endif
