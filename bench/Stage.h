/// @file
/// What both contestants draw on, and the inputs they share.
#ifndef ZOGLES_BENCH_STAGE_H
#define ZOGLES_BENCH_STAGE_H

#include "Driver.h"
#include "Floor.h"

#include <string>

constexpr size_t longestText = 100000;
constexpr unsigned int fontSize = 40;
constexpr tagZoRectInfo wholeWindow = {0, 0, windowWidth, windowHeight};

/// Text without spaces, of so many units.
std::u16string Line(size_t length);

/// The text of a request in one colour.
tagZoTextInfo Request(const std::u16string& text, tagZoColorRGBA color);

/// The colour as the floor takes it.
Floor::Color ToFloorColor(tagZoColorRGBA color);

/// The font of most cases, and one with tens of thousands of characters; empty if not installed.
std::string FontPath();
std::string LargeFontPath();

/// A surface that is bound from the start, so that what comes after it finds its context.
struct BoundSurface : ZoGLDrawSurface {
    BoundSurface();
};

/// A bound surface with a font and with buffers, and a floor that shares its context.
class Stage {
public:
    /// @param fontPath,characters the font, cut to so many characters; 0 means all
    /// @param buffers how many buffers the library has, two at least
    Stage(const std::string& fontPath, unsigned int characters, int buffers);

    /// Gives both sides' buffers the same known content.
    void Reset();

    /// Shows the first buffer on the window, by either side.
    void Show(bool isLibrary);

    BoundSurface surface;
    unsigned int target; ///< the library's buffers
    unsigned int source;
    unsigned int last; ///< the one created last
    Floor floor;
    Floor::Target floorTarget;
    Floor::Target floorSource;
};

#endif
