// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The list of channels, with one highlighted row. It scrolls by copies within its buffer.
#ifndef OSD_MENU_H
#define OSD_MENU_H

#include "Layout.h"
#include "Stage.h"
#include "Typesetter.h"

class Menu {
public:
    Menu(Canvas& canvas, Typesetter& typesetter, const Layout& layout);

    void CreateBuffers();
    /// Fills the buffers, with the list at its beginning.
    void Paint(Stage& stage);
    /// Draws the texts of the panel that do not move.
    void PaintHeader(unsigned int buffer);

    /// Moves the list up by some pixels, at most to the next whole row.
    void Scroll(int pixels);
    bool IsBetweenRows() const { return offset != 0; }

    void Compose(unsigned int frame);

private:
    void PaintRow(unsigned int buffer, int top, int index, bool isHighlighted);
    void PaintHighlight();
    Rect GetThumb() const;
    void BringNextRow();

    Canvas& canvas;
    Typesetter& typesetter;
    const Layout& layout;
    int first = 0;                      // channel of the topmost row
    int offset = 0;                     // pixels that the topmost row has moved out at the top
    unsigned int rows = ZO_NO_HANDLE;   // the visible list without the highlight
    unsigned int coming = ZO_NO_HANDLE; // the row that enters at the bottom
    unsigned int pill = ZO_NO_HANDLE;   // the empty highlight
    unsigned int chosen = ZO_NO_HANDLE; // the highlight with its row's text
    unsigned int thumb = ZO_NO_HANDLE;  // the scrollbar's handle
};

#endif
