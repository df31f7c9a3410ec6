/// @file
/// Samples, the line that tells how the run goes, and the verdict.
#ifndef ZOGLES_SOAK_REPORT_H
#define ZOGLES_SOAK_REPORT_H

#include "Losses.h"
#include "Sampler.h"
#include "Workload.h"

#include <fstream>
#include <string>
#include <vector>

enum class Stage { Bound, Losing };

/// Taken when the client has settled, so that all but time and counts should always be the same.
struct Sample {
    Stage stage;
    double seconds;
    Counts counts;
    long resident;
    Memory held;
    double heap;
    int descriptors;
    int glObjects;
};

class Report {
public:
    /// @param folder where samples.tsv is written
    explicit Report(const std::string& folder);

    /// Writes the sample down, and the line: over the last one on a terminal, seldom elsewhere.
    void Add(const Sample& sample);

    /// Prints what grew in a stage.
    /// @return whether nothing did
    bool Judge(Stage stage) const;

private:
    void PrintLine(const Sample& sample);

    std::ofstream file;
    std::vector<Sample> samples;
    bool isTerminal;
    double nextLine;
};

/// Prints what a loss costs by the library and by hand.
/// @return whether the library keeps nothing that plain EGL does not keep as well
bool JudgeLosses(const LossCosts& costs);

#endif
