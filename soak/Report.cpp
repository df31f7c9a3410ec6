#include "Report.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <unistd.h>

namespace {

// The driver fills its caches first: that much of a stage is not judged.
constexpr double warmUpShare = 0.1;
// Growth counts from here on, in KiB: less is a page here and there.
constexpr double allowance = 128;
// A median's standard error is that of a mean times this much.
constexpr double medianFactor = 1.2533;

using Values = std::vector<double>;

double Median(Values values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double Variance(const Values& values) {
    double sum = 0;
    double squares = 0;
    for (const double value : values) {
        sum += value;
        squares += value * value;
    }
    const double count = static_cast<double>(values.size());
    return std::max(0.0, squares / count - sum / count * (sum / count));
}

const char* Word(bool isFlat) {
    return isFlat ? "flat" : "GROWS";
}

// Compares the medians of the first and the last third. What chance alone does to them is told by
// how far the values lie apart, and is not taken for growth.
bool JudgeMemory(const char* name, const Values& values) {
    const std::ptrdiff_t third = static_cast<std::ptrdiff_t>(values.size() / 3);
    const Values first(values.begin(), values.begin() + third);
    const Values last(values.end() - third, values.end());
    const double growth = Median(last) - Median(first);
    const double error =
        medianFactor * std::sqrt((Variance(first) + Variance(last)) / static_cast<double>(third));
    const double limit = allowance + 3 * error;
    const bool isFlat = growth <= limit;
    printf("  %-14s %8.0f KiB -> %8.0f KiB   growth %+7.0f KiB, limit %6.0f KiB   %s\n", name,
           Median(first), Median(last), growth, limit, Word(isFlat));
    return isFlat;
}

bool JudgeCount(const char* name, const Values& values) {
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    const bool isFlat = *least == *most;
    printf("  %-14s %8.0f     -> %8.0f       must always be equal%17s%s\n", name, *least, *most, "",
           Word(isFlat));
    return isFlat;
}

} // namespace

Report::Report(const std::string& folder)
    : file(folder + "/samples.tsv"), isTerminal(isatty(STDOUT_FILENO) == 1), nextLine(0) {
    if (!file) {
        throw std::runtime_error("cannot write " + folder + "/samples.tsv");
    }
    samples.reserve(size_t{1} << 16); // its own growth is not to be taken for the library's
    file << "stage\tseconds\tframes\tlosses\ttexts\tfonts\tresident_kib\theld_kib\theap_kib\t"
            "address_space_kib\tdescriptors\tgl_objects\n";
}

void Report::Add(const Sample& sample) {
    samples.push_back(sample);
    const Counts& counts = sample.counts;
    file << static_cast<int>(sample.stage) << '\t' << sample.seconds << '\t' << counts.frames
         << '\t' << counts.losses << '\t' << counts.texts << '\t' << counts.fonts << '\t'
         << sample.resident << '\t' << sample.held.anonymous << '\t' << sample.heap << '\t'
         << sample.held.addressSpace << '\t' << sample.descriptors << '\t' << sample.glObjects
         << std::endl; // flushed, so that a run that is cut off leaves its samples
    constexpr double plainInterval = 10;
    if (isTerminal || sample.seconds >= nextLine) {
        nextLine = sample.seconds + plainInterval;
        PrintLine(sample);
    }
}

void Report::PrintLine(const Sample& sample) {
    const Counts& counts = sample.counts;
    const int seconds = static_cast<int>(sample.seconds);
    printf("%s%3d:%02d  frames %ld  losses %ld  texts %ld  fonts %ld  RSS %ld MiB  held %ld KiB  "
           "heap %.0f KiB  fds %d  GL objects %d%s",
           isTerminal ? "\r" : "", seconds / 60, seconds % 60, counts.frames, counts.losses,
           counts.texts, counts.fonts, sample.resident / 1024, sample.held.anonymous, sample.heap,
           sample.descriptors, sample.glObjects, isTerminal ? "\033[K" : "\n");
    fflush(stdout);
}

bool Report::Judge(Stage stage) const {
    std::vector<Sample> judged;
    std::copy_if(samples.begin(), samples.end(), std::back_inserter(judged),
                 [stage](const Sample& sample) { return sample.stage == stage; });
    // One more than the share: the very first sample finds the driver empty.
    const size_t warmUp = 1 + static_cast<size_t>(warmUpShare * static_cast<double>(judged.size()));
    constexpr size_t fewest = 6;
    if (judged.size() < warmUp + fewest) {
        printf("\n%zu samples are too few to judge\n", judged.size());
        return false;
    }
    judged.erase(judged.begin(), judged.begin() + static_cast<std::ptrdiff_t>(warmUp));
    const auto all = [&judged](auto value) {
        Values values;
        std::transform(judged.begin(), judged.end(), std::back_inserter(values), value);
        return values;
    };
    printf("\n%s\n", stage == Stage::Bound ? "Bound all the time" : "Losing its window");
    bool isFlat = JudgeMemory("memory held", all([](const Sample& sample) {
                                  return static_cast<double>(sample.held.anonymous);
                              }));
    isFlat &= JudgeMemory("heap in use", all([](const Sample& sample) { return sample.heap; }));
    isFlat &= JudgeCount("descriptors", all([](const Sample& sample) {
                             return static_cast<double>(sample.descriptors);
                         }));
    isFlat &=
        JudgeCount("GL objects",
                   all([](const Sample& sample) { return static_cast<double>(sample.glObjects); }));
    return isFlat;
}

bool JudgeLosses(const LossCosts& costs) {
    printf("\nKept for good by each of %d losses of the window, in KiB\n", costs.losses);
    printf("  %-39s %9s %9s %14s\n", "", "memory", "heap", "address space");
    const auto print = [](const char* name, const LossCost& cost) {
        printf("  %-39s %9.2f %9.2f %14.1f\n", name, cost.anonymous, cost.heap, cost.addressSpace);
    };
    print("library, driver stays loaded", costs.libraryKeepingDriver);
    print("by hand, driver stays loaded", costs.byHandKeepingDriver);
    print("library, driver unloaded and loaded", costs.library);
    print("by hand, driver unloaded and loaded", costs.byHand);
    constexpr double lossesPerMonth = 60.0 * 24 * 30;
    printf("  At a loss a minute, a month is %.0f MiB with the driver staying, %.0f MiB without\n",
           lossesPerMonth * std::max(0.0, costs.libraryKeepingDriver.anonymous) / 1024,
           lossesPerMonth * std::max(0.0, costs.library.anonymous) / 1024);
    constexpr double tolerance = 1; // a quarter of a page
    const bool isFlat =
        costs.libraryKeepingDriver.anonymous <= costs.byHandKeepingDriver.anonymous + tolerance;
    printf("  %-39s %s\n", "the library's own share", Word(isFlat));
    return isFlat;
}
