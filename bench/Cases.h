/// @file
/// What is measured: each case with its sides.
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
    std::function<void(int)> run; ///< does the work so many times
    bool isWarm = false;
};

/// The same work done in several ways.
struct Case {
    std::string name;
    int batch;       ///< how often the work is done between two readings of the clock
    bool isOnWindow; ///< whether it draws on the window, else on the first buffer
    std::vector<Side> sides;
};

using Stages = std::vector<std::unique_ptr<Stage>>;

/// The cases on one stage; the stage must outlive them.
/// @param characters how many characters of its font are loaded; 0 means all
std::vector<Case> BasicCases(Stage& stage, unsigned int characters);

/// Cost against the length of the text, the characters of the font and the number of buffers. Each
/// of the last two kinds has a stage, made only if the case is wanted and kept in `more`. Those
/// stages are bound at the same time, so they need a program without a driver.
std::vector<Case> GrowthCases(Stage& stage, const std::regex& wanted, Stages* more);

/// Does the work once before the first measurement, so that nothing is made on first use.
void WarmUp(Side& side);

#endif
