/// @file
/// What the contestants share besides the frame: the window, the timing and the picture.
#ifndef ZOGLES_BENCH_PEERS_SUPPORT_H
#define ZOGLES_BENCH_PEERS_SUPPORT_H

#include <functional>

/// Ends the program with a message unless `isFine`.
void Require(bool isFine, const char* what);

/// Opens an X11 window of the frame's size and returns its id.
unsigned long OpenWindow();

/// Makes an OpenGL ES 2.0 context current on such a window, as a user of plain EGL would.
void OpenContext();
void SwapContext();

/// Makes an RGBA texture in the current context, without defined content, and leaves it bound.
unsigned int MakeTexture(int width, int height);

/// The libraries wait for the display by default where a driver can; the benchmark must not.
void TurnOffVsync();

struct Contestant {
    std::function<void()> draw;          ///< a whole frame up to the swap
    std::function<void()> flush = [] {}; ///< hands draw calls that the library holds back to GL
    std::function<void()> swap;
};

/// Reads NAME ROUND FRAMES [PICTURE] from the command line, draws the frames, prints one JSON line
/// with the times per frame, and writes the picture of a frame.
void RunContestant(int argc, char** argv, const Contestant& contestant);

#endif
