// The benchmarks, on a real driver or on none.
//   zogles_bench [options of Google Benchmark]
//   zogles_bench --check                    whether floor and library draw the same pixels
//   zogles_bench --memory FRAMES LOSSES     what stays behind after so many of each
//   zogles_bench --repeat PATTERN COUNT     the cases that match, for callgrind: dumps the counts of
//                                           each under its name

#include "Cases.h"
#include "Memory.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <regex>
#include <valgrind/callgrind.h>

namespace {

void Measure(benchmark::State& state, Side& side, int batch) {
    WarmUp(side);
    glFinish();
    while (state.KeepRunningBatch(batch)) {
        side.run(batch);
        glFinish(); // the driver's part belongs to the cost as well
    }
    state.SetItemsProcessed(state.iterations());
}

void Register(std::vector<Case>& cases) {
    for (Case& work : cases) {
        for (Side& side : work.sides) {
            benchmark::RegisterBenchmark((work.name + '/' + side.name).c_str(), Measure,
                                         std::ref(side), work.batch)
                ->MeasureProcessCPUTime(); // the driver's threads included
        }
    }
}

std::vector<unsigned char> ReadWindow() {
    std::vector<unsigned char> pixels(size_t{windowWidth} * windowHeight * 4);
    glReadPixels(0, 0, windowWidth, windowHeight, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    return pixels;
}

int Check(Stage& stage, std::vector<Case>& cases) {
    int different = 0;
    for (Case& work : cases) {
        if (work.sides.size() < 2) {
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
        const bool isSame = shown[0] == shown[1];
        printf("%s: %s\n", work.name.c_str(), isSame ? "same pixels" : "DIFFERENT PIXELS");
        different += isSame ? 0 : 1;
    }
    return different == 0 ? 0 : 1;
}

void Repeat(std::vector<Case>& cases, const char* pattern, int wanted) {
    const std::regex wantedNames(pattern);
    for (Case& work : cases) {
        for (Side& side : work.sides) {
            const std::string name = work.name + '/' + side.name;
            if (!std::regex_search(name, wantedNames)) {
                continue;
            }
            const int count = work.batch > 1 ? wanted : 5; // what takes long is done less often
            const std::string label = name + ' ' + std::to_string(count);
            WarmUp(side);
            CALLGRIND_ZERO_STATS;
            side.run(count);
            CALLGRIND_DUMP_STATS_AT(label.c_str());
        }
    }
}

void Append(std::vector<Case>&& more, std::vector<Case>* cases) {
    for (Case& work : more) {
        cases->push_back(std::move(work));
    }
}

} // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): without memory there is nothing to measure
int main(int argc, char** argv) {
    // Before the first call, which reads it; a variable of the caller's stands.
    setenv("ANDROID_LOG_TAGS", "*:S", 0);
    benchmark::Initialize(&argc, argv);
    const std::string mode = argc > 1 ? argv[1] : "";
    if (mode == "--memory" && argc == 4) {
        PrintMemory(atoi(argv[2]), atoi(argv[3]));
        return 0;
    }
    if (FontPath().empty()) {
        fprintf(stderr, "no font: see ZOGLES_BENCH_FONT in bench/Stage.cpp\n");
        return 1;
    }
    const char* limit = getenv("ZOGLES_BENCH_FONT_CHARACTERS");
    Stage stage(FontPath(), limit == nullptr ? 0 : static_cast<unsigned int>(atoi(limit)), 2);
    std::vector<Case> cases = BasicCases(stage);
    if (mode == "--check") {
        return Check(stage, cases);
    }
    Append(TextGrowthCases(stage), &cases);
    if (!hasDriver) {
        Append(SurfaceGrowthCases(), &cases);
    }
    if (mode == "--repeat" && argc == 4) {
        Repeat(cases, argv[2], atoi(argv[3]));
        return 0;
    }
    Register(cases);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
