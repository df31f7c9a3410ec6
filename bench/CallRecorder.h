/// @file
/// Which GL calls an operation makes, so that two ways of drawing the same can be compared.
#ifndef ZOGLES_BENCH_CALLRECORDER_H
#define ZOGLES_BENCH_CALLRECORDER_H

#include <GLES2/gl2.h>
#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

/// One argument of a call, as text, which whatever is passed turns into.
struct Argument {
    template <typename Number>
    // cppcheck-suppress noExplicitConstructor
    Argument(Number number) : text(std::to_string(number)) {}
    // cppcheck-suppress noExplicitConstructor
    Argument(std::string written) : text(std::move(written)) {}

    std::string text;
};

/// What an operation cost.
struct Cost {
    std::vector<std::string> calls;
    size_t uploadedBytes = 0;
    size_t allocations = 0;
    size_t allocatedBytes = 0;
};

/// Runs the operation twice: once to note its GL calls and uploads, once to count what it allocates
/// on the heap.
Cost MeasureCost(const std::function<void()>& operation);

void NoteCall(const char* name, std::initializer_list<Argument> arguments);

/// A GL object: numbered by first appearance, since the names themselves mean nothing.
std::string Object(GLuint name);

/// Data read by GL, as a digest.
std::string Content(const void* data, GLsizeiptr size);

/// Data that is uploaded: counted, too. Null data is not.
std::string Upload(const void* data, GLsizeiptr size);

#endif
