/// @file
/// A client's life in small: a fixed session that uses every operation, step by step.
#ifndef ZOGLES_TESTS_ROBUSTNESS_SESSION_H
#define ZOGLES_TESTS_ROBUSTNESS_SESSION_H

#include "zogles/ZoGLDrawSurface.h"

#include <vector>

/// What the client of a session holds.
struct Client {
    ZoGLDrawSurface* surface;
    ANativeWindow* window;
    ANativeWindow* otherWindow;
    unsigned int left = ZO_NO_HANDLE;
    unsigned int right = ZO_NO_HANDLE;
};

/// What a step draws on.
enum class Drawing { None, Left, Right, Window };

/// One operation of the session.
struct Step {
    const char* name;
    int (*run)(Client& client); ///< an operation's code; 0 for one that has none
    std::vector<int> codes;     ///< those that the operation documents, besides success
    Drawing drawing = Drawing::None;
};

/// The steps in order. They start and end without a window. Buffers are 64 by 48 pixels.
extern const std::vector<Step> session;

/// Makes every font map a few characters only: a plain one; one that is a 1-bit image, as old
/// fonts have them; one that is an 8-bit image even for heavier strokes; and a mark without area.
/// Default fonts are there.
void UseSessionFont();

#endif
