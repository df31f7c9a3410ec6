/// @file
/// What one loss of the window costs for good: context and display torn down, and made again.
#ifndef ZOGLES_SOAK_LOSSES_H
#define ZOGLES_SOAK_LOSSES_H

/// KiB for each loss that are never given back.
struct LossCost {
    double anonymous;
    double heap;
    double addressSpace;
};

struct LossCosts {
    int losses; ///< how many were measured for each
    LossCost library;
    LossCost libraryKeepingDriver; ///< something else keeps the driver loaded meanwhile
    LossCost byHand;               ///< plain EGL and GL without the library
    LossCost byHandKeepingDriver;
};

/// Measures each in a process of its own. Must come before anything opens a display.
LossCosts MeasureLosses(int losses);

#endif
