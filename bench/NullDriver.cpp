// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// Empty EGL and GL functions, so that only the caller's code is measured. They are defined in the
// program, so they override those of the libraries.

#include "Driver.h"

#include <EGL/egl.h>
#include <GLES2/gl2.h>

const bool hasDriver = false;

ANativeWindow* OpenWindow() {
    static char window;
    return reinterpret_cast<ANativeWindow*>(&window);
}

namespace {

char something; // what every EGL handle points to

// Never reuses a name, unlike a driver; the empty functions ignore names.
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

} // namespace

#define NOTHING(name, ...)                                                                         \
    void name(__VA_ARGS__) {}
#define RETURN(value, Result, name, ...)                                                           \
    Result name(__VA_ARGS__) {                                                                     \
        return value;                                                                              \
    }

RETURN(&something, EGLDisplay, eglGetDisplay, EGLNativeDisplayType)
RETURN(&something, EGLContext, eglCreateContext, EGLDisplay, EGLConfig, EGLContext, const EGLint*)
RETURN(&something, EGLSurface, eglCreateWindowSurface, EGLDisplay, EGLConfig, EGLNativeWindowType,
       const EGLint*)
RETURN(EGL_TRUE, EGLBoolean, eglMakeCurrent, EGLDisplay, EGLSurface, EGLSurface, EGLContext)
RETURN(EGL_TRUE, EGLBoolean, eglDestroyContext, EGLDisplay, EGLContext)
RETURN(EGL_TRUE, EGLBoolean, eglDestroySurface, EGLDisplay, EGLSurface)
RETURN(EGL_TRUE, EGLBoolean, eglSwapBuffers, EGLDisplay, EGLSurface)
RETURN(EGL_TRUE, EGLBoolean, eglTerminate, EGLDisplay)
RETURN(EGL_TRUE, EGLBoolean, eglReleaseThread, )
RETURN(EGL_SUCCESS, EGLint, eglGetError, )

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

EGLBoolean eglQuerySurface(EGLDisplay, EGLSurface, EGLint what, EGLint* value) {
    *value = what == EGL_WIDTH ? windowWidth : windowHeight;
    return EGL_TRUE;
}

NOTHING(glActiveTexture, GLenum)
NOTHING(glAttachShader, GLuint, GLuint)
NOTHING(glBindBuffer, GLenum, GLuint)
NOTHING(glBindFramebuffer, GLenum, GLuint)
NOTHING(glBindTexture, GLenum, GLuint)
NOTHING(glBlendFunc, GLenum, GLenum)
NOTHING(glBufferData, GLenum, GLsizeiptr, const void*, GLenum)
NOTHING(glClear, GLbitfield)
NOTHING(glClearColor, GLfloat, GLfloat, GLfloat, GLfloat)
NOTHING(glCompileShader, GLuint)
NOTHING(glCopyTexImage2D, GLenum, GLint, GLenum, GLint, GLint, GLsizei, GLsizei, GLint)
NOTHING(glDeleteBuffers, GLsizei, const GLuint*)
NOTHING(glDeleteFramebuffers, GLsizei, const GLuint*)
NOTHING(glDeleteProgram, GLuint)
NOTHING(glDeleteShader, GLuint)
NOTHING(glDeleteTextures, GLsizei, const GLuint*)
NOTHING(glDisable, GLenum)
NOTHING(glDisableVertexAttribArray, GLuint)
NOTHING(glDrawArrays, GLenum, GLint, GLsizei)
NOTHING(glDrawElements, GLenum, GLsizei, GLenum, const void*)
NOTHING(glEnable, GLenum)
NOTHING(glEnableVertexAttribArray, GLuint)
NOTHING(glFinish, )
NOTHING(glFramebufferTexture2D, GLenum, GLenum, GLenum, GLuint, GLint)
NOTHING(glLinkProgram, GLuint)
NOTHING(glPixelStorei, GLenum, GLint)
NOTHING(glReadPixels, GLint, GLint, GLsizei, GLsizei, GLenum, GLenum, void*)
NOTHING(glShaderSource, GLuint, GLsizei, const GLchar* const*, const GLint*)
NOTHING(glTexImage2D, GLenum, GLint, GLint, GLsizei, GLsizei, GLint, GLenum, GLenum, const void*)
NOTHING(glTexParameteri, GLenum, GLenum, GLint)
NOTHING(glTexSubImage2D, GLenum, GLint, GLint, GLint, GLsizei, GLsizei, GLenum, GLenum, const void*)
NOTHING(glUniform1i, GLint, GLint)
NOTHING(glUniform4fv, GLint, GLsizei, const GLfloat*)
NOTHING(glUseProgram, GLuint)
NOTHING(glVertexAttribPointer, GLuint, GLint, GLenum, GLboolean, GLsizei, const void*)
NOTHING(glViewport, GLint, GLint, GLsizei, GLsizei)

RETURN(GL_FRAMEBUFFER_COMPLETE, GLenum, glCheckFramebufferStatus, GLenum)
RETURN(GenerateOne(), GLuint, glCreateProgram, )
RETURN(GenerateOne(), GLuint, glCreateShader, GLenum)
RETURN(0, GLint, glGetAttribLocation, GLuint, const GLchar*)
RETURN(GL_NO_ERROR, GLenum, glGetError, )
RETURN(reinterpret_cast<const GLubyte*>("none"), const GLubyte*, glGetString, GLenum)
RETURN(1, GLint, glGetUniformLocation, GLuint, const GLchar*)
RETURN(Generate(count, names), void, glGenBuffers, GLsizei count, GLuint* names)
RETURN(Generate(count, names), void, glGenFramebuffers, GLsizei count, GLuint* names)
RETURN(Generate(count, names), void, glGenTextures, GLsizei count, GLuint* names)
RETURN(void(*value = 32768), void, glGetIntegerv, GLenum, GLint* value) // a texture's largest side
RETURN(void(*value = GL_TRUE), void, glGetProgramiv, GLuint, GLenum, GLint* value)
RETURN(void(*value = GL_TRUE), void, glGetShaderiv, GLuint, GLenum, GLint* value)
