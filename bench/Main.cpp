// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
// The benchmarks, with or without a driver.
//   zogles_bench [options of Google Benchmark]
//   zogles_bench --check                    checks that baseline and library draw the same pixels
//   zogles_bench --repeat PATTERN COUNT     runs the matching cases under callgrind, which dumps the
//                                           counts of each under its name

#include "Cases.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <valgrind/callgrind.h>

namespace {

// Counts use only part of the font: loading a whole font takes minutes under valgrind.
constexpr unsigned int countedCharacters = 256;

void Measure(benchmark::State& state, Side& side, int batch) {
    WarmUp(side);
    glFinish();
    while (state.KeepRunningBatch(batch)) {
        side.run(batch);
        glFinish(); // includes work that the driver defers
    }
    state.SetItemsProcessed(state.iterations());
}

void Register(std::vector<Case>& cases) {
    for (Case& work : cases) {
        for (Side& side : work.sides) {
            benchmark::RegisterBenchmark((work.name + '/' + side.name).c_str(), Measure,
                                         std::ref(side), work.batch)
                ->MeasureProcessCPUTime(); // includes the driver's threads
        }
    }
}

std::vector<unsigned char> ReadWindow() {
    std::vector<unsigned char> pixels(size_t{windowWidth} * windowHeight * 4);
    glReadPixels(0, 0, windowWidth, windowHeight, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    return pixels;
}

int Check(Stage& stage, std::vector<Case>& cases) {
    bool areSame = true;
    for (Case& work : cases) {
        if (work.sides.back().name != "baseline") {
            continue;
        }
        std::vector<unsigned char> shown[2];
        for (size_t i = 0; i < 2; ++i) {
            stage.Reset();
            work.sides[i].run(1);
            if (!work.isOnWindow) {
                stage.Show(i == 0);
            }
            shown[i] = ReadWindow();
        }
        if (shown[0] != shown[1]) {
            printf("%s: library and baseline draw different pixels\n", work.name.c_str());
            areSame = false;
        }
    }
    return areSame ? 0 : 1;
}

void Repeat(std::vector<Case>& cases, const std::regex& wanted, int most) {
    for (Case& work : cases) {
        for (Side& side : work.sides) {
            const std::string name = work.name + '/' + side.name;
            if (!std::regex_search(name, wanted)) {
                continue;
            }
            const int count = work.batch > 1 ? most : 5; // slow cases are repeated less
            const std::string label = name + ' ' + std::to_string(count);
            WarmUp(side);
            CALLGRIND_ZERO_STATS;
            side.run(count);
            CALLGRIND_DUMP_STATS_AT(label.c_str());
        }
    }
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): without memory there is nothing to measure
int main(int argc, char** argv) {
    setenv("ANDROID_LOG_TAGS", "*:S", 0); // the first call reads it
    benchmark::Initialize(&argc, argv);
    const std::string mode = argc > 1 ? argv[1] : "";
    const bool isCounting = mode == "--repeat" && argc == 4;
    const std::regex wanted(isCounting ? argv[2] : benchmark::GetBenchmarkFilter());
    const unsigned int characters = isCounting ? countedCharacters : 0;
    Stages more;
    Stage stage(fontPath, characters, 2);
    std::vector<Case> cases = BasicCases(stage, characters);
    if (mode == "--check") {
        return Check(stage, cases);
    }
    for (Case& work : GrowthCases(stage, wanted, &more)) {
        cases.push_back(std::move(work));
    }
    if (isCounting) {
        Repeat(cases, wanted, atoi(argv[3]));
        return 0;
    }
    Register(cases);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
