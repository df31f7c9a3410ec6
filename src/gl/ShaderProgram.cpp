// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "gl/ShaderProgram.h"

#include "platform/Log.h"

#include <GLES2/gl2.h>
#include <memory>
#include <new>

namespace {

constexpr char tag[] = "ShaderProgram";
constexpr char versionLine[] = "#version 100\n";
constexpr char fragmentPrecision[] = "#ifdef GL_FRAGMENT_PRECISION_HIGH\n"
                                     "precision highp float;           \n"
                                     "#else                            \n"
                                     "precision mediump float;         \n"
                                     "#endif                           \n";

} // namespace

unsigned int ShaderProgram::LoadShader(unsigned int type, const char* source) const {
    if (source == nullptr) {
        __android_log_print(LogError, tag, "Error source is NULL\n");
        return 0;
    }
    const GLuint shader = glCreateShader(type);
    if (shader == 0) {
        __android_log_print(LogError, tag, "Create shader fail\n");
        return 0;
    }
    const char* strings[] = {versionLine, type == GL_FRAGMENT_SHADER ? fragmentPrecision : "",
                             source};
    glShaderSource(shader, 3, strings, nullptr);
    glCompileShader(shader);
    GLint compiled = 0;
    glGetShaderiv(shader, GL_COMPILE_STATUS, &compiled);
    if (compiled == 0) {
        PrintLog(shader);
        glDeleteShader(shader);
        return 0;
    }
    return shader;
}

unsigned int ShaderProgram::LinkShaderProgram(unsigned int vertexShader,
                                              unsigned int fragmentShader) const {
    const GLuint program = glCreateProgram();
    if (program == 0) {
        __android_log_print(LogError, tag, "create program fail\n");
        return 0;
    }
    glAttachShader(program, vertexShader);
    glAttachShader(program, fragmentShader);
    glLinkProgram(program);
    GLint linked = 0;
    glGetProgramiv(program, GL_LINK_STATUS, &linked);
    if (linked == 0) {
        PrintLog(program);
        glDeleteProgram(program);
        return 0;
    }
    return program;
}

unsigned int ShaderProgram::CreateProgram(const char* vertexSource,
                                          const char* fragmentSource) const {
    if (vertexSource == nullptr || fragmentSource == nullptr) {
        return 0;
    }
    const GLuint vertexShader = LoadShader(GL_VERTEX_SHADER, vertexSource);
    if (vertexShader == 0) {
        return 0;
    }
    const GLuint fragmentShader = LoadShader(GL_FRAGMENT_SHADER, fragmentSource);
    if (fragmentShader == 0) {
        glDeleteShader(vertexShader);
        return 0;
    }
    const GLuint program = LinkShaderProgram(vertexShader, fragmentShader);
    // The program keeps attached shaders alive.
    glDeleteShader(vertexShader);
    glDeleteShader(fragmentShader);
    return program;
}

void ShaderProgram::ReleaseProgram(unsigned int program) const {
    if (program != 0) {
        glDeleteProgram(program);
    }
}

int ShaderProgram::GetAttribLocation(unsigned int program, const char* name) const {
    const GLint location = glGetAttribLocation(program, name);
    if (location == -1) {
        __android_log_print(LogError, tag, "Could not bind attribute %s\n", name);
    }
    return location;
}

int ShaderProgram::GetUniformLocation(unsigned int program, const char* name) const {
    const GLint location = glGetUniformLocation(program, name);
    if (location == -1) {
        __android_log_print(LogError, tag, "Could not bind uniform %s\n", name);
    }
    return location;
}

void ShaderProgram::PrintLog(unsigned int object) const {
    const bool isShader = glIsShader(object) != GL_FALSE;
    const bool isProgram = glIsProgram(object) != GL_FALSE;
    if (!isShader && !isProgram) {
        __android_log_print(LogError, tag, "Not a shader or a program\n");
        return;
    }
    GLint length = 0;
    const auto getParameter = isShader ? glGetShaderiv : glGetProgramiv;
    getParameter(object, GL_INFO_LOG_LENGTH, &length);
    // One byte more than the driver reports, so that an empty log is an empty string.
    const size_t size = length > 0 ? static_cast<size_t>(length) : 0;
    const std::unique_ptr<char[]> text(new (std::nothrow) char[size + 1]());
    if (!text) {
        __android_log_print(LogError, tag, "allocate memory fail\n");
        return;
    }
    if (isShader) {
        glGetShaderInfoLog(object, length, nullptr, text.get());
        __android_log_print(LogError, tag, "Could not compile shader %d:\n%s\n",
                            static_cast<int>(object), text.get());
    } else {
        glGetProgramInfoLog(object, length, nullptr, text.get());
        __android_log_print(LogError, tag, "Could not link program:\n%s\n", text.get());
    }
}
