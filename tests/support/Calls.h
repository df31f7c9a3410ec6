// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Lists of calls, as harness::Record returns them, and sequences that operations share.
#ifndef ZOGLES_TESTS_SUPPORT_CALLS_H
#define ZOGLES_TESTS_SUPPORT_CALLS_H

#include "support/Harness.h"

#include <GLES2/gl2.h>

using harness::Call;
using Calls = std::vector<std::string>;

/// Any pointer but null in a recorded call.
inline constexpr char data[] = "data";

inline Calls operator+(Calls first, const Calls& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

inline std::string Zero(size_t size) {
    return Call("memset_s", data, size, 0, size);
}

inline std::string BindTexture(GLuint texture) {
    return Call("glBindTexture", GL_TEXTURE_2D, texture);
}

inline std::string BindFramebuffer(GLuint framebuffer) {
    return Call("glBindFramebuffer", GL_FRAMEBUFFER, framebuffer);
}

inline Calls BindTarget(GLuint framebuffer, int width, int height) {
    return {BindFramebuffer(framebuffer), Call("glViewport", 0, 0, width, height)};
}

/// Linear filters and no repetition, set in the order of `names`.
inline Calls SetParameters(const std::vector<GLenum>& names = {
                               GL_TEXTURE_MIN_FILTER, GL_TEXTURE_MAG_FILTER, GL_TEXTURE_WRAP_S,
                               GL_TEXTURE_WRAP_T}) {
    Calls calls;
    for (const GLenum name : names) {
        const bool isFilter = name == GL_TEXTURE_MIN_FILTER || name == GL_TEXTURE_MAG_FILTER;
        calls.push_back(
            Call("glTexParameteri", GL_TEXTURE_2D, name, isFilter ? GL_LINEAR : GL_CLAMP_TO_EDGE));
    }
    return calls;
}

/// Opens a window surface, makes it current, and asks for its size and the driver's names.
inline Calls OpenWindow(const ANativeWindow* window) {
    return {Call("eglCreateWindowSurface", data, data, reinterpret_cast<uintptr_t>(window), "null"),
            Call("eglMakeCurrent", data, data, data, data),
            Call("eglQuerySurface", data, data, EGL_WIDTH, data),
            Call("eglQuerySurface", data, data, EGL_HEIGHT, data),
            Call("glGetString", GL_VERSION),
            Call("glGetString", GL_VENDOR),
            Call("glGetString", GL_RENDERER)};
}

inline Calls EnableBlending() {
    return {Call("glEnable", GL_BLEND), Call("glBlendFunc", GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA)};
}

inline Calls Sample(GLenum unit, const std::string& bindTexture, GLint location) {
    return {Call("glActiveTexture", unit), bindTexture,
            Call("glUniform1i", location, unit - GL_TEXTURE0)};
}

/// Uploads vertices of four floats each.
inline Calls FeedVertices(GLint location, GLuint buffer, size_t bytes) {
    return {Call("glEnableVertexAttribArray", location),
            Call("glBindBuffer", GL_ARRAY_BUFFER, buffer),
            Call("glVertexAttribPointer", location, 4, GL_FLOAT, GL_FALSE, 0, "null"),
            Call("glBufferData", GL_ARRAY_BUFFER, bytes, data, GL_DYNAMIC_DRAW)};
}

inline Calls UnbindVertices(GLint location) {
    return {Call("glBindBuffer", GL_ARRAY_BUFFER, 0), Call("glDisableVertexAttribArray", location)};
}

#endif
