/// @file
/// What the contestants share besides the frame: timing and picture.
#ifndef ZOGLES_BENCH_PEERS_SUPPORT_H
#define ZOGLES_BENCH_PEERS_SUPPORT_H

#include "Frame.h"

#include <functional>

/// Ends the program with a message unless `isFine`.
void Require(bool isFine, const char* what);

/// By default, swapping waits for the display if the driver can; the benchmark must not wait.
void TurnOffVsync();

struct Contestant {
    std::function<void()> draw;          ///< a whole frame up to the swap
    std::function<void()> flush = [] {}; ///< passes draw calls that the library holds back to GL
    std::function<void()> swap;
};

/// Reads NAME ROUND FRAMES [PICTURE] from the command line, draws the frames, prints one JSON line
/// with the times per frame, and writes the picture of a frame.
void RunContestant(int argc, char** argv, const Contestant& contestant);

#endif
