// EGL and GL that do nothing, so that only the caller's own code is measured. Being defined in the
// program, these functions come before those of the libraries.
//
// With ZOGLES_BENCH_RECORD, every call is handed to the recorder as well.

#include "Driver.h"

#include <EGL/egl.h>
#include <GLES2/gl2.h>
#include <cstdint>

#if defined(ZOGLES_BENCH_RECORD)
#include "CallRecorder.h"
#define NOTE(name, ...) NoteCall(#name, {__VA_ARGS__})
#else
#define NOTE(...) static_cast<void>(0)
#endif

const bool hasDriver = false;

ANativeWindow* OpenWindow() {
    static char window;
    return reinterpret_cast<ANativeWindow*>(&window);
}

namespace {

char something; // what every EGL handle points to

// Names are never used again, as a driver's would be: nothing here depends on them.
void Generate(GLsizei count, GLuint* names) {
    static GLuint last = 0;
    for (GLsizei i = 0; i < count; ++i) {
        names[i] = ++last;
    }
}

GLuint GenerateOne() {
    GLuint name = 0;
    Generate(1, &name);
    return name;
}

[[maybe_unused]] GLsizeiptr PixelBytes(GLenum format, GLsizei width, GLsizei height) {
    return GLsizeiptr{width} * height * (format == GL_RGBA ? 4 : 1);
}

} // namespace

// Parameters are named so that the recorder can take them; most builds use none of them.
#pragma GCC diagnostic ignored "-Wunused-parameter"

// A function that is noted and does nothing, and one that is not noted and yields something.
#define NOTHING(name, parameters, ...)                                                             \
    void name parameters {                                                                         \
        NOTE(name, __VA_ARGS__);                                                                   \
    }
#define UNSEEN(Result, name, parameters, value)                                                    \
    Result name parameters {                                                                       \
        return value;                                                                              \
    }

// EGL is called while a window is bound, which no case measures.
UNSEEN(EGLDisplay, eglGetDisplay, (EGLNativeDisplayType), &something)
EGLBoolean eglInitialize(EGLDisplay, EGLint* major, EGLint* minor) {
    *major = 1;
    *minor = 4;
    return EGL_TRUE;
}
EGLBoolean eglChooseConfig(EGLDisplay, const EGLint*, EGLConfig* configs, EGLint, EGLint* count) {
    *configs = &something;
    *count = 1;
    return EGL_TRUE;
}
UNSEEN(EGLContext, eglCreateContext, (EGLDisplay, EGLConfig, EGLContext, const EGLint*), &something)
UNSEEN(EGLSurface, eglCreateWindowSurface,
       (EGLDisplay, EGLConfig, EGLNativeWindowType, const EGLint*), &something)
EGLBoolean eglQuerySurface(EGLDisplay, EGLSurface, EGLint what, EGLint* value) {
    *value = what == EGL_WIDTH ? windowWidth : windowHeight;
    return EGL_TRUE;
}
UNSEEN(EGLBoolean, eglMakeCurrent, (EGLDisplay, EGLSurface, EGLSurface, EGLContext), EGL_TRUE)
UNSEEN(EGLBoolean, eglDestroyContext, (EGLDisplay, EGLContext), EGL_TRUE)
UNSEEN(EGLBoolean, eglDestroySurface, (EGLDisplay, EGLSurface), EGL_TRUE)
UNSEEN(EGLBoolean, eglSwapBuffers, (EGLDisplay, EGLSurface), EGL_TRUE)
UNSEEN(EGLBoolean, eglTerminate, (EGLDisplay), EGL_TRUE)
UNSEEN(EGLBoolean, eglReleaseThread, (), EGL_TRUE)
UNSEEN(EGLint, eglGetError, (), EGL_SUCCESS)

// What the drawing operations call.
NOTHING(glActiveTexture, (GLenum unit), unit)
NOTHING(glBindBuffer, (GLenum target, GLuint name), target, Object(name))
NOTHING(glBindFramebuffer, (GLenum target, GLuint name), target, Object(name))
NOTHING(glBindTexture, (GLenum target, GLuint name), target, Object(name))
NOTHING(glBlendFunc, (GLenum source, GLenum destination), source, destination)
NOTHING(glBufferData, (GLenum target, GLsizeiptr size, const void* data, GLenum usage), target,
        size, Upload(data, size), usage)
NOTHING(glClear, (GLbitfield buffers), buffers)
NOTHING(glClearColor, (GLfloat r, GLfloat g, GLfloat b, GLfloat a), r, g, b, a)
NOTHING(glCopyTexImage2D,
        (GLenum target, GLint level, GLenum format, GLint x, GLint y, GLsizei width, GLsizei height,
         GLint border),
        target, level, format, x, y, width, height, border)
NOTHING(glDeleteTextures, (GLsizei count, const GLuint* names), count, Object(*names))
NOTHING(glDisable, (GLenum what), what)
NOTHING(glDisableVertexAttribArray, (GLuint index), index)
NOTHING(glDrawArrays, (GLenum mode, GLint first, GLsizei count), mode, first, count)
NOTHING(glDrawElements, (GLenum mode, GLsizei count, GLenum type, const void* indices), mode, count,
        type, Content(indices, GLsizeiptr{2} * count))
NOTHING(glEnable, (GLenum what), what)
NOTHING(glEnableVertexAttribArray, (GLuint index), index)
void glGenTextures(GLsizei count, GLuint* names) {
    NOTE(glGenTextures, count);
    Generate(count, names);
}
GLenum glGetError() {
    NOTE(glGetError, );
    return GL_NO_ERROR;
}
void glGetIntegerv(GLenum what, GLint* value) {
    NOTE(glGetIntegerv, what);
    *value = 32768; // only the largest texture's side is ever asked for
}
NOTHING(glPixelStorei, (GLenum what, GLint value), what, value)
NOTHING(glTexImage2D,
        (GLenum target, GLint level, GLint internalFormat, GLsizei width, GLsizei height,
         GLint border, GLenum format, GLenum type, const void* pixels),
        target, level, internalFormat, width, height, border, format, type,
        Upload(pixels, PixelBytes(format, width, height)))
NOTHING(glTexParameteri, (GLenum target, GLenum what, GLint value), target, what, value)
NOTHING(glTexSubImage2D,
        (GLenum target, GLint level, GLint x, GLint y, GLsizei width, GLsizei height, GLenum format,
         GLenum type, const void* pixels),
        target, level, x, y, width, height, format, type,
        Upload(pixels, PixelBytes(format, width, height)))
NOTHING(glUniform1i, (GLint location, GLint value), location, value)
NOTHING(glUniform4fv, (GLint location, GLsizei count, const GLfloat* value), location, count,
        value[0], value[1], value[2], value[3])
NOTHING(glUseProgram, (GLuint name), Object(name))
NOTHING(glVertexAttribPointer,
        (GLuint index, GLint size, GLenum type, GLboolean normalised, GLsizei stride,
         const void* offset),
        index, size, type, normalised, stride, reinterpret_cast<intptr_t>(offset))
NOTHING(glViewport, (GLint x, GLint y, GLsizei width, GLsizei height), x, y, width, height)

// What only setting up and taking down call, and the benchmarks themselves.
UNSEEN(void, glAttachShader, (GLuint, GLuint), )
UNSEEN(GLenum, glCheckFramebufferStatus, (GLenum), GL_FRAMEBUFFER_COMPLETE)
UNSEEN(void, glCompileShader, (GLuint), )
UNSEEN(GLuint, glCreateProgram, (), GenerateOne())
UNSEEN(GLuint, glCreateShader, (GLenum), GenerateOne())
UNSEEN(void, glDeleteBuffers, (GLsizei, const GLuint*), )
UNSEEN(void, glDeleteFramebuffers, (GLsizei, const GLuint*), )
UNSEEN(void, glDeleteProgram, (GLuint), )
UNSEEN(void, glDeleteShader, (GLuint), )
UNSEEN(void, glFinish, (), )
UNSEEN(void, glFramebufferTexture2D, (GLenum, GLenum, GLenum, GLuint, GLint), )
void glGenBuffers(GLsizei count, GLuint* names) {
    Generate(count, names);
}
void glGenFramebuffers(GLsizei count, GLuint* names) {
    Generate(count, names);
}
UNSEEN(GLint, glGetAttribLocation, (GLuint, const GLchar*), 0)
void glGetProgramiv(GLuint, GLenum, GLint* value) {
    *value = GL_TRUE;
}
void glGetShaderiv(GLuint, GLenum, GLint* value) {
    *value = GL_TRUE;
}
const GLubyte* glGetString(GLenum) {
    return reinterpret_cast<const GLubyte*>("none");
}
UNSEEN(GLint, glGetUniformLocation, (GLuint, const GLchar*), 1)
UNSEEN(void, glLinkProgram, (GLuint), )
UNSEEN(void, glReadPixels, (GLint, GLint, GLsizei, GLsizei, GLenum, GLenum, void*), )
UNSEEN(void, glShaderSource, (GLuint, GLsizei, const GLchar* const*, const GLint*), )
