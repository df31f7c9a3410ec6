// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Code that the contestants share: timing and pictures.
#ifndef ZOGLES_BENCH_PEERS_SUPPORT_H
#define ZOGLES_BENCH_PEERS_SUPPORT_H

#include "Frame.h"

#include <functional>

/// Ends the program with a message unless `isFine`.
void Require(bool isFine, const char* what);

/// Sets the swap interval to 0: the benchmark must not wait for the display.
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
