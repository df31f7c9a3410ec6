// What each operation costs in GL calls, uploads and allocations, and whether floor and library
// really make the same calls with the same data. Nothing is drawn.
//   zogles_bench_calls            prints the costs, set apart by tabs
//   zogles_bench_calls CASE       prints the calls of one case, such as rect/library

#include "CallRecorder.h"
#include "Cases.h"

#include <cstdio>
#include <cstdlib>

namespace {

// What is left without the questions about the driver's limits: the floor asks fewer of them, and
// they change nothing that is drawn.
std::vector<std::string> Effects(const Cost& cost) {
    std::vector<std::string> calls;
    for (const std::string& call : cost.calls) {
        if (call.rfind("glGet", 0) != 0) {
            calls.push_back(call);
        }
    }
    return calls;
}

void PrintDifference(const std::string& name, const std::vector<std::string>& library,
                     const std::vector<std::string>& floor) {
    size_t i = 0;
    while (i < library.size() && i < floor.size() && library[i] == floor[i]) {
        ++i;
    }
    const auto call = [i](const std::vector<std::string>& calls) {
        return i < calls.size() ? calls[i].c_str() : "(none)";
    };
    fprintf(stderr, "%s: library and floor differ from call %zu on: %s against %s\n", name.c_str(),
            i + 1, call(library), call(floor));
}

} // namespace

int main(int argc, char** argv) {
    setenv("ANDROID_LOG_TAGS", "*:S", 1);
    if (FontPath().empty()) {
        fprintf(stderr, "no font: see ZOGLES_BENCH_FONT in bench/Stage.cpp\n");
        return 1;
    }
    const std::string wanted = argc > 1 ? argv[1] : "";
    Stage stage(FontPath(), 0, 2);
    bool isSame = true;
    for (Case& work : BasicCases(stage)) {
        std::vector<Cost> costs;
        for (Side& side : work.sides) {
            WarmUp(side);
            costs.push_back(MeasureCost([&side] { side.run(1); }));
            const std::string name = work.name + '/' + side.name;
            if (wanted.empty()) {
                printf("%s\t%zu\t%zu\t%zu\t%zu\n", name.c_str(), costs.back().calls.size(),
                       costs.back().uploadedBytes, costs.back().allocations,
                       costs.back().allocatedBytes);
            } else if (name == wanted) {
                for (const std::string& call : costs.back().calls) {
                    printf("%s\n", call.c_str());
                }
            }
        }
        if (costs.size() > 1 && Effects(costs[0]) != Effects(costs[1])) {
            PrintDifference(work.name, Effects(costs[0]), Effects(costs[1]));
            isSame = false;
        }
    }
    return isSame ? 0 : 1;
}
