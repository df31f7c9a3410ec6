// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
#include "support/Harness.h"

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <utility>

namespace harness {

std::ostream& operator<<(std::ostream& out, const LogLine& line) {
    return out << '[' << line.priority << ' ' << line.tag << "] " << line.text;
}

State& Current() {
    static State state;
    return state;
}

void Reset() {
    State fresh;
    fresh.live = std::move(Current().live);
    Current() = std::move(fresh);
    RefuseAllocation(0);
}

void FailCall(const std::string& name, int nth) {
    Current().faults[name].insert(static_cast<size_t>(Current().callCounts[name] + nth));
}

int CountOf(const std::string& name) {
    return Current().callCounts[name];
}

std::vector<LogLine> TakeLog() {
    return std::exchange(Current().log, {});
}

std::string DescribeLive() {
    std::string text;
    for (const auto& [kind, objects] : Current().live) {
        if (!objects.empty()) {
            text += (text.empty() ? "" : ", ") + kind + ' ' + std::to_string(objects.size());
        }
    }
    return text;
}

std::vector<std::string> Record(const std::function<void()>& action) {
    Current().calls.clear();
    Current().isRecording = true;
    action();
    Current().isRecording = false;
    return std::exchange(Current().calls, {});
}

bool CountCall(const char* name) {
    State& state = Current();
    const size_t count = static_cast<size_t>(++state.callCounts[name]);
    const auto faults = state.faults.find(name);
    return faults != state.faults.end() && faults->second.count(count) != 0;
}

void AddLive(const char* kind, size_t object) {
    if (object != 0) {
        Current().live[kind].insert(object);
    }
}

void RemoveLive(const char* kind, size_t object) {
    Current().live[kind].extract(object);
}

void* NextSymbol(const char* name) {
    void* symbol = dlsym(RTLD_NEXT, name);
    if (symbol == nullptr) {
        fprintf(stderr, "no other definition of %s\n", name);
        abort();
    }
    return symbol;
}

} // namespace harness

// Drivers stay loaded, so that the leak checker can name the driver of a leak.
extern "C" int dlclose(void*) {
    return 0;
}
