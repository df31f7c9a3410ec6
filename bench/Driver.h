// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The differences between the programs: the window, and whether GL has a driver.
#ifndef ZOGLES_BENCH_DRIVER_H
#define ZOGLES_BENCH_DRIVER_H

#include "zogles/ZoGLDrawSurface.h"

constexpr int windowWidth = 1280;
constexpr int windowHeight = 720;
constexpr tagZoRectInfo wholeWindow = {0, 0, windowWidth, windowHeight};

/// False if GL's functions are empty. Then several surfaces can be bound at once.
extern const bool hasDriver;

/// Opens a window of the size above.
ANativeWindow* OpenWindow();

/// Makes FreeType enumerate only the first characters of each font; 0 means all.
void LimitFont(unsigned int characters);

#endif
