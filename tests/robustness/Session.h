// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// What a client does from binding a window to losing it, step by step, in two fixed sessions.
#ifndef ZOGLES_TESTS_ROBUSTNESS_SESSION_H
#define ZOGLES_TESTS_ROBUSTNESS_SESSION_H

#include "support/DocumentedCodes.h"
#include "support/RequestFixture.h"

class SessionFixture;

/// What a step draws on.
enum class Drawing { None, Left, Right, Window };

/// One operation of a session.
struct Step {
    const char* name;
    std::function<int(SessionFixture&)> run; ///< returns the operation's code
    Codes codes;                             ///< documented for the operation
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
class SessionFixture : public RequestFixture {
public:
    void SetUp() override;

    /// Runs a step with a fresh request.
    int Run(const Step& step);

    /// The pixels of what a step draws on.
    Image Look(Drawing drawing);

    TestWindow otherWindow{windowWidth / 2, windowHeight / 2};
    unsigned int left = ZO_NO_HANDLE;
    unsigned int right = ZO_NO_HANDLE;
};

#endif
