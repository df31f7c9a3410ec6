/// @file
/// What is measured: each case with its contestants.
#ifndef ZOGLES_BENCH_CASES_H
#define ZOGLES_BENCH_CASES_H

#include "Stage.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// One contestant of a case: "library", "floor", or "freetype" for FreeType's calls alone.
struct Side {
    std::string name;
    std::function<void(int)> run; ///< does the work so many times
    bool isWarm = false;
};

/// The same work by different hands.
struct Case {
    std::string name;
    int batch;       ///< how often the work is done between two looks at the clock
    bool isOnWindow; ///< whether it draws on the window, else on the first buffer
    std::vector<Side> sides;
};

/// The cases on one stage; the stage must outlive them.
std::vector<Case> BasicCases(Stage& stage);

/// Cost against the length of the text, on one stage.
std::vector<Case> TextGrowthCases(Stage& stage);

/// Cost against the number of characters and buffers. Each has surfaces of its own, which are bound
/// at its first run and at the same time, so these need a program without a driver.
std::vector<Case> SurfaceGrowthCases();

/// Does the work once where it has not been done before, so that nothing is made on first use.
void WarmUp(Side& side);

#endif
