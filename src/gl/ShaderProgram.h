// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Compiles and links GLSL ES programs.
#ifndef ZOGLES_GL_SHADERPROGRAM_H
#define ZOGLES_GL_SHADERPROGRAM_H

#include "zogles/ZoGLDrawSurface.h"

/// Builds GL programs from GLSL ES sources and logs the driver's messages on failure. Has no state:
/// the caller owns the programs. A failure leaves no GL object behind.
class ZOGLES_API ShaderProgram {
public:
    /// Compiles one shader, preceded by the version line and, in a fragment shader, by a default
    /// precision.
    /// @param type GL_VERTEX_SHADER or GL_FRAGMENT_SHADER
    /// @return the shader's name, 0 on failure
    unsigned int LoadShader(unsigned int type, const char* source) const;

    /// Links two compiled shaders, which stay attached and undeleted.
    /// @return the program's name, 0 on failure
    unsigned int LinkShaderProgram(unsigned int vertexShader, unsigned int fragmentShader) const;

    /// Compiles and links a pair of sources without version lines.
    /// @return the program's name, 0 on failure and for a null source
    unsigned int CreateProgram(const char* vertexSource, const char* fragmentSource) const;

    /// Deletes a program. Ignores 0.
    void ReleaseProgram(unsigned int program) const;

    /// @return the location of an active attribute, or -1, which is logged
    int GetAttribLocation(unsigned int program, const char* name) const;

    /// @return the location of an active uniform, or -1, which is logged
    int GetUniformLocation(unsigned int program, const char* name) const;

    /// Logs the driver's info log of a shader or a program.
    void PrintLog(unsigned int object) const;
};

#endif
