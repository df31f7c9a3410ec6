/// @file
/// Compiling and linking of GLSL ES programs.
#ifndef ZOGLES_GL_SHADERPROGRAM_H
#define ZOGLES_GL_SHADERPROGRAM_H

#include "zogles/ZoGLDrawSurface.h"

/// Turns GLSL ES sources into GL programs and logs what the driver says of the failures. Keeps no
/// state: the programs belong to the caller. No failure leaves a GL object behind.
class ZOGLES_API ShaderProgram {
public:
    /// Compiles one shader behind the version line and, for fragments, a default precision.
    /// @param type GL_VERTEX_SHADER or GL_FRAGMENT_SHADER
    /// @return the shader's name, 0 on failure
    unsigned int LoadShader(unsigned int type, const char* source) const;

    /// Links two compiled shaders, which stay attached and undeleted.
    /// @return the program's name, 0 on failure
    unsigned int LinkShaderProgram(unsigned int vertexShader, unsigned int fragmentShader) const;

    /// Compiles and links a pair of sources that have no version line of their own.
    /// @return the program's name, 0 on failure and for a null source
    unsigned int CreateProgram(const char* vertexSource, const char* fragmentSource) const;

    /// Deletes a program; 0 is none.
    void ReleaseProgram(unsigned int program) const;

    /// @return the location of an active attribute, or -1, which is logged
    int GetAttribLocation(unsigned int program, const char* name) const;

    /// @return the location of an active uniform, or -1, which is logged
    int GetUniformLocation(unsigned int program, const char* name) const;

    /// Logs what the driver has to say of a shader or a program.
    void PrintLog(unsigned int object) const;
};

#endif
