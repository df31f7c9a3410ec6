#include "CallRecorder.h"

#include <cstdlib>
#include <map>
#include <string_view>

// The C library's own allocator, behind the names that are defined here.
// NOLINTBEGIN(bugprone-reserved-identifier): its names
extern "C" {
void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* memory, size_t size);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

// Interposed functions get no context, so this is global. Null while nothing is noted.
Cost* noted = nullptr;
Cost* counted = nullptr;

std::map<GLuint, size_t>& Numbers() {
    static std::map<GLuint, size_t> numbers;
    return numbers;
}

void CountAllocation(size_t size) {
    if (counted != nullptr) {
        ++counted->allocations;
        counted->allocatedBytes += size;
    }
}

} // namespace

extern "C" void* malloc(size_t size) noexcept {
    CountAllocation(size);
    return __libc_malloc(size);
}
extern "C" void* calloc(size_t count, size_t size) noexcept {
    CountAllocation(count * size);
    return __libc_calloc(count, size);
}
extern "C" void* realloc(void* memory, size_t size) noexcept {
    CountAllocation(size);
    return __libc_realloc(memory, size);
}

Cost MeasureCost(const std::function<void()>& operation) {
    Cost cost;
    Numbers().clear();
    noted = &cost;
    operation();
    noted = nullptr;
    counted = &cost;
    operation();
    counted = nullptr;
    return cost;
}

void NoteCall(const char* name, std::initializer_list<Argument> arguments) {
    if (noted == nullptr) {
        return;
    }
    std::string call = name;
    const char* separator = "(";
    for (const Argument& argument : arguments) {
        call += separator + argument.text;
        separator = ", ";
    }
    noted->calls.push_back(call + ")");
}

std::string Object(GLuint name) {
    if (name == 0 || noted == nullptr) {
        return "none";
    }
    // GCC 12 warns of "#" + std::to_string(...) in C++20: https://gcc.gnu.org/PR105651
    std::string number = "#";
    number += std::to_string(Numbers().emplace(name, Numbers().size()).first->second);
    return number;
}

std::string Content(const void* data, GLsizeiptr size) {
    if (data == nullptr || noted == nullptr) {
        return "null";
    }
    const std::string_view bytes(static_cast<const char*>(data), static_cast<size_t>(size));
    return std::to_string(std::hash<std::string_view>()(bytes));
}

std::string Upload(const void* data, GLsizeiptr size) {
    if (noted != nullptr && data != nullptr) {
        noted->uploadedBytes += static_cast<size_t>(size);
    }
    return Content(data, size);
}
