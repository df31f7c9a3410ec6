// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/Interpose.h"

#include <GLES2/gl2.h>

PASS_ON(void, glActiveTexture, (GLenum unit), (unit))
PASS_ON(void, glAttachShader, (GLuint program, GLuint shader), (program, shader))
PASS_ON(void, glBindBuffer, (GLenum target, GLuint buffer), (target, buffer))
PASS_ON(void, glBindFramebuffer, (GLenum target, GLuint framebuffer), (target, framebuffer))
PASS_ON(void, glBindTexture, (GLenum target, GLuint texture), (target, texture))
PASS_ON(void, glBlendFunc, (GLenum source, GLenum destination), (source, destination))
PASS_ON(void, glClear, (GLbitfield mask), (mask))
PASS_ON(void, glClearColor, (GLfloat r, GLfloat g, GLfloat b, GLfloat a), (r, g, b, a))
PASS_ON(void, glCompileShader, (GLuint shader), (shader))
PASS_ON(void, glCopyTexImage2D,
        (GLenum target, GLint level, GLenum format, GLint x, GLint y, GLsizei width, GLsizei height,
         GLint border),
        (target, level, format, x, y, width, height, border))
PASS_ON(void, glDisable, (GLenum capability), (capability))
PASS_ON(void, glDisableVertexAttribArray, (GLuint index), (index))
PASS_ON(void, glDrawArrays, (GLenum mode, GLint first, GLsizei count), (mode, first, count))
PASS_ON(void, glDrawElements, (GLenum mode, GLsizei count, GLenum type, const void* indices),
        (mode, count, type, indices))
PASS_ON(void, glEnable, (GLenum capability), (capability))
PASS_ON(void, glEnableVertexAttribArray, (GLuint index), (index))
PASS_ON(void, glFramebufferTexture2D,
        (GLenum target, GLenum attachment, GLenum texTarget, GLuint texture, GLint level),
        (target, attachment, texTarget, texture, level))
PASS_ON(void, glGetProgramInfoLog, (GLuint program, GLsizei size, GLsizei* length, GLchar* text),
        (program, size, length, text))
PASS_ON(void, glGetShaderInfoLog, (GLuint shader, GLsizei size, GLsizei* length, GLchar* text),
        (shader, size, length, text))
PASS_ON(GLenum, glGetError, (), ())
PASS_ON_OR(-1, GLint, glGetAttribLocation, (GLuint program, const GLchar* name), (program, name))
PASS_ON_OR(-1, GLint, glGetUniformLocation, (GLuint program, const GLchar* name), (program, name))
// A failing query does not change the value, as with a lost context.
PASS_ON(void, glGetProgramiv, (GLuint program, GLenum name, GLint* value), (program, name, value))
PASS_ON(void, glGetShaderiv, (GLuint shader, GLenum name, GLint* value), (shader, name, value))
PASS_ON(const GLubyte*, glGetString, (GLenum name), (name))
PASS_ON(GLboolean, glIsProgram, (GLuint program), (program))
PASS_ON(GLboolean, glIsShader, (GLuint shader), (shader))
PASS_ON(void, glLinkProgram, (GLuint program), (program))
PASS_ON(void, glPixelStorei, (GLenum name, GLint value), (name, value))
PASS_ON(void, glShaderSource,
        (GLuint shader, GLsizei count, const GLchar* const* strings, const GLint* lengths),
        (shader, count, strings, lengths))
PASS_ON(void, glTexImage2D,
        (GLenum target, GLint level, GLint internalFormat, GLsizei width, GLsizei height,
         GLint border, GLenum format, GLenum type, const void* pixels),
        (target, level, internalFormat, width, height, border, format, type, pixels))
PASS_ON(void, glTexParameteri, (GLenum target, GLenum name, GLint value), (target, name, value))
PASS_ON(void, glTexSubImage2D,
        (GLenum target, GLint level, GLint x, GLint y, GLsizei width, GLsizei height, GLenum format,
         GLenum type, const void* pixels),
        (target, level, x, y, width, height, format, type, pixels))
PASS_ON(void, glUniform1i, (GLint location, GLint value), (location, value))
PASS_ON(void, glUseProgram, (GLuint program), (program))
PASS_ON(void, glVertexAttribPointer,
        (GLuint index, GLint size, GLenum type, GLboolean normalised, GLsizei stride,
         const void* offset),
        (index, size, type, normalised, stride, offset))
PASS_ON(void, glViewport, (GLint x, GLint y, GLsizei width, GLsizei height), (x, y, width, height))

// Records the four floats of a colour.
extern "C" void glUniform4fv(GLint location, GLsizei count, const GLfloat* value) {
    INTERPOSE(glUniform4fv, (location, count, value));
    if (harness::Current().isRecording) {
        harness::Current().calls.back() =
            harness::Call("glUniform4fv", location, count, value[0], value[1], value[2], value[3]);
    }
    real(location, count, value);
}

extern "C" void glBufferData(GLenum target, GLsizeiptr size, const void* data, GLenum usage) {
    INTERPOSE(glBufferData, (target, size, data, usage));
    const auto* first = static_cast<const harness::Vertex*>(data);
    harness::Current().vertices.assign(first, first + size / GLsizeiptr{sizeof(*first)});
    real(target, size, data, usage);
}

extern "C" GLenum glCheckFramebufferStatus(GLenum target) {
    INTERPOSE(glCheckFramebufferStatus, (target));
    const GLenum status = isFailing ? 0 : real(target);
    return static_cast<GLenum>(
        harness::Current().framebufferStatus.value_or(static_cast<int>(status)));
}

extern "C" void glGetIntegerv(GLenum name, GLint* value) {
    INTERPOSE(glGetIntegerv, (name, value));
    if (isFailing) {
        return;
    }
    real(name, value);
    if (name == GL_MAX_TEXTURE_SIZE) {
        *value = harness::Current().maxTextureSize.value_or(*value);
    }
}

// The library creates and deletes one object at a time. A driver that cannot create one returns 0.
#define GENERATE(name, kind)                                                                       \
    extern "C" void name(GLsizei count, GLuint* objects) {                                         \
        INTERPOSE(name, (count, objects));                                                         \
        if (isFailing) {                                                                           \
            *objects = 0;                                                                          \
            return;                                                                                \
        }                                                                                          \
        real(count, objects);                                                                      \
        harness::AddLive(kind, *objects);                                                          \
    }
GENERATE(glGenTextures, "texture")
GENERATE(glGenBuffers, "buffer")
GENERATE(glGenFramebuffers, "framebuffer")
END_LIFE(void, glDeleteTextures, "texture", *objects, , (GLsizei count, const GLuint* objects),
         (count, objects))
END_LIFE(void, glDeleteBuffers, "buffer", *objects, , (GLsizei count, const GLuint* objects),
         (count, objects))
END_LIFE(void, glDeleteFramebuffers, "framebuffer", *objects, ,
         (GLsizei count, const GLuint* objects), (count, objects))

BEGIN_LIFE(GLuint, glCreateShader, "shader", (GLenum type), (type))
BEGIN_LIFE(GLuint, glCreateProgram, "program", (), ())
END_LIFE(void, glDeleteShader, "shader", shader, , (GLuint shader), (shader))
END_LIFE(void, glDeleteProgram, "program", program, , (GLuint program), (program))
