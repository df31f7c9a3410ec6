// SPDX-FileCopyrightText: 2026 the authors of libzogles
// SPDX-License-Identifier: Apache-2.0
/// @file
/// Records the library's calls, and makes chosen ones fail.
///
/// The test programs define the symbols of EGL, GL, FreeType, the log and memset_s (Interpose*.cpp).
/// These functions record each call and pass it on to the real function, unless a fault is set.
/// Calls by a driver or by FreeType are passed on without a record.
#ifndef ZOGLES_TESTS_SUPPORT_HARNESS_H
#define ZOGLES_TESTS_SUPPORT_HARNESS_H

#include "surface/Records.h"

#include <EGL/egl.h>
#include <array>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <ft2build.h>
#include FT_FREETYPE_H

namespace harness {

/// A line that the library logged.
struct LogLine {
    int priority;
    std::string tag;
    std::string text;

    bool operator==(const LogLine& other) const {
        return priority == other.priority && tag == other.tag && text == other.text;
    }
};
std::ostream& operator<<(std::ostream& out, const LogLine& line);

/// Writes an argument of a recorded call: a number, "null", "data" or a list of EGL's attributes.
template <typename Value>
void WriteArgument(std::ostream& out, Value value) {
    if constexpr (!std::is_pointer_v<Value>) {
        out << +value;
    } else if (value == nullptr) {
        out << "null";
    } else if constexpr (std::is_same_v<Value, const char*>) {
        out << value;
    } else if constexpr (std::is_same_v<Value, const EGLint*>) {
        for (; *value != EGL_NONE; ++value) {
            out << *value << ' ';
        }
    } else {
        out << "data";
    }
}

/// A recorded call: "glViewport(0, 0, 64, 48)".
template <typename... Args>
std::string Call(const char* name, Args... args) {
    std::ostringstream out;
    out << name << '(';
    [[maybe_unused]] const char* separator = "";
    ((out << separator, WriteArgument(out, args), separator = ", "), ...);
    out << ')';
    return out.str();
}

using Vertex = std::array<float, 4>;

/// What the interposed functions record, and how they behave.
struct State {
    std::vector<LogLine> log;

    bool isRecording = false;
    std::vector<std::string> calls;
    std::vector<Vertex> vertices;                   ///< of the last glBufferData
    std::map<std::string, int> callCounts;          ///< of every function, also when not recording
    std::map<std::string, std::set<size_t>> faults; ///< which calls fail, by count

    std::map<std::string, std::multiset<size_t>> live; ///< names or handles by kind

    std::optional<int> framebufferStatus; ///< for glCheckFramebufferStatus
    std::optional<int> maxTextureSize;    ///< for glGetIntegerv
    std::string fontFile;                 ///< for FT_New_Face, unless empty

    std::function<FT_Error(FT_Face, FT_ULong, FT_Int32)> loadChar = FT_Load_Char;
    std::function<FT_ULong(FT_Face, FT_UInt*)> firstChar = FT_Get_First_Char;
    std::function<FT_ULong(FT_Face, FT_ULong, FT_UInt*)> nextChar = FT_Get_Next_Char;
};
State& Current();

/// Drops all records and faults, except the live objects.
void Reset();

/// Makes a call of `name` fail: the `nth` from now on, 1 being the next.
void FailCall(const std::string& name, int nth = 1);

/// How often `name` was called since the last `Reset`.
int CountOf(const std::string& name);

/// Removes and returns the lines logged so far.
std::vector<LogLine> TakeLog();

/// The live objects: "texture 3, buffer 1".
std::string DescribeLive();

/// Runs `action` and returns its GL, EGL and FreeType calls.
std::vector<std::string> Record(const std::function<void()>& action);

/// Runs `action` and counts the library's heap allocations.
int CountAllocations(const std::function<void()>& action);

/// Refuses the library's `nth` allocation, 1 being the next; 0 refuses none.
void RefuseAllocation(int nth);

/// Marks the thread as inside the harness or a driver: its calls are neither recorded nor counted.
class Outside {
public:
    Outside();
    ~Outside();
    Outside(const Outside&) = delete;
    Outside& operator=(const Outside&) = delete;

    /// Whether the thread was marked already: a driver or FreeType is calling.
    bool IsNested() const { return nested; }

private:
    bool nested;
};

/// Records a call, if recording is on.
template <typename... Args>
void NoteCall(const char* name, Args... args) {
    if (Current().isRecording) {
        Current().calls.push_back(Call(name, args...));
    }
}

/// Counts a call. True if it must fail.
bool CountCall(const char* name);

/// Ignores object 0, which means none.
void AddLive(const char* kind, size_t object);
void RemoveLive(const char* kind, size_t object);
inline void AddLive(const char* kind, const void* object) {
    AddLive(kind, reinterpret_cast<size_t>(object));
}
inline void RemoveLive(const char* kind, const void* object) {
    RemoveLive(kind, reinterpret_cast<size_t>(object));
}

/// The definition of a symbol behind the test program's.
void* NextSymbol(const char* name);

} // namespace harness

#endif
