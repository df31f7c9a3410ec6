// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// The benchmark cases.
#ifndef ZOGLES_BENCH_CASES_H
#define ZOGLES_BENCH_CASES_H

#include "Stage.h"

#include <functional>
#include <memory>
#include <regex>
#include <string>
#include <vector>

/// One way of doing the work: "library", "baseline", or "freetype" for FreeType's calls alone.
struct Side {
    std::string name;
    std::function<void(int)> run; ///< repeats the work this many times
    bool isWarm = false;
};

/// The same work done in several ways.
struct Case {
    std::string name;
    int batch;       ///< repetitions between two readings of the clock
    bool isOnWindow; ///< draws on the window instead of the first buffer
    std::vector<Side> sides;
};

using Stages = std::vector<std::unique_ptr<Stage>>;

/// The cases on one stage; the stage must outlive them.
/// @param characters how many characters of its font are loaded; 0 means all
std::vector<Case> BasicCases(Stage& stage, unsigned int characters);

/// Cases that vary the length of the text, the characters of the font, or the number of buffers.
/// Cases of the last two kinds have their own stages, created only if wanted and kept in `more`.
/// These stages are bound at the same time, so they need a program without a driver.
std::vector<Case> GrowthCases(Stage& stage, const std::regex& wanted, Stages* more);

/// Does the work once, so that the first measurement creates nothing.
void WarmUp(Side& side);

#endif
