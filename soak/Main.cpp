// Uses the library without end and watches what the process holds.

#include "Report.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr unsigned int seed = 20240229;
constexpr int stepsBetweenRests = 50;
constexpr double sampleInterval = 1;

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

std::string WriteDamagedFont(const std::string& folder) {
    const std::string path = folder + "/damaged.ttf";
    std::ofstream(path) << std::string("\0\1\0\0\0\x13", 6) << std::string(1000, '?');
    return path;
}

Sample TakeSample(Stage stage, double seconds, const Counts& counts) {
    const long resident = ReadMemory().resident;
    const Memory held = ReadHeldMemory();
    return {stage,           seconds, counts, resident, held, HeapInUse(), CountDescriptors(),
            CountGlObjects()};
}

// Half of the time bound, where only what piles up within one context can grow; then with losses.
// Keeps the driver loaded: unloading it leaks (see docs/reliability.md), which would hide a leak of
// the library.
bool Soak(double seconds, const std::string& folder) {
    Report report(folder);
    Windows windows;
    windows.KeepDriver();
    Workload workload(windows, seed, WriteDamagedFont(folder));
    const Clock::time_point start = Clock::now();
    double next = 0;
    for (double now = 0; now < seconds; now = SecondsSince(start)) {
        const Stage stage = now < seconds / 2 ? Stage::Bound : Stage::Losing;
        workload.SetLosing(stage == Stage::Losing);
        for (int i = 0; i < stepsBetweenRests; ++i) {
            workload.Step();
        }
        workload.Settle();
        now = SecondsSince(start);
        if (now >= next) {
            report.Add(TakeSample(stage, now, workload.GetCounts()));
            next = now + sampleInterval;
        }
    }
    const Counts& counts = workload.GetCounts();
    printf(
        "\n\n%ld frames, %ld texts, %ld fonts, %ld buffers, %ld losses and %ld rebindings of the "
        "window,\n%ld erroneous calls, %ld pixels checked: all as expected\n",
        counts.frames, counts.texts, counts.fonts, counts.buffers, counts.losses, counts.rebindings,
        counts.refusals, counts.pixels);
    const bool isFlatBound = report.Judge(Stage::Bound);
    return report.Judge(Stage::Losing) && isFlatBound;
}

} // namespace

int main(int argc, char* argv[]) {
    const double minutes = argc == 3 || argc == 4 ? atof(argv[1]) : 0;
    const int losses = argc == 4 ? atoi(argv[3]) : 0;
    if (minutes <= 0) {
        fprintf(stderr, "usage: zogles_soak MINUTES FOLDER [LOSSES]\n");
        return 2;
    }
    setenv("ANDROID_LOG_TAGS", "*:S", 0);
    try {
        const LossCosts costs = losses > 0 ? MeasureLosses(losses) : LossCosts();
        bool isFlat = Soak(minutes * 60, argv[2]);
        if (losses > 0) {
            isFlat = JudgeLosses(costs) && isFlat;
        }
        printf("\nVERDICT: %s\n", isFlat ? "nothing grows" : "FAILED, something grows");
        return isFlat ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& failure) {
        printf("\n\nVERDICT: FAILED, %s\n", failure.what());
        return EXIT_FAILURE;
    }
}
