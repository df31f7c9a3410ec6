#include "Cost.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

double ReadClock(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

} // namespace

Cost MeasureFrames(int frames, const std::function<void()>& drawFrame) {
    std::vector<double> times;
    times.reserve(static_cast<size_t>(frames));
    const double processStart = ReadClock(CLOCK_PROCESS_CPUTIME_ID);
    const double threadStart = ReadClock(CLOCK_THREAD_CPUTIME_ID);
    double last = ReadClock(CLOCK_MONOTONIC);
    for (int i = 0; i < frames; ++i) {
        drawFrame();
        const double now = ReadClock(CLOCK_MONOTONIC);
        times.push_back(now - last);
        last = now;
    }
    const double process = ReadClock(CLOCK_PROCESS_CPUTIME_ID) - processStart;
    const double thread = ReadClock(CLOCK_THREAD_CPUTIME_ID) - threadStart;
    std::sort(times.begin(), times.end());
    return {frames, times[times.size() / 2], times[(times.size() - 1) * 99 / 100], process / frames,
            thread / frames};
}

void PrintCost(const Cost& cost) {
    printf(
        "cost of a frame (%d frames, each composed, presented and refreshed; the time holds any\n"
        "wait for the display, the processor time does not):\n",
        cost.frames);
    printf("  time, median             %8.2f ms (%.0f frames a second)\n", cost.medianMilliseconds,
           1000 / cost.medianMilliseconds);
    printf("  time, 99 of 100 within   %8.2f ms\n", cost.slowestMilliseconds);
    printf("  processor time, mean     %8.2f ms, all threads with the driver's\n",
           cost.processorMilliseconds);
    printf("    of it drawing thread   %8.2f ms\n", cost.threadMilliseconds);
}
