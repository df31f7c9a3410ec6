// The list of channels, with one row highlighted, which scrolls by copies within its own buffer.
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
    /// Writes what never moves on the panel.
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
    int first;           // channel of the topmost row
    int offset;          // pixels that the list has moved since a row was topmost
    unsigned int rows;   // the list as it is seen, without the highlight
    unsigned int coming; // the row that comes in from below
    unsigned int pill;   // the empty highlight
    unsigned int chosen; // the highlight with its row's text
    unsigned int thumb;  // the scrollbar's handle
};

#endif
