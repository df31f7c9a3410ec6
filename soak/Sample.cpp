#include "Sample.h"

#include <GLES2/gl2.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <string>

namespace {

long ReadStatus(const std::string& wanted) {
    std::ifstream status("/proc/self/status");
    std::string name;
    while (status >> name && name != wanted) {
    }
    long value = 0;
    status >> value;
    return value;
}

using IsObject = GLboolean (*)(GLuint);

int CountBelow(IsObject isObject, GLuint end) {
    int count = 0;
    for (GLuint name = 1; name < end; ++name) {
        count += isObject(name) == GL_TRUE ? 1 : 0;
    }
    return count;
}

// Names ascend, so a new one is above all others.
template <typename Generate, typename Delete>
int CountGenerated(IsObject isObject, Generate generate, Delete remove) {
    GLuint end = 0;
    generate(1, &end);
    const int count = CountBelow(isObject, end);
    remove(1, &end);
    return count;
}

int CountObjects() {
    const GLuint end = glCreateProgram();
    const int programs = CountBelow(glIsProgram, end) + CountBelow(glIsShader, end);
    glDeleteProgram(end);
    return programs + CountGenerated(glIsTexture, glGenTextures, glDeleteTextures) +
           CountGenerated(glIsBuffer, glGenBuffers, glDeleteBuffers) +
           CountGenerated(glIsFramebuffer, glGenFramebuffers, glDeleteFramebuffers);
}

} // namespace

Sample TakeSample() {
    Sample sample = {};
    sample.resident = ReadStatus("VmRSS:");
    malloc_trim(0); // the size of malloc's reserves is random and hides small growth
    sample.held = ReadStatus("RssAnon:");
    const struct mallinfo2 info = mallinfo2();
    sample.heap = static_cast<double>(info.uordblks + info.hblkhd) / 1024;
    const std::filesystem::directory_iterator files("/proc/self/fd");
    sample.descriptors = static_cast<int>(std::distance(begin(files), end(files))) - 1; // but this
    sample.objects = CountObjects();
    return sample;
}
