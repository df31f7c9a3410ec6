#include "Sampler.h"

#include <GLES2/gl2.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <string>

Memory ReadMemory() {
    std::ifstream status("/proc/self/status");
    Memory memory = {};
    std::string name;
    while (status >> name) {
        if (name == "VmRSS:") {
            status >> memory.resident;
        } else if (name == "RssAnon:") {
            status >> memory.anonymous;
        } else if (name == "VmSize:") {
            status >> memory.addressSpace;
        }
    }
    return memory;
}

Memory ReadHeldMemory() {
    malloc_trim(0);
    return ReadMemory();
}

double HeapInUse() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1024;
}

int CountDescriptors() {
    const std::filesystem::directory_iterator descriptors("/proc/self/fd");
    return static_cast<int>(std::distance(begin(descriptors), end(descriptors))) - 1; // its own
}

namespace {

using IsObject = GLboolean (*)(GLuint);

// Drivers may hand out each name once only, in ascending order: one more tells how far they came.
int CountNames(IsObject isObject, GLuint next) {
    int count = 0;
    for (GLuint name = 1; name < next; ++name) {
        count += isObject(name) == GL_TRUE ? 1 : 0;
    }
    return count;
}

template <typename Generate, typename Delete>
int CountGenerated(IsObject isObject, Generate generate, Delete remove) {
    GLuint next = 0;
    generate(1, &next);
    const int count = CountNames(isObject, next);
    remove(1, &next);
    return count;
}

} // namespace

int CountGlObjects() {
    const GLuint next = glCreateProgram();
    const int programs = CountNames(glIsProgram, next) + CountNames(glIsShader, next);
    glDeleteProgram(next);
    return programs + CountGenerated(glIsTexture, glGenTextures, glDeleteTextures) +
           CountGenerated(glIsBuffer, glGenBuffers, glDeleteBuffers) +
           CountGenerated(glIsFramebuffer, glGenFramebuffers, glDeleteFramebuffers);
}
