/// @file
/// What a client does from binding a window to losing it, step by step, in two fixed sessions.
#ifndef ZOGLES_TESTS_ROBUSTNESS_SESSION_H
#define ZOGLES_TESTS_ROBUSTNESS_SESSION_H

#include "support/SurfaceFixture.h"

#include <initializer_list>
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

/// One operation of a session.
struct Step {
    const char* name;
    int (*run)(Client& client);       ///< returns the operation's code; ZO_SUCCESS if it has none
    std::initializer_list<int> codes; ///< documented for the operation
    Drawing drawing = Drawing::None;
};
using Session = std::vector<Step>;

/// Every operation, with the font and all renderers made beforehand. Both sessions start and end
/// without a window. Buffers are 64 by 48 pixels; the next binding restores them.
extern const Session preparedSession;

/// Needs the buffers of the other session. Each operation makes its renderer, and the text loads the
/// default font.
extern const Session firstUseSession;

constexpr size_t charactersOfFont = 3;

/// Has run the prepared session once, so that either can follow, any number of times.
///
/// Fonts map a few characters only: an outline; one that is a 1-bit image, as old fonts have them; one
/// that is an 8-bit image even when emboldened.
class SessionFixture : public SurfaceFixture {
protected:
    void SetUp() override;

    /// The pixels of what a step draws on.
    Image Look(Drawing drawing);

    TestWindow otherWindow{windowWidth / 2, windowHeight / 2};
    Client client = {};
};

#endif
