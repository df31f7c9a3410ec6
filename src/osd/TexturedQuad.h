/// @file
/// The textured quad that blit, presentation and bitmap share.
#ifndef ZOGLES_OSD_TEXTUREDQUAD_H
#define ZOGLES_OSD_TEXTUREDQUAD_H

#include "gl/RendererObjects.h"
#include "gl/Vertices.h"
#include "surface/Records.h"

/// Builds a renderer's program for textured quads, and its vertex buffer.
/// @param tag the renderer's, for the log
/// @return ZO_SUCCESS or ZO_PROGRAM_FAILED
int InitTexturedQuad(const char* tag, std::unique_ptr<ShaderProgram>& helper, GLuint& program,
                     GLuint& vertexBuffer, GLint& coordLocation, GLint& texLocation);

/// Samples a texture through unit 0.
void BindSource(GLuint texture, GLint texLocation);

/// Writes the quad that shows the region `texRect` of a buffer (texture space) at `posRect` (vertex
/// space): corner upon corner.
void PlaceRegion(const tagRectInfo& texRect, const tagRectInfo& posRect, Vertex (&quad)[4]);

/// Loads a quad into the bound vertex buffer and draws its two triangles.
void DrawQuad(const Vertex (&quad)[4]);

/// Makes the window the target and all of it transparent black, the start of both operations that
/// show something on the window.
/// @param width,height the window's size in pixels
void ClearWindow(int width, int height);

#endif
