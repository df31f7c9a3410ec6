// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// A thin wrapper of the library, which checks every result code and reports failures.
#ifndef OSD_CANVAS_H
#define OSD_CANVAS_H

#include "Geometry.h"
#include "common/Picture.h"

#include <string>
#include <string_view>

struct TextStyle {
    Color color;
    unsigned int fontSize;
    bool bold = false;
    bool italic = false;
};

class Canvas {
public:
    explicit Canvas(ZoGLDrawSurface& surface);

    /// False once any operation has failed.
    bool IsGood() const { return failures == 0; }

    Rect GetWindowRect() const;
    void LoadFont(const std::string& path, int pixels);

    unsigned int CreateBuffer(int width, int height);
    void DestroyBuffer(unsigned int buffer);

    void Fill(unsigned int buffer, const Rect& rect, const Color& color);
    /// Paints a picture, scaled to a rectangle, which may exceed the buffer. Leaves out pixels of
    /// alpha 0.
    /// @param alpha replaces the alpha of all painted pixels
    void Paint(unsigned int buffer, const Picture& picture, const Rect& rect,
               unsigned char alpha = 255);
    void Copy(unsigned int from, const Rect& source, unsigned int to, const Rect& target);
    void DrawText(unsigned int buffer, std::u16string_view text, const TextStyle& style, int x,
                  int baseline);
    int MeasureText(std::u16string_view text);

    /// Clears the window and shows a part of a buffer at the same position.
    void Present(unsigned int buffer, const Rect& part);
    /// Clears the window and shows a picture on a part of it.
    void ShowPicture(const Picture& picture, const Rect& rect);
    void Refresh();

private:
    void Check(int code, const char* operation);

    ZoGLDrawSurface& surface;
    int failures = 0;
};

#endif
