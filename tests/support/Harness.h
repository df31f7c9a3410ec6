/// @file
/// What the tests see of, and do to, the calls that the library makes.
///
/// The test programs define EGL's, GL's, FreeType's, the log's and memset_s's symbols themselves
/// (Interpose*.cpp), note each call, and pass it on to the real function unless a fault is set.
/// Calls that a driver or FreeType makes of its own are passed on unseen.
#ifndef ZOGLES_TESTS_SUPPORT_HARNESS_H
#define ZOGLES_TESTS_SUPPORT_HARNESS_H

#include "surface/Records.h"

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

/// One argument as calls are written: numbers as they are, pointers as "null" or "data".
template <typename Value>
void WriteArgument(std::ostream& out, Value value) {
    if constexpr (std::is_same_v<Value, const char*>) {
        out << (value == nullptr ? "null" : value);
    } else if constexpr (std::is_pointer_v<Value>) {
        out << (value == nullptr ? "null" : "data");
    } else {
        out << +value;
    }
}

/// A call as it is noted: "glViewport(0, 0, 64, 48)".
template <typename... Args>
std::string Call(const char* name, Args... args) {
    std::ostringstream out;
    out << name << '(';
    [[maybe_unused]] const char* separator = "";
    ((out << separator, WriteArgument(out, args), separator = ", "), ...);
    out << ')';
    return out.str();
}

/// What the interposed functions note and how they are told to behave.
struct State {
    std::vector<LogLine> log;

    bool isRecording = false;
    std::vector<std::string> calls;
    std::vector<std::string> shaderStrings;         ///< of glShaderSource
    std::vector<unsigned char> bufferData;          ///< of the last glBufferData
    std::map<std::string, int> callCounts;          ///< of every function, also when not recording
    std::map<std::string, std::set<size_t>> faults; ///< which calls fail, by count

    std::map<std::string, std::multiset<size_t>> live; ///< names or handles by kind

    std::optional<int> framebufferStatus; ///< for glCheckFramebufferStatus
    std::optional<int> maxTextureSize;    ///< for glGetIntegerv
    std::optional<int> infoLogLength;     ///< for glGetShaderiv and glGetProgramiv
    std::string fontFile;                 ///< for FT_New_Face, unless empty

    std::function<int(const std::string&)> locate; ///< for glGet{Attrib,Uniform}Location
    std::function<FT_Error(FT_Face, FT_ULong, FT_Int32)> loadChar;
    std::function<FT_ULong(FT_Face, FT_UInt*)> firstChar;
    std::function<FT_ULong(FT_Face, FT_ULong, FT_UInt*)> nextChar;
};
State& Current();

/// Forgets everything noted and every fault, but not the live objects.
void Reset();

/// Makes a call of `name` fail: the `nth` from now on, 1 being the next.
void FailCall(const std::string& name, int nth = 1);

/// How often `name` was called since the last `Reset`.
int CountOf(const std::string& name);

/// The lines logged since the last call, which forgets them.
std::vector<LogLine> TakeLog();

/// What is alive, as text: "texture 3, buffer 1"; empty when nothing is.
std::string DescribeLive();

/// Runs `action` and returns the GL, EGL and FreeType calls it made.
std::vector<std::string> Record(const std::function<void()>& action);

/// Runs `action` and returns how many heap allocations the library itself made.
int CountAllocations(const std::function<void()>& action);

/// Refuses the library's `nth` allocation, 1 being the next; 0 refuses none.
void RefuseAllocation(int nth);

/// While one lives, the thread is inside the harness or a driver: nothing is noted or counted.
class Outside {
public:
    Outside();
    ~Outside();
    Outside(const Outside&) = delete;
    Outside& operator=(const Outside&) = delete;

    /// Whether the thread was outside already, so that a driver or FreeType is calling.
    bool IsNested() const { return nested; }

private:
    bool nested;
};

/// Keeps a call while recording.
template <typename... Args>
void NoteCall(const char* name, Args... args) {
    if (Current().isRecording) {
        Current().calls.push_back(Call(name, args...));
    }
}

/// Counts a call and says whether it is to fail.
bool CountCall(const char* name);

/// Nothing is noted of object 0, which stands for none.
void AddLive(const char* kind, size_t object);
void RemoveLive(const char* kind, size_t object);

/// The next definition of a symbol after the test program's own.
void* NextSymbol(const char* name);

} // namespace harness

#endif
