// Measures what frames cost.
#ifndef OSD_COST_H
#define OSD_COST_H

#include <functional>

struct Cost {
    int frames;
    double medianMilliseconds;    ///< from one frame's start to the next one's
    double slowestMilliseconds;   ///< of 100 frames, 99 are not slower
    double processorMilliseconds; ///< a frame's processor time, of all the process's threads
    double threadMilliseconds;    ///< the part of it spent on the drawing thread
};

Cost MeasureFrames(int frames, const std::function<void()>& drawFrame);

void PrintCost(const Cost& cost);

#endif
