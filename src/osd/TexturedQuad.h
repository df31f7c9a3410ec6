/// @file
/// The textured quad that blit, presentation and bitmap share.
#ifndef ZOGLES_OSD_TEXTUREDQUAD_H
#define ZOGLES_OSD_TEXTUREDQUAD_H

#include "gl/RenderTarget.h"
#include "gl/RendererObjects.h"
#include "gl/Vertices.h"
#include "surface/Records.h"

/// Builds a renderer's program for textured quads, and its vertex buffer.
/// @param tag the renderer's, for the log
/// @return ZO_SUCCESS or ZO_PROGRAM_FAILED
int InitTexturedQuad(const char* tag, std::unique_ptr<ShaderProgram>& helper, GLuint& program,
                     GLuint& vertexBuffer, GLint& coordLocation, GLint& texLocation);

/// Samples a texture through unit 0.
inline void BindSource(GLuint texture, GLint texLocation) {
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, texture);
    glUniform1i(texLocation, 0);
}

/// Writes the quad that shows the region `texRect` of a buffer (texture space) at `posRect` (vertex
/// space): corner upon corner.
inline void PlaceRegion(const tagRectInfo& texRect, const tagRectInfo& posRect, Vertex (&quad)[4]) {
    const float left = posRect.x;
    const float right = posRect.x + posRect.width;
    const float top = posRect.y;
    const float bottom = posRect.y - posRect.height;
    const float s0 = texRect.x;
    const float s1 = texRect.x + texRect.width;
    const float t0 = texRect.y;
    const float t1 = texRect.y - texRect.height;
    quad[0] = {left, bottom, s0, t1};
    quad[1] = {right, bottom, s1, t1};
    quad[2] = {left, top, s0, t0};
    quad[3] = {right, top, s1, t0};
}

/// Loads a quad into the bound vertex buffer and draws its two triangles.
inline void DrawQuad(const Vertex (&quad)[4]) {
    static constexpr GLushort indices[] = {0, 1, 2, 3, 2, 1};
    LoadVertices(quad, 4);
    glDrawElements(GL_TRIANGLES, 6, GL_UNSIGNED_SHORT, indices);
}

/// Makes the window the target and all of it transparent black, the start of both operations that
/// show something on the window.
/// @param width,height the window's size in pixels
inline void ClearWindow(int width, int height) {
    BindTarget(0, width, height);
    ClearTarget(transparentBlack, GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

#endif
