// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The frame, drawn with libzogles.

#include "LibraryFrame.h"
#include "Support.h"

int main(int argc, char** argv) {
    ZoGLDrawSurface surface;
    Require(surface.ZoCreateGLWindowSurface(OpenWindow()) == ZO_SUCCESS, "binding the window");
    TurnOffVsync(); // the library does not set the interval, and its context is current here
    Require(surface.ZoLoadFont(frameFontPath, fontSize) == ZO_SUCCESS, frameFontPath);
    unsigned int composed = ZO_NO_HANDLE;
    unsigned int source = ZO_NO_HANDLE;
    surface.ZoCreateGLFBO(&composed, windowWidth, windowHeight, ZO_FORMAT_RGBA8888);
    surface.ZoCreateGLFBO(&source, sourceWidth, sourceHeight, ZO_FORMAT_RGBA8888);
    const Frame frame;
    LibraryFrame::Fill(surface, source, frame.sourceTiles);
    const LibraryFrame drawn(frame, composed, source);

    Contestant contestant;
    contestant.draw = [&] { drawn.Draw(surface); };
    contestant.swap = [&surface] { surface.ZoRefreshOnSrceen(); };
    RunContestant(argc, argv, contestant);
}
