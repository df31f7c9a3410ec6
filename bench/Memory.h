/// @file
/// What stays behind in memory over a long run.
#ifndef ZOGLES_BENCH_MEMORY_H
#define ZOGLES_BENCH_MEMORY_H

/// Prints one line for each of three long runs: its name, how often, and before and after it the
/// resident memory in KiB and the heap in use in bytes, set apart by tabs. The runs are frames of
/// the library, losses of the window with everything made anew, and the same losses written by
/// hand: what a driver keeps to itself shows in both.
void PrintMemory(int frames, int losses);

#endif
